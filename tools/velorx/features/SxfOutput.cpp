// SPDX-License-Identifier: MIT
#include "tools/velorx/features/SxfOutput.h"

#include "tools/velorx/features/FeatureTally.h"
#include "tools/velorx/formats/SxfCodes.h"
#include "VelorExchange/foundation/FileError.h"

#include <QFile>

#include <algorithm>
#include <utility>

namespace velorx {

using namespace VelorExchange::pnr;

namespace {

// Pieces of a contour that share the vertex between them.
template <class Holder>
void DivideContour(const CAbstractVertexHolder& contour,
                   std::vector<std::unique_ptr<CAbstractVertexHolder>>& pieces)
{
    constexpr std::size_t kMost = CSxfFitting::kMostInBinary;
    const auto& vertices = static_cast<const Holder&>(contour).vertices;
    std::size_t first = 0;
    do {
        const std::size_t last = std::min(first + kMost, vertices.size());
        auto piece = std::make_unique<Holder>();
        piece->vertices.assign(vertices.begin() + static_cast<std::ptrdiff_t>(first),
                               vertices.begin() + static_cast<std::ptrdiff_t>(last));
        pieces.push_back(std::move(piece));
        first = last - 1;
    } while (first + 1 < vertices.size());
}

void KeepLayerAlone(std::vector<PnrSemantic>& semantics)
{
    semantics.erase(std::remove_if(semantics.begin(), semantics.end(),
                                   [](const auto& s) { return s.code != kSxfLayerCode; }),
                    semantics.end());
}

} // namespace

CSxfOutput::CSxfOutput(SSxfTarget file, CFeatureTally& counts)
    : target(std::move(file)), tally(counts), fitting(target.isText, counts),
      writer(CreatePnrWriter(target.isText, false, nullptr), DeletePnrWriter)
{
}

void CSxfOutput::Begin(const QString& mapName, int scaleDenominator, bool isUserMap)
{
    scale = scaleDenominator;
    writer->Init(isUserMap, &log);
    writer->SetPrecision(target.precision);
    PnrFileParams params;
    params.name = fitting.InOneLine(mapName);
    params.scale = scale;
    if (!writer->Open(target.path, params)) {
        Fail();
    }
}

const char* CSxfOutput::Write(CLineObject& line)
{
    if (!fitting.Fit(line)) {
        return nullptr;
    }
    const auto& contours = line.holders;
    if (std::any_of(contours.begin(), contours.end(),
                    [this](const auto& contour) { return fitting.IsTooLong(*contour); }))
    {
        return Divide(line);
    }
    Count(writer->WriteLine(&line));
    return kSxfLine;
}

// Each piece is an object of its own, since many readers know only the first contour of a line.
const char* CSxfOutput::Divide(CLineObject& line)
{
    tally.Lose(QStringLiteral("lines of more than 32767 vertices were divided"), line.layer);
    std::vector<std::unique_ptr<CAbstractVertexHolder>> pieces;
    for (const auto& contour : line.holders) {
        contour->Is2D() ? DivideContour<CVertexHolder2D>(*contour, pieces)
                        : DivideContour<CVertexHolder3D>(*contour, pieces);
    }
    for (auto& piece : pieces) {
        line.holders.clear();
        line.holders.push_back(std::move(piece));
        Count(writer->WriteLine(&line));
    }
    return kSxfLine;
}

bool CSxfOutput::RefuseTooLong(const CBaseObject& object, const QString& what)
{
    const auto& contours = object.holders;
    const bool isTooLong =
        std::any_of(contours.begin(), contours.end(),
                    [this](const auto& contour) { return fitting.IsTooLong(*contour); });
    if (isTooLong) {
        tally.Lose(what + QStringLiteral(" with more than 32767 vertices in a contour"),
                   object.layer);
    }
    return isTooLong;
}

const char* CSxfOutput::Write(CSquareObject& area)
{
    if (!fitting.Fit(area) || RefuseTooLong(area, QStringLiteral("areas"))) {
        return nullptr;
    }
    Count(writer->WriteSquare(&area));
    return kSxfArea;
}

const char* CSxfOutput::Write(CPointObject& point)
{
    if (!fitting.Fit(point) || RefuseTooLong(point, QStringLiteral("vectors"))) {
        return nullptr;
    }
    if (point.holders.size() > 1) {
        tally.Lose(QStringLiteral("further contours of points"), point.layer,
                   static_cast<qint64>(point.holders.size()) - 1);
    }
    Count(writer->WritePoint(&point));
    return kSxfPoint;
}

// Parts that lie apart become texts of their own: neither form keeps the contours of further parts.
const char* CSxfOutput::Write(CTextObject& text)
{
    if (!fitting.Fit(text)) {
        return nullptr;
    }
    auto contours = std::move(text.holders);
    const std::vector<QString> parts = std::exchange(text.extraTexts, {});
    const std::vector<quint16> aligns = std::exchange(text.extraAligns, {});
    text.holders.clear();
    text.holders.push_back(std::move(contours.front()));
    if (contours.size() != parts.size() + 1) {
        text.extraTexts = parts;
        text.extraAligns = aligns;
        WriteOneText(text);
        return kSxfText;
    }
    WriteOneText(text);
    KeepLayerAlone(text.semantics); // the others stand with the first part
    for (std::size_t i = 0; i < parts.size(); ++i) {
        text.text = parts[i];
        text.extraTexts.clear();
        text.extraAligns.clear();
        text.image.align = static_cast<qint16>(aligns[i]);
        text.holders.front() = std::move(contours[i + 1]);
        WriteOneText(text);
        tally.Read(kSxfTextPart);
        tally.Wrote(kSxfTextPart, kSxfText);
    }
    return kSxfText;
}

void CSxfOutput::WriteOneText(CTextObject& text)
{
    fitting.FitText(text, scale);
    Count(writer->WriteText(&text));
}

// Objects are fit, so that only a disk can be what refuses them.
void CSxfOutput::Count(bool isWritten)
{
    if (!isWritten) {
        Fail();
    }
    ++written;
}

QString CSxfOutput::Finish()
{
    if (written == 0) {
        return QStringLiteral("there is nothing in it that a map could hold");
    }
    if (!writer->Close()) {
        Fail();
    }
    return {};
}

void CSxfOutput::Fail() const
{
    QFile file(target.path);
    file.open(QIODevice::ReadWrite); // so that the error tells whether the file is the trouble
    throw VelorExchange::FileError(file);
}

// The library counts by the name that it writes to.
QString CSxfOutput::Log() const
{
    QString text;
    log.GetText(text);
    return text.replace(target.path, target.name);
}

} // namespace velorx

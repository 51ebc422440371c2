// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/SxfReading.h"

#include "tools/velorx/formats/SxfCodes.h"
#include "tools/velorx/formats/SxfDetails.h"

#include <memory>
#include <utility>

namespace velorx {

using namespace VelorExchange::pnr;
using VelorExchange::CPoint2D;

namespace {

template <class Holder>
void Move(CAbstractVertexHolder& holder, const SSxfHeader& header)
{
    for (auto& vertex : static_cast<Holder&>(holder).vertices) {
        vertex.x += header.originX;
        vertex.y += header.originY;
    }
}

bool IsFrame(const CLineObject& line)
{
    if (line.code != kSxfFrameCode || line.image || !line.semantics.empty()
        || line.holders.size() != 1 || !line.holders.front()->Is2D()
        || line.holders.front()->Count() != 5)
    {
        return false;
    }
    const auto& corners = static_cast<const CVertexHolder2D&>(*line.holders.front()).vertices;
    return corners[0].y == corners[1].y && corners[1].x == corners[2].x
        && corners[2].y == corners[3].y && corners[3].x == corners[0].x
        && corners[4].x == corners[0].x && corners[4].y == corners[0].y;
}

// The library keeps all characters that the file counts, and its writer counts a zero behind.
void DropZeros(QVariant& value)
{
    if (value.type() != QVariant::String) {
        return;
    }
    QString text = value.toString();
    while (text.endsWith(QChar(QChar::Null))) {
        text.chop(1);
    }
    value = text;
}

// Where the library's reader found no lines of text, it takes the text from elsewhere.
QStringList PartsOf(const CTextObject& text, const SSxfDetails& details)
{
    QStringList parts = details.parts;
    if (parts.isEmpty() && text.text.startsWith(QLatin1Char('>'))) {
        parts = text.text.mid(1).split(QLatin1Char('>'));
    }
    return parts.isEmpty() ? QStringList(text.text) : parts;
}

QString WithPlainBreaks(QString part)
{
    part.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    part.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    while (part.endsWith(QLatin1Char('\n'))) {
        part.chop(1);
    }
    return part;
}

// A part without an alignment of its own has that of the first.
qint16 AlignOf(const SSxfDetails& details, std::size_t part)
{
    const std::size_t row = part < details.aligns.size() ? part : 0;
    const int align = details.aligns.empty() ? 0 : details.aligns[row];
    return static_cast<qint16>(align >= kFirstSxfAlign && align <= kLastSxfAlign ? align
                                                                                 : kFirstSxfAlign);
}

/// Stands between the library's reader and the host.
class CSxfMender final : public IPnrReader::IContext
{
public:
    CSxfMender(const QString& path, const SSxfHeader& head, VelorExchange::dxf::IDXFProgress* bar,
               ISxfHost& target)
        : header(head), progress(bar), host(target),
          details(head.isText ? MakeSxfTextDetails(path) : MakeSxfBinaryDetails(path))
    {
    }

    void AddLine(CLineObject* line) override
    {
        const SSxfDetails known = Begin();
        if (IsFramePlace() && IsFrame(*line)) {
            host.TakeFrame();
            return;
        }
        if (line->image && known.thickness) {
            line->image->thickness = *known.thickness;
        }
        Hand(*line);
    }

    void AddSquare(CSquareObject* area) override
    {
        Begin();
        Hand(*area);
    }

    void AddPoint(CPointObject* point) override
    {
        const SSxfDetails known = Begin();
        if (known.mark && (point->code == 0 || !header.isText)) {
            point->image = std::make_unique<PnrPointImage>(*known.mark);
        }
        Hand(*point);
    }

    void AddText(CTextObject* text) override
    {
        const SSxfDetails known = Begin();
        text->code = header.isText ? text->code : known.code;
        text->hasOwnImage = text->code == 0 || known.letters.has_value();
        if (known.letters) {
            text->image = *known.letters;
        }
        MendParts(*text, known);
        Hand(*text);
    }

private:
    SSxfDetails Begin()
    {
        ++count;
        if (progress != nullptr) {
            progress->SetPosition(count);
        }
        return details->Next();
    }

    /// The text form has the frame ahead of all objects, the binary form behind them.
    bool IsFramePlace() const { return count == (header.isText ? 1 : header.declaredRecords); }

    static void MendParts(CTextObject& text, const SSxfDetails& known)
    {
        const QStringList parts = PartsOf(text, known);
        text.text = WithPlainBreaks(parts.first());
        text.image.align = AlignOf(known, 0);
        for (int i = 1; i < parts.size(); ++i) {
            text.extraTexts.push_back(WithPlainBreaks(parts.at(i)));
            text.extraAligns.push_back(
                static_cast<quint16>(AlignOf(known, static_cast<std::size_t>(i))));
        }
        if (text.holders.size() != text.extraTexts.size() + 1 && text.holders.size() > 1) {
            text.holders.resize(1);
        }
    }

    template <class Object>
    void Hand(Object& object)
    {
        for (const auto& holder : object.holders) {
            holder->Is2D() ? Move<CVertexHolder2D>(*holder, header)
                           : Move<CVertexHolder3D>(*holder, header);
        }
        for (PnrSemantic& semantic : object.semantics) {
            DropZeros(semantic.value);
            if (semantic.code == kSxfLayerCode && !semantic.value.toString().isEmpty()) {
                object.layer = semantic.value.toString();
            }
        }
        host.Take(object);
    }

    const SSxfHeader& header;
    VelorExchange::dxf::IDXFProgress* progress;
    ISxfHost& host;
    std::unique_ptr<ISxfDetails> details;
    qint64 count = 0;
};

} // namespace

QString ReadSxf(const QString& path, const SSxfHeader& header,
                VelorExchange::dxf::IDXFProgress* progress, ISxfHost& host)
{
    if (!header.fault.isEmpty()) {
        return header.fault;
    }
    if (progress != nullptr) {
        progress->Begin(QString(), header.declaredRecords);
    }
    CSxfMender mender(path, header, progress, host);
    const std::unique_ptr<IPnrReader, void (*)(IPnrReader*)> reader(
        CreateReader(header.isText, &mender), DeleteReader);
    const bool result = reader->Read(path);
    if (progress != nullptr) {
        progress->Finish();
    }
    const QString message = QString::fromStdWString(reader->GetLastError());
    return result           ? QString()
        : message.isEmpty() ? QStringLiteral("the map ends inside a record")
                            : message;
}

} // namespace velorx

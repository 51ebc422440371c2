// SPDX-License-Identifier: MIT
#include "tools/velorx/features/SxfFeatureTarget.h"

#include "tools/velorx/features/FeatureTally.h"
#include "tools/velorx/features/LayerState.h"
#include "tools/velorx/features/SxfAlign.h"
#include "tools/velorx/features/SxfTextPlace.h"
#include "tools/velorx/formats/SxfCodes.h"

#include <QFileInfo>

#include <algorithm>
#include <cmath>
#include <memory>

namespace velorx {

using namespace VelorExchange::pnr;
using VelorExchange::CPoint3D;

namespace {

constexpr int kCommonScale = 1000;
constexpr double kMicrometres = 1000.0; // in a millimetre
constexpr double kPoints = 72.0 / 25.4; // in a millimetre
constexpr double kRingShare = 0.125; // of the height of the common mark
constexpr double kLargest = 1e9; // of lengths on paper, so that they stay whole numbers of 32 bits
constexpr quint16 kBold = 700;

qint32 Whole(double value, double least)
{
    return static_cast<qint32>(std::lround(std::clamp(value, least, kLargest)));
}

// The map's x counts to the north. Rings end with their first vertex there.
std::unique_ptr<CAbstractVertexHolder> Contour(const CFeatureLine& points, bool is3D, bool isRing)
{
    const std::size_t count = points.size() + (isRing ? 1 : 0);
    if (is3D) {
        auto contour = std::make_unique<CVertexHolder3D>();
        for (std::size_t i = 0; i < count; ++i) {
            const CPoint3D& p = points[i % points.size()];
            contour->vertices.push_back({p.y, p.x, p.z});
        }
        return contour;
    }
    auto contour = std::make_unique<CVertexHolder2D>();
    for (std::size_t i = 0; i < count; ++i) {
        const CPoint3D& p = points[i % points.size()];
        contour->vertices.push_back({p.y, p.x});
    }
    return contour;
}

void AddContours(const SAreaFeature& area, const SAreaPart& part, CBaseObject& object)
{
    object.holders.push_back(Contour(*part.outline, area.is3D, true));
    for (const CFeatureLine* hole : part.holes) {
        object.holders.push_back(Contour(*hole, area.is3D, true));
    }
}

} // namespace

CSxfFeatureTarget::CSxfFeatureTarget(const STargetOptions& targetOptions, CFeatureTally& counts,
                                     bool isText)
    : options(targetOptions), tally(counts),
      output({targetOptions.path, targetOptions.name, isText, targetOptions.precision}, counts),
      semantics(counts)
{
}

void CSxfFeatureTarget::TakeHead(const SFeatureHead& head)
{
    const int scale = options.scale > 0 ? options.scale
        : head.scale > 0                ? head.scale
                                        : kCommonScale;
    output.Begin(head.name.isEmpty() ? QFileInfo(options.name).completeBaseName() : head.name,
                 scale, true);
}

void CSxfFeatureTarget::TakeLayer(const SFeatureLayer& layer)
{
    LoseLayerState(layer, tally);
}

void CSxfFeatureTarget::FillHead(const SFeature& feature, CBaseObject& object)
{
    object.layer = feature.layer;
    semantics.Fill(feature, object);
}

// Objects with a classifier code are drawn by the classifier. `hasLooks` tells whether the feature looks
// other than it would if nobody had said how.
bool CSxfFeatureTarget::IsDrawn(const SFeature& feature, const CBaseObject& object, bool hasLooks)
{
    if (object.code == 0) {
        return true;
    }
    if (hasLooks) {
        tally.Lose(QStringLiteral("objects are drawn as the classifier tells and not as here"),
                   feature.layer);
    }
    return false;
}

std::unique_ptr<PnrLineImage> CSxfFeatureTarget::Drawing(const SFeatureStroke& stroke,
                                                         const QString& layer)
{
    if (stroke.lineType != nullptr && !stroke.lineType->dashes.empty()) {
        tally.Lose(QStringLiteral("dashed lines became solid"), layer);
    }
    const double width = stroke.planWidth > 0 ? OnPaper(stroke.planWidth, output.Scale())
                                              : stroke.width * kMicrometres;
    auto image = std::make_unique<PnrLineImage>();
    image->color = static_cast<qint32>(stroke.color);
    image->thickness = Whole(width, 0);
    return image;
}

const char* CSxfFeatureTarget::Take(const SPointFeature& point)
{
    CPointObject object;
    FillHead(point, object);
    const SFeatureSymbol& symbol = point.symbol;
    if (IsDrawn(point, object, symbol.color != 0)) {
        object.image = std::make_unique<PnrPointImage>();
        object.image->color = static_cast<qint32>(symbol.color);
        if (symbol.size > 0) {
            object.image->size = Whole(symbol.size / kPoints / kRingShare * kMicrometres, 1);
        }
        if (symbol.shape != 0 || !symbol.font.isEmpty() || symbol.angle != 0.0) {
            tally.Lose(QStringLiteral("marks of points became small rings"), point.layer);
        }
    }
    object.holders.push_back(Contour({point.position}, point.is3D, false));
    return output.Write(object);
}

const char* CSxfFeatureTarget::Take(const SLineFeature& line)
{
    CLineObject object;
    FillHead(line, object);
    const SFeatureStroke& stroke = line.stroke;
    if (IsDrawn(line, object, stroke.color != 0 || stroke.width > 0 || stroke.planWidth > 0)) {
        object.image = Drawing(stroke, line.layer);
    }
    object.holders.push_back(Contour(line.points, line.is3D, false));
    return output.Write(object);
}

quint32 CSxfFeatureTarget::FillColour(const SAreaFeature& area)
{
    if (area.fill.kind == EFeatureFill::None) {
        return kSxfNoColour;
    }
    if (area.fill.kind == EFeatureFill::Pattern) {
        tally.Lose(QStringLiteral("patterns of areas became solid fills"), area.layer);
    }
    return area.fill.color;
}

const char* CSxfFeatureTarget::WriteArea(const SAreaFeature& area, const SAreaPart& part)
{
    CSquareObject object;
    FillHead(area, object);
    const bool hasLooks = area.fill.kind != EFeatureFill::None || area.stroke.color != 0;
    const bool isDrawn = IsDrawn(area, object, hasLooks);
    if (isDrawn) {
        object.image = std::make_unique<PnrSquareImage>();
        object.image->color = static_cast<qint32>(FillColour(area));
    }
    AddContours(area, part, object);
    const char* as = output.Write(object);
    const char* outline = isDrawn && area.stroke.isVisible ? WriteOutline(area, part) : nullptr;
    return as != nullptr ? as : outline;
}

const char* CSxfFeatureTarget::WriteOutline(const SAreaFeature& area, const SAreaPart& part)
{
    CLineObject object;
    object.layer = area.layer;
    object.image = Drawing(area.stroke, area.layer);
    AddContours(area, part, object);
    const char* as = output.Write(object);
    if (as != nullptr) {
        tally.Lose(QStringLiteral("outlines of areas became lines behind them"), area.layer);
    }
    return as;
}

const char* CSxfFeatureTarget::Take(const SAreaFeature& area)
{
    const char* as = nullptr;
    const std::vector<SAreaPart> parts = AreaParts(area.rings);
    for (const SAreaPart& part : parts) {
        const char* written = WriteArea(area, part);
        if (as != nullptr && written != nullptr) {
            tally.Lose(QStringLiteral("further outlines of areas became areas of their own"),
                       area.layer);
        }
        as = as != nullptr ? as : written;
    }
    return as;
}

void CSxfFeatureTarget::FillLetters(const STextFeature& text, PnrTextImage& image)
{
    if (text.height > 0) {
        image.height = static_cast<quint32>(Whole(OnPaper(text.height, output.Scale()), 1));
    }
    image.align = static_cast<qint16>(ToSxfAlign({text.align, text.vertical}));
    image.color = text.color;
    image.weight = text.isBold ? kBold : image.weight;
    image.italic = text.isItalic ? 1 : 0;
    image.uline = text.isUnderlined ? 1 : 0;
    image.fontName = text.font.isEmpty() ? image.fontName : output.InOneLine(text.font);
    if (text.widthFactor != 1.0 || (text.slant != 0.0 && !text.isItalic)) {
        tally.Lose(QStringLiteral("texts lost the width or the slant of their letters"),
                   text.layer);
    }
    if (text.columnWidth > 0) {
        tally.Lose(QStringLiteral("texts lost the width at which their lines are broken"),
                   text.layer);
    }
}

const char* CSxfFeatureTarget::Take(const STextFeature& text)
{
    CTextObject object;
    FillHead(text, object);
    FillLetters(text, object.image);
    object.hasOwnImage = IsDrawn(text, object, text.color != 0 || !text.font.isEmpty());
    object.text = text.text;
    if (text.is3D && text.position.z != 0.0) {
        tally.Lose(QStringLiteral("texts lost their height above zero"), text.layer);
    }
    const double height = OnGround(object.image.height, output.Scale());
    const SSxfTextLine line = MakeTextLine({text.position.y, text.position.x}, text.rotation,
                                           TextLength(text.text, height), text.align);
    auto contour = std::make_unique<CVertexHolder2D>();
    contour->vertices = {line.first, line.last};
    object.holders.push_back(std::move(contour));
    return output.Write(object);
}

const char* CSxfFeatureTarget::Take(const SImageFeature& image)
{
    tally.Lose(QStringLiteral("pictures"), image.layer);
    return nullptr;
}

QString CSxfFeatureTarget::Finish()
{
    semantics.Remark();
    return output.Finish();
}

} // namespace velorx

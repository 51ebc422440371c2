// SPDX-License-Identifier: MIT
#include "tools/velorx/render/PictureSink.h"

#include "tools/velorx/features/FeatureTally.h"
#include "tools/velorx/features/MifNumbers.h"
#include "tools/velorx/features/MifPen.h"
#include "tools/velorx/render/Clipping.h"
#include "tools/velorx/render/Picture.h"
#include "tools/velorx/render/StrokeLine.h"
#include "tools/velorx/render/SymbolMark.h"

#include <algorithm>
#include <cmath>

namespace velorx {

namespace {

constexpr double kMillimetresPerInch = 25.4;

CPixelLine Joined(const std::vector<CPixelLine>& rings)
{
    CPixelLine points;
    for (const CPixelLine& ring : rings) {
        points.insert(points.end(), ring.begin(), ring.end());
    }
    return points;
}

} // namespace

CPictureSink::CPictureSink(QPainter& picturePainter, const CPictureView& pictureView,
                           const SPictureStyle& pictureStyle, CLayerChoice& layerChoice,
                           CFeatureTally& featureTally)
    : painter(picturePainter), view(pictureView), style(pictureStyle),
      colours(pictureStyle.background), layers(layerChoice), tally(featureTally)
{
}

bool CPictureSink::IsAsked(const SFeature& feature)
{
    const CLayerChoice::EVerdict verdict = layers.Judge(feature.layer);
    if (verdict == CLayerChoice::EVerdict::Hidden) {
        tally.Lose(QStringLiteral("objects are on layers that are off or frozen"), feature.layer);
    } else if (verdict == CLayerChoice::EVerdict::NotAsked) {
        tally.Lose(QStringLiteral("objects are on layers that were not asked for"));
    }
    return verdict == CLayerChoice::EVerdict::Drawn && !IsOverfull();
}

bool CPictureSink::IsInside(const SFeature& feature, const CPixelLine& corners)
{
    if (corners.empty()) {
        tally.Lose(QStringLiteral("objects have no coordinates that can be drawn"), feature.layer);
        return false;
    }
    if (!Touch(BoundsOf(corners), view.Frame())) {
        tally.Lose(QStringLiteral("objects lie far off all others, outside of the picture"),
                   feature.layer);
        return false;
    }
    return true;
}

CPixelLine CPictureSink::Map(const CFeatureLine& points) const
{
    CPixelLine line;
    line.reserve(points.size());
    for (const VelorExchange::CPoint3D& point : points) {
        if (IsDrawable(point.x) && IsDrawable(point.y)) {
            line.push_back(view.Map(point.x, point.y));
        }
    }
    return line;
}

// A width in the plan belongs to a band with square ends; a width on paper to a pen.
QPen CPictureSink::PenFor(const SFeatureStroke& stroke) const
{
    const double most = std::max(view.Frame().width(), view.Frame().height()) * 2;
    const double onPaper = stroke.width / kMillimetresPerInch * kPixelsPerInch;
    const double inPlan = view.Pixels(stroke.planWidth);
    const bool isBand = inPlan > onPaper && inPlan > style.thinnest;
    const double width = isBand ? inPlan : onPaper;
    const bool isDashed = stroke.lineType != nullptr && !stroke.lineType->dashes.empty();
    QPen pen(colours.Line(stroke.color));
    pen.setWidthF(width > style.thinnest ? std::min(width, most) : style.thinnest);
    pen.setCapStyle(isBand || isDashed ? Qt::FlatCap : Qt::RoundCap);
    pen.setJoinStyle(isBand ? Qt::MiterJoin : Qt::RoundJoin);
    return pen;
}

// Those of a pen are measured on paper, whatever the unit of its file.
CDashes CPictureSink::DashesOf(const SFeatureStroke& stroke) const
{
    if (stroke.lineType == nullptr) {
        return {};
    }
    const bool isPen = MifNumber(stroke.lineType->name) > 0;
    return {stroke.lineType->dashes, isPen ? 1.0 / kMifPixel : view.Pixels(1.0)};
}

void CPictureSink::Stroke(const CPixelLine& points, const SFeatureStroke& stroke)
{
    const QPen pen = PenFor(stroke);
    const double reach = pen.widthF() * 2;
    const CDashes dashes = DashesOf(stroke);
    CPiecePainter pieces(painter, pen);
    CutLine(points, dashes, view.Frame().adjusted(-reach, -reach, reach, reach), budget,
            [&pieces](const QLineF& piece) { pieces.Add(piece); });
}

const char* CPictureSink::Done(const char* as)
{
    ++drawn;
    return as;
}

const char* CPictureSink::Take(const SPointFeature& point)
{
    const CPixelLine place = Map({point.position});
    if (IsEmptyBlock(point)) {
        tally.Lose(QStringLiteral("block references without anything to draw"), point.layer);
        return nullptr;
    }
    if (!IsAsked(point) || !IsInside(point, place)) {
        return nullptr;
    }
    const SSymbolMark mark = MarkFor(point.symbol);
    const QColor colour = colours.Line(point.symbol.color);
    const QPainterPath outline = mark.outline.translated(place.front());
    if (mark.isFilled) {
        painter.Fill(outline, colour);
    } else {
        painter.Stroke(outline, QPen(colour, style.thinnest));
    }
    return Done("mark");
}

const char* CPictureSink::Take(const SLineFeature& line)
{
    const CPixelLine points = Map(line.points);
    if (!IsAsked(line) || !IsInside(line, points)) {
        return nullptr;
    }
    if (line.stroke.isVisible) {
        Stroke(points, line.stroke);
    }
    return Done("line");
}

const char* CPictureSink::Take(const SAreaFeature& area)
{
    std::vector<CPixelLine> rings;
    rings.reserve(area.rings.size());
    for (const CFeatureLine& ring : area.rings) {
        rings.push_back(Map(ring));
    }
    if (!IsAsked(area) || !IsInside(area, Joined(rings))) {
        return nullptr;
    }
    std::vector<CPixelLine> inside;
    inside.reserve(rings.size());
    for (const CPixelLine& ring : rings) {
        inside.push_back(ClipRing(ring, view.Frame()));
    }
    Fill(inside, area.fill);
    for (CPixelLine& ring : rings) {
        if (area.stroke.isVisible && !ring.empty()) {
            ring.push_back(ring.front());
            Stroke(ring, area.stroke);
        }
    }
    return Done("area");
}

} // namespace velorx

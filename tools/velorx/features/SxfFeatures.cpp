// SPDX-License-Identifier: MIT
#include "tools/velorx/features/SxfFeatures.h"

#include "tools/velorx/features/FeatureTally.h"
#include "tools/velorx/features/SxfAlign.h"
#include "tools/velorx/features/SxfOutput.h"
#include "tools/velorx/features/SxfTextPlace.h"
#include "tools/velorx/formats/SxfCodes.h"

#include <QSet>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <utility>

namespace velorx {

using namespace VelorExchange::pnr;
using VelorExchange::CPoint2D;
using VelorExchange::CPoint3D;

namespace {

constexpr quint32 kColour = 0xFFFFFF;
constexpr quint32 kNoColour = 0xFFFFFFFF;
constexpr double kMicrometres = 1000.0; // in a millimetre
constexpr double kPoints = 72.0 / 25.4; // in a millimetre
constexpr double kRingShare = 0.125; // of the height of the common mark
constexpr quint16 kBold = 600;

CPoint3D ToFeature(const CPoint2D& vertex)
{
    return {vertex.y, vertex.x, 0.0};
}

CPoint3D ToFeature(const CPoint3D& vertex)
{
    return {vertex.y, vertex.x, vertex.z};
}

template <class Holder>
CFeatureLine Points(const CAbstractVertexHolder& contour)
{
    CFeatureLine points;
    for (const auto& vertex : static_cast<const Holder&>(contour).vertices) {
        points.push_back(ToFeature(vertex));
    }
    return points;
}

// The map's x counts to the north.
CFeatureLine Points(const CAbstractVertexHolder& contour)
{
    return contour.Is2D() ? Points<CVertexHolder2D>(contour) : Points<CVertexHolder3D>(contour);
}

double Direction(const CFeatureLine& points)
{
    return points.size() < 2 ? 0.0
                             : std::atan2(points[1].y - points[0].y, points[1].x - points[0].x);
}

CFeatureLine Ring(const CAbstractVertexHolder& contour)
{
    CFeatureLine ring = Points(contour);
    if (ring.size() > 1 && ring.front().x == ring.back().x && ring.front().y == ring.back().y) {
        ring.pop_back();
    }
    return ring;
}

QString AttributeName(const PnrSemantic& semantic)
{
    return semantic.name.isEmpty() ? QStringLiteral("S_%1").arg(semantic.code) : semantic.name;
}

} // namespace

void CSxfFeatures::FillHead(SFeature& feature, const CBaseObject& object)
{
    feature.layer = object.layer.isEmpty() ? QLatin1String(kSxfNoLayer) : object.layer;
    feature.code = object.code;
    feature.is3D = !object.holders.empty() && !object.holders.front()->Is2D();
    feature.attributes = Attributes(object);
}

// The layer stands in the feature, and numbers of objects mean nothing outside their map. One attribute of
// a code that comes again is told by a number.
CFeatureAttributes CSxfFeatures::Attributes(const CBaseObject& object)
{
    auto attributes = std::make_shared<std::vector<SFeatureAttribute>>();
    QSet<QString> names;
    for (const PnrSemantic& semantic : object.semantics) {
        if (semantic.code == kSxfLayerCode) {
            continue;
        }
        if (semantic.code == kSxfLinkToTextCode || semantic.code == kSxfLinkToObjectCode) {
            tally.Lose(QStringLiteral("links between objects and texts"), object.layer);
            continue;
        }
        const QString name = AttributeName(semantic);
        QString unique = name;
        for (int i = 2; names.contains(unique); ++i) {
            unique = name + QLatin1Char('_') + QString::number(i);
        }
        names.insert(unique);
        attributes->push_back({unique, semantic.value});
    }
    return attributes->empty() ? nullptr : attributes;
}

void CSxfFeatures::Take(CLineObject& line)
{
    SLineFeature feature;
    FillHead(feature, line);
    if (line.image) {
        feature.stroke.color = static_cast<quint32>(line.image->color) & kColour;
        feature.stroke.width = std::max(line.image->thickness, 0) / kMicrometres;
    }
    feature.kind = kSxfLine;
    for (const auto& contour : line.holders) {
        tally.Read(feature.kind);
        feature.points = Points(*contour);
        if (feature.points.size() < 2) {
            tally.Lose(QStringLiteral("lines of a single vertex"), feature.layer);
        } else {
            HandOn(feature, sink, tally);
        }
        feature.kind = kSxfLinePart;
    }
    if (line.holders.empty()) {
        tally.Read(feature.kind);
        tally.Lose(QStringLiteral("lines without a vertex"), feature.layer);
    }
}

void CSxfFeatures::Take(CSquareObject& area)
{
    SAreaFeature feature;
    feature.kind = kSxfArea;
    FillHead(feature, area);
    if (area.image) {
        feature.fill.kind = EFeatureFill::Solid;
        feature.fill.color = static_cast<quint32>(area.image->color) & kColour;
        feature.stroke.color = feature.fill.color;
        feature.stroke.isVisible = false;
    }
    tally.Read(kSxfArea);
    for (const auto& contour : area.holders) {
        CFeatureLine ring = Ring(*contour);
        if (ring.size() >= 3) {
            feature.rings.push_back(std::move(ring));
        } else if (feature.rings.empty()) {
            tally.Lose(QStringLiteral("areas of less than three vertices"), feature.layer);
            return;
        } else {
            tally.Lose(QStringLiteral("holes of less than three vertices"), feature.layer);
        }
    }
    if (feature.rings.empty()) {
        tally.Lose(QStringLiteral("areas without a vertex"), feature.layer);
        return;
    }
    HandOn(feature, sink, tally);
}

void CSxfFeatures::Take(CPointObject& point)
{
    SPointFeature feature;
    FillHead(feature, point);
    if (point.image) {
        const bool isRing = point.image->bits == kPnrRingMask;
        feature.symbol.color = static_cast<quint32>(point.image->color) & kColour;
        feature.symbol.size =
            point.image->size / kMicrometres * (isRing ? kRingShare : 1.0) * kPoints;
    }
    feature.kind = kSxfPoint;
    for (const auto& contour : point.holders) {
        tally.Read(feature.kind);
        const CFeatureLine points = Points(*contour);
        if (points.empty()) {
            tally.Lose(QStringLiteral("points without a vertex"), feature.layer);
        } else {
            feature.position = points.front();
            feature.symbol.angle = Direction(points);
            if (points.size() > 1) {
                tally.Lose(QStringLiteral("vectors became points with a direction"), feature.layer);
            }
            HandOn(feature, sink, tally);
        }
        feature.kind = kSxfPointPart;
    }
    if (point.holders.empty()) {
        tally.Read(feature.kind);
        tally.Lose(QStringLiteral("points without a vertex"), feature.layer);
    }
}

void CSxfFeatures::FillLetters(STextFeature& feature, const CTextObject& text)
{
    feature.height = OnGround(text.image.height, scale);
    if (!text.hasOwnImage) {
        return; // the classifier knows
    }
    feature.color = text.image.color & kColour;
    feature.font = text.image.fontName;
    feature.isBold = text.image.weight >= kBold;
    feature.isItalic = text.image.italic != 0;
    feature.isUnderlined = text.image.uline != 0;
    if (text.image.xline != 0) {
        tally.Lose(QStringLiteral("texts that were struck out"), feature.layer);
    }
    if (text.image.bColor != kNoColour || text.image.sColor != kNoColour) {
        tally.Lose(QStringLiteral("backgrounds and shadows of texts"), feature.layer);
    }
}

void CSxfFeatures::Take(CTextObject& text)
{
    STextFeature feature;
    FillHead(feature, text);
    FillLetters(feature, text);
    const auto parts = text.extraTexts.size() + 1;
    QStringList lines(text.text);
    for (const QString& part : text.extraTexts) {
        lines.append(part);
    }
    const bool isApart = text.holders.size() == parts;
    for (std::size_t i = 0; i < (isApart ? parts : 1); ++i) {
        feature.text = isApart ? lines.at(static_cast<int>(i)) : lines.join(QLatin1Char('\n'));
        feature.kind = i == 0 ? kSxfText : kSxfTextPart;
        HandOnPart(feature, text, i);
        feature.attributes = nullptr; // they stand with the first part
    }
}

void CSxfFeatures::HandOnPart(STextFeature& feature, const CTextObject& text, std::size_t part)
{
    tally.Read(feature.kind);
    const CFeatureLine points =
        part < text.holders.size() ? Points(*text.holders[part]) : CFeatureLine();
    if (points.empty() || feature.text.trimmed().isEmpty()) {
        tally.Lose(QStringLiteral("texts without letters or place"), feature.layer);
        return;
    }
    const SSxfAlign align = FromSxfAlign(part == 0 ? text.image.align : text.extraAligns[part - 1]);
    const SSxfTextLine line = {{points.front().y, points.front().x},
                               {points.back().y, points.back().x}};
    const CPoint2D place = PlaceOn(line, align.along);
    feature.position = {place.y, place.x, points.front().z};
    feature.rotation = Direction(points);
    feature.align = align.along;
    feature.vertical = align.across;
    HandOn(feature, sink, tally);
}

void CSxfFeatures::TakeFrame()
{
    tally.Read(kSxfFrame);
    tally.Lose(QStringLiteral("frames around everything are left out"));
}

} // namespace velorx

// SPDX-License-Identifier: MIT
// The frame: tables, and what all elements have in common.
#include "tools/velorx/features/DxfFeatureReader.h"

#include "tools/velorx/features/DxfFeatureLosses.h"
#include "tools/velorx/features/FiniteFeature.h"
#include "tools/velorx/formats/DxfSurvey.h"
#include "tools/velorx/formats/DxfTally.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace velorx {

using namespace VelorExchange::dxf;
using VelorExchange::CPoint2D;
using VelorExchange::CPoint3D;

namespace {

constexpr double kTwoPi = 6.283185307179586;
constexpr double kHundredths = 100.0;

EFeatureAlign Opposite(EFeatureAlign align)
{
    switch (align) {
    case EFeatureAlign::Left:
        return EFeatureAlign::Right;
    case EFeatureAlign::Right:
        return EFeatureAlign::Left;
    default:
        return align;
    }
}

} // namespace

CDxfFeatureReader::CDxfFeatureReader(IFeatureSink& features, CFeatureTally& counts,
                                     const CDxfSurvey& firstLook, CDxfTally& expected,
                                     const SReadingOptions& options)
    : sink(features), tally(counts), survey(firstLook), firstTally(expected),
      progress(options.progress), chords(options.chord), tolerance(chords.Tolerance()),
      styles(firstLook)
{
}

// ---- Tables ------------------------------------------------------------------------------------

bool CDxfFeatureReader::OnSection(int stage)
{
    constexpr int kObjects = 4;
    if (stage == kObjects) {
        DrawOutstanding();
    }
    return stage != kObjects || !survey.AreObjectsAhead();
}

bool CDxfFeatureReader::OnLayer(const CLayerDXF& record)
{
    styles.Add(record);
    sink.TakeLayer({record.name, record.visible, !record.unlocked});
    return true;
}

// ---- What elements have in common ---------------------------------------------------------------

// What stood ahead of an element as its data is that element's.
void CDxfFeatureReader::Meet(EDxfKind kind)
{
    tally.Read(EntityName(kind), place.isInBlock);
    if (!place.isInBlock) {
        firstTally.Read(kind, false);
        place = std::exchange(next, SPlace());
        hasNext = false;
        if (kind != kLWPolyline && kind != kPolyline) {
            HandOnHeld();
        }
    }
}

QString CDxfFeatureReader::LayerOf(const QString& layer) const
{
    const QString name = styles.LayerName(layer);
    return place.isInBlock && name == QLatin1String("0") ? place.layer : name;
}

// Whether an element looks like the layer of its insert where it looks like its own.
bool CDxfFeatureReader::IsFloating(const QString& layer) const
{
    return place.isInBlock && styles.LayerName(layer) == QLatin1String("0");
}

// The reader has resolved colours by layer already, but by the wrong one for layer 0 of a block, and has black
// for the number that says so.
bool CDxfFeatureReader::IsByLayer(quint32 color, const QString& layer) const
{
    constexpr quint32 kBlack = 0;
    if (color == kByBlockColor) {
        return true;
    }
    if (!IsFloating(layer)) {
        return color == kBlack && survey.Colours().IsBlackByLayer(styles.LayerName(layer));
    }
    return color == kBlack ? survey.Colours().IsBlackFollowed(open.back()->name)
                           : color == styles.Layer(QStringLiteral("0")).color;
}

quint32 CDxfFeatureReader::ColourOf(quint32 color, const QString& layer) const
{
    const quint32 resolved = IsByLayer(color, layer) ? styles.Layer(LayerOf(layer)).color : color;
    return resolved == kByBlockColor ? 0 : resolved;
}

SFeatureStroke CDxfFeatureReader::StrokeOf(const CEntityDXF& head)
{
    SFeatureStroke stroke;
    stroke.color = ColourOf(head.color, head.layer);
    const double weight =
        head.lineWeight > 0 ? head.lineWeight : styles.Layer(LayerOf(head.layer)).lineWeight;
    stroke.width = weight > 0 ? weight / kHundredths : 0.0;
    QString lineType = head.lineStyle.name;
    if (IsFloating(head.layer)
        && lineType.compare(styles.Layer(QStringLiteral("0")).lineType, Qt::CaseInsensitive) == 0)
    {
        lineType = styles.Layer(place.layer).lineType;
    }
    stroke.lineType = styles.LineType(lineType);
    return stroke;
}

void CDxfFeatureReader::FillHead(SFeature& feature, const char* kind, const QString& layer) const
{
    feature.kind = kind;
    feature.layer = LayerOf(layer);
    feature.code = place.code;
    feature.isInBlock = place.isInBlock;
    feature.attributes = place.attributes;
}

bool CDxfFeatureReader::Lost(const char* kind, const QString& layer, const char* why)
{
    tally.Lose(QLatin1String(kind) + QLatin1String(why), layer);
    return false;
}

void CDxfFeatureReader::Changed(const char* what, const QString& layer)
{
    tally.Lose(QLatin1String(what), layer);
}

// ---- Handing on --------------------------------------------------------------------------------

void CDxfFeatureReader::Place(CFeatureLine& line) const
{
    if (place.isInBlock) {
        std::transform(line.begin(), line.end(), line.begin(), place.placement);
    }
}

template <class TFeature>
bool CDxfFeatureReader::HandOnPlaced(const TFeature& feature)
{
    if (!IsFinite(feature)) {
        return Lost(feature.kind, feature.layer, losses::kNoNumber);
    }
    ++given;
    HandOn(feature, sink, tally);
    return true;
}

bool CDxfFeatureReader::Give(SPointFeature& point)
{
    point.position = place.placement(point.position);
    point.is3D = point.position.z != 0.0;
    return HandOnPlaced(point);
}

bool CDxfFeatureReader::Give(SLineFeature& line)
{
    if (line.points.size() < 2) {
        return Lost(line.kind, line.layer, losses::kNothing);
    }
    if (!place.isInBlock) {
        HandOnHeld();
    }
    Place(line.points);
    line.stroke.planWidth *= place.placement.MeanScale();
    return HandOnPlaced(line);
}

bool CDxfFeatureReader::Give(SAreaFeature& area)
{
    if (area.rings.empty()) {
        return Lost(area.kind, area.layer, losses::kNothing);
    }
    for (CFeatureLine& ring : area.rings) {
        Place(ring);
    }
    area.stroke.planWidth *= place.placement.MeanScale();
    if (!place.isInBlock && IsFinite(area) && (JoinHeld(area) || Hold(area))) {
        return true;
    }
    return HandOnPlaced(area);
}

// A text that its insert mirrors covers the same place but reads from the other end.
bool CDxfFeatureReader::Give(STextFeature& text)
{
    text.position = place.placement(text.position);
    text.is3D = text.position.z != 0.0;
    if (place.isInBlock) {
        const double cosine = std::cos(text.rotation);
        const double sine = std::sin(text.rotation);
        CPoint2D along = place.placement.Turned({cosine, sine});
        const double width = std::hypot(along.x, along.y);
        const double scale = place.placement.MeanScale();
        const double height = width > 0 ? scale * scale / width : 0.0;
        if (place.placement.IsMirrored()) {
            along = {-along.x, -along.y};
            text.align = Opposite(text.align);
            Changed(losses::kMirroredTexts, text.layer);
        }
        const double angle = std::atan2(along.y, along.x);
        text.rotation = angle < 0 ? angle + kTwoPi : angle;
        text.height *= height;
        text.columnWidth *= width;
        text.widthFactor *= height > 0 ? width / height : 1.0;
    }
    return HandOnPlaced(text);
}

// The reader delivers images outside blocks alone.
bool CDxfFeatureReader::Give(SImageFeature& image)
{
    return HandOnPlaced(image);
}

} // namespace velorx

// SPDX-License-Identifier: MIT
#include "tools/velorx/features/MifFeatureReader.h"

#include "tools/velorx/features/FiniteFeature.h"
#include "tools/velorx/features/MifBrush.h"
#include "tools/velorx/features/MifPen.h"
#include "tools/velorx/features/MifShapes.h"
#include "tools/velorx/features/MifSymbol.h"
#include "tools/velorx/features/MifText.h"
#include "tools/velorx/features/RingOrder.h"

#include <QFileInfo>

#include <utility>

namespace velorx {

using namespace VelorExchange::mif;
using VelorExchange::CPoint2D;
using VelorExchange::CPoint3D;

namespace {

constexpr std::size_t kLeastLine = 2;
constexpr std::size_t kLeastRing = 3;
constexpr std::size_t kRectangle = 4; // corners
constexpr char kCurves[] = "curves, written in chords";

CFeatureLine PointsOf(const std::vector<CPoint2D>& points)
{
    CFeatureLine line;
    line.reserve(points.size());
    for (const CPoint2D& point : points) {
        line.push_back({point.x, point.y, 0.0});
    }
    return line;
}

// Tables close their rings by the first vertex or leave that to the reader.
CFeatureLine RingOf(const std::vector<CPoint2D>& points)
{
    CFeatureLine ring = PointsOf(points);
    if (ring.size() > 1 && ring.front().x == ring.back().x && ring.front().y == ring.back().y) {
        ring.pop_back();
    }
    return ring;
}

// Curves of endless size or sweep have become nothing.
bool HasShape(const SFeature& /*feature*/)
{
    return true;
}

bool HasShape(const SLineFeature& line)
{
    return !line.points.empty();
}

bool HasShape(const SAreaFeature& area)
{
    return !area.rings.front().empty();
}

} // namespace

CMifFeatureReader::CMifFeatureReader(const SMifFiles& files, QString layer,
                                     const SReadingOptions& readingOptions, IFeatureSink& target,
                                     CFeatureTally& counts)
    : rows(files.table, files.rows), tableLayer(std::move(layer)), chords(readingOptions.chord),
      progress(readingOptions.progress), sink(target), tally(counts),
      fileSize(QFileInfo(files.table).size())
{
}

// ---- What all objects have ----------------------------------------------------------------------

void CMifFeatureReader::LoseIf(bool isLost, const char* what, const QString& layer)
{
    if (isLost) {
        tally.Lose(QLatin1String(what), layer);
    }
}

void CMifFeatureReader::FillHead(SFeature& feature, const char* kind,
                                 const CAttributeHolderMIF& record)
{
    const SMifMeaning& meaning = attributes.Of(record.attributes);
    feature.kind = kind;
    feature.layer = meaning.layer.isEmpty() ? tableLayer : meaning.layer;
    feature.code = meaning.code;
    feature.attributes = meaning.attributes;
    if (!layersTold.contains(feature.layer)) {
        layersTold.insert(feature.layer);
        sink.TakeLayer({feature.layer});
    }
    if (meaning.lostDates > 0) {
        tally.Lose(QStringLiteral("dates that are not in a form that is read were left out"),
                   feature.layer, meaning.lostDates);
    }
    if (meaning.doubtful > 0) {
        tally.Lose(QStringLiteral("logical values that do not read \"true\" became false"),
                   feature.layer, meaning.doubtful);
    }
    if (meaning.shortened > 0) {
        tally.Lose(QStringLiteral("numbers of Float columns with seven digits or more, of which "
                                  "about seven are read"),
                   feature.layer, meaning.shortened);
    }
    tally.Read(kind);
}

void CMifFeatureReader::CountPen(const CPenMIF& pen, const QString& layer)
{
    LoseIf(HasMarks(pen), "pen patterns that only tables have, known by their numbers alone",
           layer);
}

// The library's own writer gives areas no pen. One without a fill too would be lost to the eye: it has
// an outline in the brush's colour.
void CMifFeatureReader::FillLook(SAreaFeature& area, const CPenMIF& pen, const CBrushMIF& brush)
{
    area.fill = FillOfBrush(brush);
    area.stroke = StrokeOfPen(pen);
    if (area.fill.kind == EFeatureFill::None && !area.stroke.isVisible) {
        area.stroke = SFeatureStroke();
        area.stroke.color = brush.foreColor;
    }
    CountPen(pen, area.layer);
    LoseIf(HasDots(brush), "brush patterns that only tables have, known by their numbers alone",
           area.layer);
}

// ---- Objects ------------------------------------------------------------------------------------

template <class TFeature>
void CMifFeatureReader::Deliver(const TFeature& feature)
{
    if (HasShape(feature) && IsFinite(feature)) {
        HandOn(feature, sink, tally);
    } else {
        tally.Lose(QLatin1String(feature.kind)
                       + QStringLiteral(", with a number that is none: left out"),
                   feature.layer);
    }
}

template <class TRecord>
void CMifFeatureReader::DeliverRing(const char* kind, const TRecord& record, CFeatureLine ring)
{
    rows.Deliver();
    SAreaFeature area;
    FillHead(area, kind, record);
    FillLook(area, record.pen, record.brush);
    LoseIf(ring.size() > kRectangle, kCurves, area.layer);
    area.rings.push_back(std::move(ring));
    Deliver(area);
}

void CMifFeatureReader::AddRoundRect(const CRoundRectMIF& rect)
{
    DeliverRing("RoundRect", rect, MifRoundRectRing(rect, chords));
}

void CMifFeatureReader::AddEllipse(const CRectMIF& rect)
{
    DeliverRing("Ellipse", rect, MifEllipseRing(rect, chords));
}

void CMifFeatureReader::AddRect(const CRectMIF& rect)
{
    DeliverRing("Rect", rect, MifRectRing(rect.corner1, rect.corner2));
}

void CMifFeatureReader::AddArc(const CArcMIF& arc)
{
    rows.Deliver();
    SLineFeature line;
    FillHead(line, "Arc", arc);
    line.points = MifArcLine(arc, chords);
    line.stroke = StrokeOfPen(arc.pen);
    CountPen(arc.pen, line.layer);
    LoseIf(true, kCurves, line.layer);
    Deliver(line);
}

void CMifFeatureReader::AddText(const CTextMIF& record)
{
    rows.Deliver();
    STextFeature text;
    FillHead(text, "Text", record);
    const SMifTextExtras extras = FillFromMifText(record, text);
    LoseIf(extras.hasEffects, "effects of letters (halo, shadow, wide letters)", text.layer);
    LoseIf(extras.hasBackground, "backgrounds of texts", text.layer);
    LoseIf(extras.hasLabelLine, "lines from texts to their places", text.layer);
    LoseIf(extras.hasNoSize, "texts without a size have a height of 1", text.layer);
    Deliver(text);
}

void CMifFeatureReader::AddPolyline(const CPolylineMIF& record)
{
    rows.Deliver();
    SLineFeature line;
    FillHead(line, "Pline", record);
    if (record.points.size() < kLeastLine) {
        LoseIf(true, "lines of a single vertex or none", line.layer);
        return;
    }
    line.points = PointsOf(record.points);
    line.stroke = StrokeOfPen(record.pen);
    CountPen(record.pen, line.layer);
    LoseIf(record.smooth, "smooth lines run straight from vertex to vertex", line.layer);
    Deliver(line);
}

void CMifFeatureReader::AddRegion(const CRegionMIF& record)
{
    if (rows.Deliver()) {
        region = {};
        FillHead(region, "Region", record);
        FillLook(region, record.pen, record.brush);
        LoseIf(record.center.x != 0.0 || record.center.y != 0.0, "centres of areas", region.layer);
    }
    CFeatureLine ring = RingOf(record.points);
    if (ring.size() < kLeastRing) {
        LoseIf(true, "rings of fewer than three vertices", region.layer);
    } else {
        region.rings.push_back(std::move(ring));
    }
}

void CMifFeatureReader::DeliverArea()
{
    if (!region.rings.empty()) {
        PutOutermostFirst(region.rings);
        Deliver(region);
        region.rings.clear();
    }
}

void CMifFeatureReader::AddPoint(const CPointMIF& record)
{
    rows.Deliver();
    SPointFeature point;
    FillHead(point, "Point", record);
    point.position = {record.position.x, record.position.y, 0.0};
    point.symbol = SymbolOfMif(record.symbol);
    LoseIf(HasPicture(record.symbol), "pictures of points", point.layer);
    LoseIf(record.symbol.style != 0, "effects of symbols (border, halo, shadow)", point.layer);
    Deliver(point);
}

// ---- Progress -----------------------------------------------------------------------------------

void CMifFeatureReader::SetProgressRange(int /*total*/)
{
    if (progress != nullptr) {
        progress->Begin(QString(), fileSize);
    }
}

void CMifFeatureReader::SetProgress(int position)
{
    DeliverArea();
    rows.Report(static_cast<quint32>(position));
    if (progress != nullptr) {
        progress->SetPosition(rows.Position());
    }
}

void CMifFeatureReader::Finish()
{
    if (chords.Coarse() > 0) {
        tally.Lose(QStringLiteral("curves in 10,000 chords each, which are coarser than asked for"),
                   QString(), chords.Coarse());
    }
    const qint64 left = rows.Left().value_or(0);
    if (left > 0) {
        tally.Remark(
            QStringLiteral(
                "Rows of the .mid that belong to no object: %1. Where the table has objects "
                "without geometry, attributes stand by the wrong objects behind them")
                .arg(left));
    }
}

} // namespace velorx

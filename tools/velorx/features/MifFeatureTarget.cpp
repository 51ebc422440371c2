// SPDX-License-Identifier: MIT
#include "tools/velorx/features/MifFeatureTarget.h"

#include "tools/velorx/features/LayerState.h"
#include "tools/velorx/features/MifAttributes.h"
#include "tools/velorx/features/MifBrush.h"
#include "tools/velorx/features/MifCodePage.h"
#include "tools/velorx/features/MifPen.h"
#include "tools/velorx/features/MifSymbol.h"
#include "tools/velorx/features/MifText.h"
#include "VelorExchange/foundation/FileError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cmath>

namespace velorx {

using namespace VelorExchange::mif;
using VelorExchange::CPoint2D;
using VelorExchange::CPoint3D;
using VelorExchange::FileError;

namespace {

constexpr std::size_t kLeastLine = 2;
constexpr std::size_t kLeastRing = 3;
constexpr double kFarthest = 1e15; // beyond which doubles have no decimals

bool IsInReach(const CPoint3D& point)
{
    return std::fabs(point.x) <= kFarthest && std::fabs(point.y) <= kFarthest;
}

std::vector<CPoint2D> InPlan(const CFeatureLine& line)
{
    std::vector<CPoint2D> points;
    points.reserve(line.size());
    for (const CPoint3D& point : line) {
        points.push_back({point.x, point.y});
    }
    return points;
}

} // namespace

CMifFeatureTarget::CMifFeatureTarget(const STargetOptions& targetOptions, CFeatureTally& counts)
    : options(targetOptions), tally(counts), isFolder(QFileInfo(options.path).isDir()),
      writer(CreateMIFWriter(nullptr), DeleteMIFWriter)
{
    writer->Init(&log);
    writer->SetPrecision(options.precision);
}

CMifFeatureTarget::~CMifFeatureTarget() = default;

void CMifFeatureTarget::TakeHead(const SFeatureHead& head)
{
    sourceName = head.name;
}

void CMifFeatureTarget::TakeLayer(const SFeatureLayer& layer)
{
    layersTold.append(layer.name);
    LoseLayerState(layer, tally);
}

// ---- What all features have ---------------------------------------------------------------------

void CMifFeatureTarget::LoseIf(bool isLost, const char* what, const SFeature& feature)
{
    if (isLost) {
        tally.Lose(QLatin1String(what), feature.layer);
    }
}

bool CMifFeatureTarget::AreInReach(const SFeature& feature, const CFeatureLine& points)
{
    const bool areInReach = std::all_of(points.begin(), points.end(), IsInReach);
    LoseIf(!areInReach, "objects with coordinates that are no numbers or beyond all maps", feature);
    return areInReach;
}

CMifFeatureTarget::STable& CMifFeatureTarget::TableOf(const QString& layer)
{
    std::shared_ptr<STable>& table = tables[isFolder ? layer : QString()];
    if (table == nullptr) {
        table = std::make_shared<STable>();
        table->name =
            isFolder ? names.Of(layer) : SafeFileName(QFileInfo(options.name).completeBaseName());
    }
    return *table;
}

const SMifRow& CMifFeatureTarget::RowOf(const SFeature& feature, STable& table)
{
    const bool isSame = hasRow && rowAttributes == feature.attributes && rowCode == feature.code
        && rowLayer == feature.layer;
    if (!isSame) {
        row = {};
        if (!isFolder) {
            table.columns.AddOwn(row, kMifLayerColumn, feature.layer);
        }
        if (feature.code != 0) {
            table.columns.AddOwn(row, kMifCodeColumn, feature.code);
        }
        if (feature.attributes != nullptr) {
            table.columns.Add(row, *feature.attributes);
        }
        RemarkOnColumns(table);
        hasRow = true;
        rowAttributes = feature.attributes;
        rowCode = feature.code;
        rowLayer = feature.layer;
    }
    return row;
}

// The library refuses a record that it cannot spool. Names and numbers are sound here, so that this is
// the only reason left.
template <class TRecord>
const char* CMifFeatureTarget::Write(const SFeature& feature, TRecord& record,
                                     bool (IMIFWriter::*add)(const TRecord&, const QString&),
                                     const char* as, SMifDetail detail)
{
    STable& table = TableOf(feature.layer);
    const SMifRow& attributes = RowOf(feature, table);
    record.attributes = attributes.attributes;
    if (!(writer.get()->*add)(record, table.name)) {
        FileError failure{QFile(QDir::tempPath())};
        failure.error = QFileDevice::OpenError;
        throw failure;
    }
    if (detail.hasPen || detail.justify != 0 || !detail.rings.empty()) {
        detail.object = table.objects;
        table.details.push_back(std::move(detail));
    }
    ++table.objects;
    CountRowLosses(attributes, feature.layer);
    LoseIf(feature.is3D, "objects lost their heights", feature);
    layers.insert(feature.layer);
    return as;
}

void CMifFeatureTarget::CountRowLosses(const SMifRow& attributes, const QString& layer)
{
    const std::pair<int, const char*> losses[] = {
        {attributes.cut, "attributes were cut to 254 letters"},
        {attributes.inOneLine, "attributes lost their line breaks"},
        {attributes.unknownLetters,
         "attributes have letters that the code page lacks (written as ?)"},
        {attributes.notFinite, "attributes that are no numbers"},
    };
    for (const auto& [count, what] : losses) {
        if (count > 0) {
            tally.Lose(QLatin1String(what), layer, count);
        }
    }
}

// ---- Kinds --------------------------------------------------------------------------------------

const char* CMifFeatureTarget::Take(const SPointFeature& point)
{
    if (!AreInReach(point, {point.position})) {
        return nullptr;
    }
    CPointMIF record;
    record.position = {point.position.x, point.position.y};
    SMifSymbolLosses losses;
    record.symbol = MifSymbolOf(point.symbol, losses);
    LoseIf(losses.hasAngle, "symbols of the standard set lost their angle", point);
    LoseIf(losses.hasSize, "symbols were too large", point);
    LoseIf(!FitsCodePage(record.symbol.font), "fonts have letters that the code page lacks", point);
    extents.Add(record.position);
    return Write(point, record, &IMIFWriter::AddPoint, "Point");
}

CPenMIF CMifFeatureTarget::PenOf(const SFeature& feature, const SFeatureStroke& stroke)
{
    const SMifPen pen = PenOfStroke(stroke);
    LoseIf(pen.isNearType, "line types became the nearest pattern of a pen", feature);
    LoseIf(pen.isCut, "lines are wider than any pen", feature);
    LoseIf(stroke.planWidth > 0.0, "widths of wide polylines", feature);
    return pen.pen;
}

const char* CMifFeatureTarget::Take(const SLineFeature& line)
{
    if (line.points.size() < kLeastLine) {
        LoseIf(true, "lines of a single vertex or none", line);
        return nullptr;
    }
    if (!AreInReach(line, line.points)) {
        return nullptr;
    }
    CPolylineMIF record;
    record.points = InPlan(line.points);
    record.pen = PenOf(line, line.stroke);
    for (const CPoint2D& point : record.points) {
        extents.Add(point);
    }
    return Write(line, record, &IMIFWriter::AddPolyline, "Pline");
}

const char* CMifFeatureTarget::Take(const SAreaFeature& area)
{
    const auto hasExtent = [](const CFeatureLine& ring) { return ring.size() >= kLeastRing; };
    if (std::none_of(area.rings.begin(), area.rings.end(), hasExtent)) {
        LoseIf(true, "areas of fewer than three vertices", area);
        return nullptr;
    }
    for (const CFeatureLine& ring : area.rings) {
        if (!AreInReach(area, ring)) {
            return nullptr;
        }
    }
    const SMifBrush brush = BrushOfFill(area.fill);
    LoseIf(brush.isNearPattern, "hatch patterns became the nearest pattern of a brush", area);
    CRegionMIF record;
    record.brush = brush.brush;
    SMifDetail detail;
    detail.hasPen = area.stroke.isVisible;
    detail.pen = detail.hasPen ? PenOf(area, area.stroke) : CPenMIF();
    for (const CFeatureLine& ring : area.rings) {
        const std::vector<CPoint2D> points = InPlan(ring);
        record.points.insert(record.points.end(), points.begin(), points.end());
        detail.rings.push_back(static_cast<qint64>(points.size()));
    }
    if (detail.rings.size() == 1) {
        detail.rings.clear();
    }
    for (const CPoint2D& point : record.points) {
        extents.Add(point);
    }
    return Write(area, record, &IMIFWriter::AddRegion, "Region", std::move(detail));
}

const char* CMifFeatureTarget::Take(const STextFeature& text)
{
    if (text.text.trimmed().isEmpty()) {
        LoseIf(true, "texts without letters", text);
        return nullptr;
    }
    SMifTextLosses losses;
    CTextMIF record = MifTextOf(text, losses);
    const CFeatureLine corners = {{record.corner1.x, record.corner1.y, 0.0},
                                  {record.corner2.x, record.corner2.y, text.rotation}};
    if (!std::isfinite(text.rotation) || !AreInReach(text, corners)) {
        LoseIf(!std::isfinite(text.rotation), "texts with an angle that is no number", text);
        return nullptr;
    }
    LoseIf(losses.hasShape, "widths and slants of letters", text);
    LoseIf(losses.hasColumn, "texts that are broken at a width run on in one line", text);
    LoseIf(losses.hasBackslashN, "texts with the characters \\n show a line break", text);
    LoseIf(!FitsCodePage(record.text), "texts have letters that the code page lacks (written as ?)",
           text);
    LoseIf(!FitsCodePage(record.font.name), "fonts have letters that the code page lacks", text);
    extents.Add(record.corner1);
    extents.Add(record.corner2);
    SMifDetail detail;
    detail.justify = record.justify;
    return Write(text, record, &IMIFWriter::AddText, "Text", std::move(detail));
}

const char* CMifFeatureTarget::Take(const SImageFeature& image)
{
    LoseIf(true, "images", image);
    return nullptr;
}

} // namespace velorx

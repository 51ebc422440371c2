// SPDX-License-Identifier: MIT
#include "tools/velorx/features/MifFeatureTarget.h"

#include "tools/velorx/features/AreaParts.h"
#include "tools/velorx/features/MifAttributes.h"
#include "tools/velorx/features/MifBrush.h"
#include "tools/velorx/features/MifCodePage.h"
#include "tools/velorx/features/MifPen.h"
#include "tools/velorx/features/MifSymbol.h"
#include "tools/velorx/features/MifText.h"
#include "tools/velorx/features/RingBridge.h"
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
    if (!layer.isVisible) {
        tally.Lose(QStringLiteral("hidden layers are shown"), layer.name);
    }
}

// ---- What all features have ---------------------------------------------------------------------

void CMifFeatureTarget::LoseIf(bool isLost, const char* what, const SFeature& feature, qint64 count)
{
    if (isLost) {
        tally.Lose(QLatin1String(what), feature.layer, count);
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
                                     const char* as)
{
    STable& table = TableOf(feature.layer);
    const SMifRow& attributes = RowOf(feature, table);
    record.attributes = attributes.attributes;
    if (!(writer.get()->*add)(record, table.name)) {
        FileError failure{QFile(QDir::tempPath())};
        failure.error = QFileDevice::OpenError;
        throw failure;
    }
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

const char* CMifFeatureTarget::Take(const SLineFeature& line)
{
    if (line.points.size() < kLeastLine) {
        LoseIf(true, "lines of a single vertex or none", line);
        return nullptr;
    }
    if (!AreInReach(line, line.points)) {
        return nullptr;
    }
    const SMifPen pen = PenOfStroke(line.stroke);
    LoseIf(pen.isNearType, "line types became the nearest pattern of a pen", line);
    LoseIf(pen.isCut, "lines are wider than any pen", line);
    LoseIf(line.stroke.planWidth > 0.0, "widths of wide polylines", line);
    CPolylineMIF record;
    record.points = InPlan(line.points);
    record.pen = pen.pen;
    for (const CPoint2D& point : record.points) {
        extents.Add(point);
    }
    return Write(line, record, &IMIFWriter::AddPolyline, "Pline");
}

void CMifFeatureTarget::CountAreaLosses(const SAreaFeature& area)
{
    const bool isFilled = area.fill.kind != EFeatureFill::None;
    LoseIf(area.stroke.isVisible && isFilled, "areas lost their outlines (the library writes none)",
           area);
    LoseIf(area.stroke.isVisible && !isFilled,
           "areas without a fill lost their outlines too and show nothing", area);
}

// Each outline with its holes is a region of one ring, since the library writes no others.
void CMifFeatureTarget::WriteParts(const SAreaFeature& area, const CBrushMIF& brush)
{
    qint64 joined = 0;
    qint64 written = 0;
    for (const SAreaPart& part : AreaParts(area.rings)) {
        if (part.outline->size() < kLeastRing) {
            continue;
        }
        std::vector<CFeatureLine> holes;
        for (const CFeatureLine* hole : part.holes) {
            if (hole->size() >= kLeastRing) {
                holes.push_back(*hole);
            }
        }
        joined += static_cast<qint64>(holes.size());
        CRegionMIF record;
        record.points = InPlan(JoinHoles(*part.outline, std::move(holes)));
        record.brush = brush;
        for (const CPoint2D& point : record.points) {
            extents.Add(point);
        }
        Write(area, record, &IMIFWriter::AddRegion, "Region");
        if (written++ > 0) {
            tally.Wrote(area.kind, "Region"); // the caller counts the first
        }
    }
    LoseIf(joined > 0, "holes are joined to their areas by a cut", area, joined);
    LoseIf(written > 1, "parts of areas became regions of their own", area, written);
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
    const SMifBrush brush = BrushOfFill(area.fill, area.stroke);
    CountAreaLosses(area);
    LoseIf(brush.isNearPattern, "hatch patterns became the nearest pattern of a brush", area);
    WriteParts(area, brush.brush);
    return "Region";
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
    LoseIf(losses.hasAlignment, "texts that are not aligned to the left are so now", text);
    LoseIf(losses.hasShape, "widths and slants of letters", text);
    LoseIf(losses.hasColumn, "texts that are broken at a width run on in one line", text);
    LoseIf(losses.hasBackslashN, "texts with the characters \\n show a line break", text);
    LoseIf(!FitsCodePage(record.text), "texts have letters that the code page lacks (written as ?)",
           text);
    LoseIf(!FitsCodePage(record.font.name), "fonts have letters that the code page lacks", text);
    extents.Add(record.corner1);
    extents.Add(record.corner2);
    return Write(text, record, &IMIFWriter::AddText, "Text");
}

const char* CMifFeatureTarget::Take(const SImageFeature& image)
{
    LoseIf(true, "images", image);
    return nullptr;
}

} // namespace velorx

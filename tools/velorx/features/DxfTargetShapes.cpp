// SPDX-License-Identifier: MIT
// Points, lines, areas and images.
#include "tools/velorx/features/DxfFeatureTarget.h"
#include "tools/velorx/features/DxfPatternLines.h"
#include "tools/velorx/features/DxfTargetLosses.h"
#include "tools/velorx/features/FeatureTally.h"
#include "tools/velorx/features/FiniteFeature.h"
#include "tools/velorx/formats/DrawingText.h"

#include <algorithm>
#include <cmath>

namespace velorx {

using namespace VelorExchange::dxf;
using VelorExchange::CPoint2D;
using VelorExchange::CPoint3D;

namespace {

constexpr double kSkewed = 1e-6; // cosine of an angle that still counts as a right one

bool IsLevel(const CFeatureLine& line)
{
    return std::all_of(line.begin(), line.end(),
                       [&line](const CPoint3D& p) { return p.z == line.front().z; });
}

bool HasHeights(const SAreaFeature& area)
{
    return std::any_of(area.rings.begin(), area.rings.end(), [](const CFeatureLine& ring) {
        return std::any_of(ring.begin(), ring.end(), [](const CPoint3D& p) { return p.z != 0; });
    });
}

bool HasSymbol(const SFeatureSymbol& symbol)
{
    return symbol.shape != 0 || !symbol.font.isEmpty() || symbol.size != 0 || symbol.angle != 0;
}

// A ring for the writer, where the third coordinate is the bulge.
std::vector<CPoint3D> Outline(const CFeatureLine& ring)
{
    std::vector<CPoint3D> outline = ring;
    for (CPoint3D& vertex : outline) {
        vertex.z = 0.0;
    }
    return outline;
}

CFeatureLine Closed(const CFeatureLine& ring)
{
    CFeatureLine closed = ring;
    closed.push_back(ring.front());
    return closed;
}

double Product(const CPoint2D& a, const CPoint2D& b)
{
    return a.x * b.x + a.y * b.y;
}

} // namespace

const char* CDxfFeatureTarget::Take(const SPointFeature& point)
{
    if (HasSymbol(point.symbol)) {
        Changed(losses::kSymbols, point.layer);
    }
    SFeatureStroke stroke;
    stroke.color = point.symbol.color;
    CPointDXF record;
    const CEntityDXF head = Head(point, stroke);
    record.layer = head.layer;
    record.color = head.color;
    record.point = point.position;
    WriteData(point, point.position);
    return Result(writer->AddPoint(record), point, "POINT");
}

const char* CDxfFeatureTarget::Take(const SLineFeature& line)
{
    hasData = false;
    if (line.points.size() < 2 || !IsFinite(line)) {
        return Result(false, line, nullptr);
    }
    WriteData(line, line.points.front());
    const char* as = nullptr;
    const bool isWritten = WriteLine(line, as);
    return Result(isWritten, line, as);
}

// Between two points a line keeps its heights and all its looks but the width in the plan, on one height all
// of them, and in space neither width nor line type.
bool CDxfFeatureTarget::WriteLine(const SLineFeature& line, const char*& as)
{
    const CEntityDXF head = Head(line, line.stroke);
    if (line.points.size() == 2 && (line.stroke.planWidth == 0 || !IsLevel(line.points))) {
        return WriteSegment(line, head, as);
    }
    if (IsLevel(line.points)) {
        CLWPolylineDXF record;
        static_cast<CEntityDXF&>(record) = head;
        for (const CPoint3D& point : line.points) {
            record.vertices.push_back({{point.x, point.y, 0.0}, 0.0});
        }
        record.width = line.stroke.planWidth;
        record.elevation = line.points.front().z;
        as = "LWPOLYLINE";
        return writer->AddPolyline(record);
    }
    if (line.stroke.planWidth != 0) {
        Changed(losses::kSpaceWidths, line.layer);
    }
    if (line.stroke.lineType != nullptr) {
        Changed(losses::kSpaceLineTypes, line.layer);
    }
    CPolylineDXF record;
    static_cast<CEntityDXF&>(record) = head;
    for (const CPoint3D& point : line.points) {
        record.vertices.push_back({point, 0.0});
    }
    as = "POLYLINE";
    return writer->Add3DPolyline(record);
}

bool CDxfFeatureTarget::WriteSegment(const SLineFeature& line, const CEntityDXF& head,
                                     const char*& as)
{
    if (line.stroke.planWidth != 0) {
        Changed(losses::kSpaceWidths, line.layer);
    }
    CLineDXF record;
    static_cast<CEntityDXF&>(record) = head;
    record.start = line.points.front();
    record.end = line.points.back();
    as = "LINE";
    return writer->AddLine(record);
}

const char* CDxfFeatureTarget::Take(const SAreaFeature& area)
{
    hasData = false;
    const auto isLine = [](const CFeatureLine& ring) { return ring.size() < 2; };
    if (area.rings.empty() || !IsFinite(area)
        || std::any_of(area.rings.begin(), area.rings.end(), isLine))
    {
        return Result(false, area, nullptr);
    }
    const bool isFilled = area.fill.kind != EFeatureFill::None;
    const bool isOutlined = !isFilled || area.stroke.isVisible;
    if (!isFilled && !area.stroke.isVisible) {
        Changed(losses::kUnseenAreas, area.layer);
    }
    const int outlines = static_cast<int>(area.rings.size()) - (isFilled ? 0 : 1);
    WriteData(area, area.rings.front().front(), isOutlined ? outlines : 0);
    if (isFilled && !WriteFill(area)) {
        return Result(false, area, nullptr);
    }
    const bool isWritten = !isOutlined || WriteOutlines(area);
    return Result(isWritten, area,
                  !isFilled        ? "closed polyline"
                      : isOutlined ? "HATCH with outline"
                                   : "HATCH");
}

bool CDxfFeatureTarget::WriteFill(const SAreaFeature& area)
{
    SFeatureStroke stroke;
    stroke.color = area.fill.color;
    const CEntityDXF head = Head(area, stroke);
    CHatchDXF hatch;
    hatch.layer = head.layer;
    hatch.color = head.color;
    hatch.outline = Outline(area.rings.front());
    for (std::size_t i = 1; i < area.rings.size(); ++i) {
        hatch.markedBoundaries.push_back(Outline(area.rings[i]));
    }
    if (area.fill.kind == EFeatureFill::Pattern) {
        const QString name = area.fill.pattern.trimmed();
        const bool isName = !name.isEmpty() && name.compare("SOLID", Qt::CaseInsensitive) != 0;
        hatch.style.name = isName ? name : QStringLiteral("LINE");
        hatch.style.lines = PatternLines(area.fill, area.rings.front());
        hatch.style.isDouble = area.fill.isDouble;
        hatch.angle = area.fill.angle;
        if (!HasLinesToDraw(area.fill, area.rings.front())) {
            Changed(losses::kPatterns, area.layer);
        }
        if (area.fill.hasBackground) {
            Changed(losses::kBackgrounds, area.layer);
        }
    }
    if (HasHeights(area)) {
        Changed(losses::kHatchHeights, area.layer);
    }
    return writer->AddHatch(hatch);
}

bool CDxfFeatureTarget::WriteOutlines(const SAreaFeature& area)
{
    SLineFeature line;
    static_cast<SFeature&>(line) = area;
    line.stroke = area.stroke;
    bool areWritten = true;
    for (const CFeatureLine& ring : area.rings) {
        const char* as = nullptr;
        line.points = Closed(ring);
        areWritten = WriteLine(line, as) && areWritten;
    }
    return areWritten;
}

// Each image gets a definition of its own, and so needs a name of its own. The writer tells the size of
// the picture in its definition alone: a clip around all of it tells it to programs that look no further.
const char* CDxfFeatureTarget::Take(const SImageFeature& image)
{
    constexpr double kHalf = 0.5;
    hasData = false;
    CImageDXF record;
    const double width = std::hypot(image.along.x, image.along.y);
    const double height = std::hypot(image.across.x, image.across.y);
    if (!IsFinite(image) || !(width > 0) || !(height > 0)) {
        return Result(false, image, nullptr);
    }
    bool isWhole = true;
    record.layer = layerNames.Of(image.layer);
    record.name = writer->MakeImageName(image.name);
    record.filePath = TextForDrawing(image.path, isWhole);
    record.origin = image.origin;
    record.rotation = std::atan2(image.along.y, image.along.x);
    record.widthPixels = image.widthPixels > 0 ? image.widthPixels : 1.0;
    record.heightPixels = image.heightPixels > 0 ? image.heightPixels : 1.0;
    record.scaleX = width / record.widthPixels;
    record.scaleY = height / record.heightPixels;
    for (const CPoint2D& corner : image.clip) {
        const CPoint2D from{corner.x - image.origin.x, corner.y - image.origin.y};
        const double right = Product(from, image.along) / (width * width);
        const double up = Product(from, image.across) / (height * height);
        record.clip.push_back(
            {right * record.widthPixels - kHalf, (1 - up) * record.heightPixels - kHalf, 0.0});
    }
    if (image.clip.empty()) {
        record.clip = {{-kHalf, -kHalf, 0.0},
                       {record.widthPixels - kHalf, record.heightPixels - kHalf, 0.0}};
    }
    const bool isMirrored = image.along.x * image.across.y < image.along.y * image.across.x;
    if (isMirrored || std::fabs(Product(image.along, image.across)) > kSkewed * width * height) {
        Changed(losses::kSkewedImages, image.layer);
    }
    if (image.attributes != nullptr || image.code != 0) {
        Changed(losses::kImageData, image.layer);
    }
    return Result(writer->AddImage(record), image, "IMAGE");
}

} // namespace velorx

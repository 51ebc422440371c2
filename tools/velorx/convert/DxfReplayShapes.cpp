// SPDX-License-Identifier: MIT
// Lines, curves and areas.
#include "tools/velorx/convert/DxfReplay.h"
#include "tools/velorx/formats/DrawingText.h"
#include "tools/velorx/formats/DxfCurves.h"
#include "tools/velorx/formats/DxfHatchOutlines.h"

#include <algorithm>
#include <cmath>

namespace velorx {

using namespace VelorExchange::dxf;
using VelorExchange::CPoint3D;

namespace {

constexpr double kDegree = 3.141592653589793 / 180.0;
constexpr double kTwoPi = 6.283185307179586;

bool IsLevel(const std::vector<CVertexDXF>& vertices)
{
    return std::all_of(vertices.begin(), vertices.end(), [&vertices](const CVertexDXF& vertex) {
        return vertex.point.z == vertices.front().point.z;
    });
}

// The writer closes what ends where it starts.
void Close(std::vector<CVertexDXF>& vertices, bool isClosed)
{
    if (isClosed && !vertices.empty()) {
        vertices.push_back({vertices.front().point, 0.0});
    }
}

double FiniteWidth(double width)
{
    return std::isfinite(width) ? width : 0.0; // the reader's mean over no segments
}

} // namespace

bool CDxfReplay::OnPoint(const CPointDXF& record)
{
    CPointDXF point = record;
    AdaptLayer(point.layer);
    return Count(kPoint, writer.AddPoint(point));
}

bool CDxfReplay::OnLine(const CLineDXF& record)
{
    CLineDXF line = record;
    AdaptHead(line);
    return Count(kLine, writer.AddLine(line));
}

bool CDxfReplay::OnXLine(const CXLineDXF& record)
{
    CXLineDXF line = record;
    AdaptHead(line);
    tally.Lose(EDxfLoss::Heights, record.originZ == 0.0 ? 0 : 1);
    return Count(kXLine, writer.AddXLine(line));
}

bool CDxfReplay::OnRay(const CRayDXF& record)
{
    CXLineDXF line;
    static_cast<CEntityDXF&>(line) = record;
    AdaptHead(line);
    line.origin = {record.origin.x, record.origin.y};
    line.direction = {record.direction.x, record.direction.y};
    const bool isWritten = writer.AddXLine(line);
    tally.Lose(EDxfLoss::Rays, isWritten ? 1 : 0);
    return Count(kRay, isWritten, EntityName(kXLine));
}

bool CDxfReplay::OnArc(const CArcDXF& record)
{
    CArcDXF arc = record;
    AdaptHead(arc);
    const EDxfKind kind = KindOf(record);
    arc.startAngle = kind == kCircle ? 0.0 : record.startAngle * kDegree;
    arc.endAngle = kind == kCircle ? kTwoPi : record.endAngle * kDegree;
    const bool isWritten = writer.AddArc(arc);
    tally.Lose(EDxfLoss::Arcs, isWritten && kind == kCircle ? 1 : 0);
    return Count(kind, isWritten, EntityName(kArc));
}

bool CDxfReplay::OnEllipse(const CEllipseDXF& record)
{
    CSplineDXF spline = SplineOf(record);
    AdaptHead(spline);
    const bool isWritten = !spline.controlPoints.empty() && writer.AddSpline(spline);
    tally.Lose(EDxfLoss::Ellipses, isWritten ? 1 : 0);
    return Count(kEllipse, isWritten, EntityName(kSpline));
}

bool CDxfReplay::OnSpline(const CSplineDXF& record)
{
    CSplineDXF spline = record;
    AdaptHead(spline);
    const ECubic made = MakeCubic(spline);
    const bool isWritten = made != ECubic::Impossible && writer.AddSpline(spline);
    tally.Lose(EDxfLoss::SplineDegrees, isWritten && made == ECubic::Raised ? 1 : 0);
    tally.Lose(EDxfLoss::SplineFits, isWritten && made == ECubic::Fitted ? 1 : 0);
    return Count(kSpline, isWritten);
}

// The height of a vertex is that of the polyline; the reader's closing vertex has a bulge there.
bool CDxfReplay::OnLWPolyline(const CLWPolylineDXF& record)
{
    CLWPolylineDXF polyline = record;
    AdaptHead(polyline);
    polyline.width = FiniteWidth(record.width);
    for (CVertexDXF& vertex : polyline.vertices) {
        vertex.point.z = 0.0;
    }
    return Count(kLWPolyline, writer.AddPolyline(polyline));
}

bool CDxfReplay::OnPolyline(const CPolylineDXF& record)
{
    if (record.is2D && IsLevel(record.vertices)) {
        return WriteAsPlanPolyline(record);
    }
    CPolylineDXF polyline = record;
    return WriteAsSpacePolyline(polyline);
}

bool CDxfReplay::WriteAsPlanPolyline(const CPolylineDXF& polyline)
{
    CLWPolylineDXF plan;
    static_cast<CEntityDXF&>(plan) = polyline;
    AdaptHead(plan);
    plan.width = FiniteWidth(polyline.width);
    plan.vertices = polyline.vertices;
    plan.elevation = plan.vertices.empty() ? 0.0 : plan.vertices.front().point.z;
    for (CVertexDXF& vertex : plan.vertices) {
        vertex.point.z = 0.0;
    }
    Close(plan.vertices, polyline.closed);
    const bool isWritten = writer.AddPolyline(plan);
    tally.Lose(EDxfLoss::Polylines2D, isWritten ? 1 : 0);
    return Count(kPolyline, isWritten, EntityName(kLWPolyline));
}

bool CDxfReplay::WriteAsSpacePolyline(CPolylineDXF& polyline)
{
    AdaptHead(polyline);
    DropLineType(polyline);
    Close(polyline.vertices, polyline.closed);
    const bool isWritten = writer.Add3DPolyline(polyline);
    tally.Lose(EDxfLoss::PolylineHeights, isWritten && polyline.is2D ? 1 : 0);
    return Count(kPolyline, isWritten);
}

bool CDxfReplay::On3DFace(const C3DFaceDXF& record)
{
    C3DFaceDXF face = record;
    AdaptHead(face);
    return Count(k3DFace, writer.Add3DFace(face));
}

// Corners stand crosswise, and the first comes again at the end.
bool CDxfReplay::OnSolid(const CSolidDXF& record)
{
    CHatchDXF hatch;
    hatch.layer = record.layer;
    AdaptLayer(hatch.layer);
    hatch.color = record.color;
    hatch.outline = record.points;
    if (hatch.outline.size() > 1) {
        hatch.outline.pop_back();
    }
    if (hatch.outline.size() == 4) {
        std::swap(hatch.outline[2], hatch.outline[3]);
    }
    for (CPoint3D& corner : hatch.outline) {
        corner.z = 0.0;
    }
    const bool isWritten = writer.AddHatch(hatch);
    tally.Lose(EDxfLoss::Solids, isWritten ? 1 : 0);
    return Count(kSolid, isWritten, EntityName(kHatch));
}

bool CDxfReplay::OnHatch(const CHatchDXF& record)
{
    CHatchDXF hatch;
    hatch.layer = record.layer;
    AdaptLayer(hatch.layer);
    hatch.color = record.color;
    hatch.angle = record.angle * kDegree;
    hatch.style = record.style;
    SHatchRings boundaries = RingsOf(record, writer.GetTolerance());
    const bool isSolid =
        record.style.name.compare(QLatin1String("SOLID"), Qt::CaseInsensitive) == 0;
    if (!boundaries.rings.empty()) {
        hatch.outline = boundaries.rings.front();
        boundaries.rings.erase(boundaries.rings.begin());
        hatch.markedBoundaries = std::move(boundaries.rings);
        hatch.style.lines =
            isSolid ? std::vector<CHatchLineDXF>() : PlainLines(record, hatch.outline);
    }
    const bool isWritten = writer.AddHatch(hatch);
    tally.Lose(EDxfLoss::HatchPatterns, isWritten && !isSolid ? 1 : 0);
    tally.Lose(EDxfLoss::HatchCurves, isWritten ? boundaries.curvedEdges : 0);
    tally.Lose(EDxfLoss::HatchBoundaries, isWritten ? boundaries.dropped : 0);
    tally.Lose(EDxfLoss::Heights, isWritten && record.elevation != 0 ? 1 : 0);
    return Count(kHatch, isWritten);
}

bool CDxfReplay::OnMLine(const CMLineDXF& record)
{
    CMLineDXF mline = record;
    AdaptLayer(mline.layer);
    auto style = mlineStyles.constFind(record.style.name);
    if (style == mlineStyles.constEnd()) {
        const CMLineStyleGroups* groups = survey.MLineStyle(record.style.name);
        const auto lineType = [this](const QString& name) {
            CLineStyleDXF target;
            target.name = lineTypeNames.Of(name);
            writer.AddLineStyle(target);
            return target.name;
        };
        style = mlineStyles.insert(record.style.name,
                                   MakeMLineStyle(mlineStyleNames.Of(record.style.name),
                                                  groups != nullptr ? *groups : CMLineStyleGroups(),
                                                  survey.MLineScale(record.style.name), lineType));
    }
    mline.style = *style;
    const bool isWritten = writer.AddMLine(mline);
    const bool isKnown = survey.MLineStyle(record.style.name) != nullptr;
    tally.Lose(EDxfLoss::MLineStyles, isWritten && !isKnown ? 1 : 0);
    tally.Lose(EDxfLoss::MLineColours, isWritten ? 1 : 0);
    return Count(kMLine, isWritten);
}

// Each image gets a definition of its own, and so needs a name of its own. The writer tells the size of
// the picture in its definition alone: a clip around all of it tells it to programs that look no further.
bool CDxfReplay::OnImage(const CImageDXF& record)
{
    CImageDXF image = record;
    AdaptLayer(image.layer);
    image.name = writer.MakeImageName(record.name);
    if (image.clip.empty() && image.widthPixels > 0 && image.heightPixels > 0) {
        constexpr double kHalfPixel = 0.5;
        image.clip = {{-kHalfPixel, -kHalfPixel, 0.0},
                      {image.widthPixels - kHalfPixel, image.heightPixels - kHalfPixel, 0.0}};
    }
    bool isWhole = true;
    image.filePath = TextForDrawing(record.filePath, isWhole);
    return Count(kImage, writer.AddImage(image));
}

} // namespace velorx

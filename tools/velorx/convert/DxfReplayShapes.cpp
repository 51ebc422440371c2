// SPDX-License-Identifier: MIT
// Points, lines and curves.
#include "tools/velorx/convert/DxfReplay.h"
#include "tools/velorx/formats/DxfCurves.h"
#include "VelorExchange/foundation/Point.h"

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

// The reader's and the writer's test, without heights.
bool Coincide(const CPoint3D& a, const CPoint3D& b)
{
    constexpr double kNearSquared = 1e-8;
    const double dx = a.x - b.x;
    const double dy = a.y - b.y;
    return dx * dx + dy * dy < kNearSquared;
}

// The writer closes what ends where it starts.
void Close(std::vector<CVertexDXF>& vertices, bool isClosed)
{
    const bool isOpen = !vertices.empty()
        && (!Coincide(vertices.front().point, vertices.back().point)
            || vertices.front().point.z != vertices.back().point.z);
    if (isClosed && isOpen) {
        vertices.push_back({vertices.front().point, 0.0});
    }
}

// The reader's closing vertex stands beside a last one that repeats the first, where the first has a bulge.
void DropSecondEnd(std::vector<CVertexDXF>& vertices)
{
    const std::size_t count = vertices.size();
    if (count > 2 && Coincide(vertices[count - 1].point, vertices[count - 2].point)) {
        vertices.pop_back();
        vertices.back().bulge = 0.0;
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
    Adapt(point.layer, point.color);
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
    return Count(kXLine, writer.AddXLine(line));
}

bool CDxfReplay::OnRay(const CRayDXF& record)
{
    CXLineDXF line;
    static_cast<CEntityDXF&>(line) = record;
    AdaptHead(line);
    line.origin = {record.origin.x, record.origin.y};
    line.direction = {record.direction.x, record.direction.y};
    Note(EDxfLoss::Rays);
    return Count(kRay, writer.AddXLine(line), EntityName(kXLine));
}

bool CDxfReplay::OnArc(const CArcDXF& record)
{
    CArcDXF arc = record;
    AdaptHead(arc);
    const EDxfKind kind = KindOf(record);
    arc.startAngle = kind == kCircle ? 0.0 : record.startAngle * kDegree;
    arc.endAngle = kind == kCircle ? kTwoPi : record.endAngle * kDegree;
    Note(EDxfLoss::Arcs, kind == kCircle);
    return Count(kind, writer.AddArc(arc), EntityName(kArc));
}

bool CDxfReplay::OnEllipse(const CEllipseDXF& record)
{
    CSplineDXF spline = SplineOf(record);
    AdaptHead(spline);
    Note(EDxfLoss::Ellipses);
    const bool isWritten = !spline.controlPoints.empty() && writer.AddSpline(spline);
    return Count(kEllipse, isWritten, EntityName(kSpline));
}

bool CDxfReplay::OnSpline(const CSplineDXF& record)
{
    CSplineDXF spline = record;
    AdaptHead(spline);
    const ECubic made = MakeCubic(spline);
    Note(EDxfLoss::SplineDegrees, made == ECubic::Raised);
    Note(EDxfLoss::SplineFits, made == ECubic::Fitted);
    return Count(kSpline, made != ECubic::Impossible && writer.AddSpline(spline));
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
    DropSecondEnd(polyline.vertices);
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
    Note(EDxfLoss::Polylines2D);
    return Count(kPolyline, writer.AddPolyline(plan), EntityName(kLWPolyline));
}

bool CDxfReplay::WriteAsSpacePolyline(CPolylineDXF& polyline)
{
    AdaptHead(polyline);
    Note(EDxfLoss::LineTypesDropped, polyline.lineStyle.name != QLatin1String("CONTINUOUS"));
    Note(EDxfLoss::PolylineHeights, polyline.is2D);
    Close(polyline.vertices, polyline.closed);
    return Count(kPolyline, writer.Add3DPolyline(polyline));
}

} // namespace velorx

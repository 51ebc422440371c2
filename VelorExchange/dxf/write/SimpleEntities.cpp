// SPDX-License-Identifier: MIT
// One operation an entity: place its points, refuse what is not finite, write.
#include "VelorExchange/dxf/write/Angles_p.h"
#include "VelorExchange/dxf/write/DXFWriterImpl_p.h"
#include "VelorExchange/dxf/write/Finite_p.h"
#include "VelorExchange/dxf/write/Texts_p.h"

#include <cmath>

namespace VelorExchange::dxf {

// A whole circle is an arc too.
bool CDXFWriterImpl::AddArc(const CArcDXF& record)
{
    const CPoint3D center = Placed(record.center);
    const double start = DegreesOf(record.startAngle);
    const double end = DegreesOf(record.endAngle);
    CLineStylePlan plan;
    if (!AreFinite(center, record.radius, start, end) || !PlanHead(record, plan)) {
        return false;
    }
    WriteEntityHead(record, plan, "AcDbCircle", "ARC");
    WritePoint(10, center);
    output.WriteReal(40, record.radius);
    output.WriteTag(100, "AcDbArc");
    output.WriteReal(50, start);
    output.WriteReal(51, end);
    return true;
}

bool CDXFWriterImpl::AddLine(const CLineDXF& record)
{
    const CPoint3D start = Placed(record.start);
    const CPoint3D end = Placed(record.end);
    CLineStylePlan plan;
    if (!AreFinite(start, end) || !PlanHead(record, plan)) {
        return false;
    }
    WriteEntityHead(record, plan, "AcDbLine", "LINE");
    WritePoint(10, start);
    WritePoint(11, end);
    return true;
}

// Neither the height nor the context's transformation of the direction plays a part.
bool CDXFWriterImpl::AddXLine(const CXLineDXF& record)
{
    const CPoint2D origin = Placed(record.origin);
    const CPoint2D direction = DirectionOf(std::atan2(record.direction.y, record.direction.x));
    CLineStylePlan plan;
    if (!AreFinite(origin, direction) || !AreFinite(record.direction) || !PlanHead(record, plan)) {
        return false;
    }
    WriteEntityHead(record, plan, "AcDbXline", "XLINE");
    WritePoint(10, origin);
    WritePoint(11, direction);
    return true;
}

bool CDXFWriterImpl::Add3DFace(const C3DFaceDXF& record)
{
    std::array<CPoint3D, 4> corners;
    CFiniteCheck check;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        corners[i] = Placed(record.corners[i]);
        check << corners[i];
    }
    CLineStylePlan plan;
    if (!check.IsPassed() || !PlanHead(record, plan)) {
        return false;
    }
    WriteEntityHead(record, plan, "AcDbFace", "3DFACE");
    int code = 10;
    for (const CPoint3D& corner : corners) {
        WritePoint(code++, corner);
    }
    output.WriteTag(70, 0);
    Count(texts::Faces());
    return true;
}

bool CDXFWriterImpl::AddSpline(const CSplineDXF& record)
{
    constexpr int kDegree = 3;
    std::vector<CPoint3D> points;
    points.reserve(record.controlPoints.size());
    CFiniteCheck check;
    for (const CPoint3D& point : record.controlPoints) {
        points.push_back(Placed(point));
        check << points.back();
    }
    for (const double knot : record.knots) {
        check << knot;
    }
    CLineStylePlan plan;
    if (!check.IsPassed() || !PlanHead(record, plan)) {
        return false;
    }
    WriteEntityHead(record, plan, "AcDbSpline", "SPLINE");
    output.WriteTag(71, kDegree);
    output.WriteTag(72, static_cast<int>(record.knots.size()));
    output.WriteTag(73, static_cast<int>(points.size()));
    for (const double knot : record.knots) {
        output.WriteReal(40, knot);
    }
    for (const CPoint3D& point : points) {
        WritePoint(10, point);
    }
    return true;
}

// A point has neither line style nor line weight.
bool CDXFWriterImpl::AddPoint(const CPointDXF& record)
{
    const CPoint3D point = Placed(record.point);
    if (!AreFinite(point)) {
        return false;
    }
    WriteStart("POINT", Layer(record.layer));
    WriteColor(record.color);
    output.WriteTag(100, "AcDbPoint");
    WritePoint(10, point);
    Count(texts::Points());
    return true;
}

} // namespace VelorExchange::dxf

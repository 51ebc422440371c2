// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/read/BlockExpander_p.h"

#include "VelorExchange/dxf/read/Angles_p.h"
#include "VelorExchange/dxf/read/VertexList_p.h"

#include <cmath>
#include <utility>

namespace VelorExchange::dxf {

namespace {

constexpr double kFullTurn = 360.0;

bool IsByBlock(const CLineStyleDXF& style)
{
    return style.name.compare(QLatin1String("BYBLOCK"), Qt::CaseInsensitive) == 0;
}

// What mirroring adds to the angles of an arc, in degrees. A scale that is no number mirrors nothing.
double MirrorTurn(double scaleX, double scaleY)
{
    if (scaleX >= 0.0 && scaleY < 0.0) {
        return -90.0;
    }
    if (scaleX < 0.0 && scaleY >= 0.0) {
        return 90.0;
    }
    return scaleX < 0.0 && scaleY < 0.0 ? 180.0 : 0.0;
}

// What is left of a sum of turns while it is above one, which comes out at a full turn and not at 0.
// Taking one off at a time is exact as long as it makes a difference, and so is this.
double ReducedTurn(double degrees)
{
    if (!(degrees > kFullTurn) || std::isinf(degrees)) {
        return degrees;
    }
    const double rest = std::fmod(degrees, kFullTurn);
    return rest == 0.0 ? kFullTurn : rest;
}

// Scale, then move, then turn about `at`: the sums are in this order for the last bit.
CPoint3D Transformed(const CPoint3D& p, const CInsertDXF& insert, const CPoint3D& at, double sine,
                     double cosine)
{
    const double dx = insert.scaleX * p.x + at.x - at.x;
    const double dy = insert.scaleY * p.y + at.y - at.y;
    return {at.x - dy * sine + dx * cosine, at.y + dy * cosine + dx * sine,
            insert.scaleZ * p.z + at.z};
}

// Sealed here, so that it needs no virtual destructor.
// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor)
class CHatchCollector final : public HatchReaderWrapper
{
public:
    using HatchReaderWrapper::HatchReaderWrapper;
};

} // namespace

CBlockExpander::CBlockExpander(IDXFReader* reader, const CInsertDXF& reference)
    : target(reader), insert(reference), sine(std::sin(ToRadians(reference.rotation))),
      cosine(std::cos(ToRadians(reference.rotation)))
{
}

CPoint3D CBlockExpander::Moved(const CPoint3D& p) const
{
    return Transformed(p, insert, insert.point, sine, cosine);
}

CPoint2D CBlockExpander::Moved(const CPoint2D& p) const
{
    const CPoint3D moved = Moved(CPoint3D{p.x, p.y, 0.0});
    return {moved.x, moved.y};
}

// A direction: scaled and turned, but not moved.
CPoint3D CBlockExpander::Turned(const CPoint3D& v) const
{
    return Transformed(v, insert, CPoint3D(), sine, cosine);
}

void CBlockExpander::MoveAll(std::vector<CPoint3D>& points) const
{
    for (CPoint3D& point : points) {
        point = Moved(point);
    }
}

void CBlockExpander::MoveAll(std::vector<CVertexDXF>& vertices) const
{
    for (CVertexDXF& vertex : vertices) {
        vertex.point = Moved(vertex.point);
    }
}

void CBlockExpander::InheritColor(quint32& color) const
{
    if (color == kByBlockColor) {
        color = insert.color;
    }
}

// Of the line style the name alone is inherited.
void CBlockExpander::Inherit(CEntityDXF& entity) const
{
    InheritColor(entity.color);
    if (IsByBlock(entity.lineStyle)) {
        entity.lineStyle.name = insert.lineStyle.name;
    }
}

void CBlockExpander::operator()(const CPointDXF& point)
{
    CPointDXF copy = point;
    InheritColor(copy.color);
    copy.point = Moved(point.point);
    target->OnPoint(copy);
}

void CBlockExpander::operator()(const CLineDXF& line)
{
    CLineDXF copy = line;
    Inherit(copy);
    copy.start = Moved(line.start);
    copy.end = Moved(line.end);
    target->OnLine(copy);
}

// The direction is moved like a point and so takes on the insertion point; BlockExpander tests hold it.
void CBlockExpander::operator()(const CXLineDXF& line)
{
    CXLineDXF copy = line;
    Inherit(copy);
    copy.origin = Moved(line.origin);
    copy.direction = Moved(line.direction);
    target->OnXLine(copy);
}

void CBlockExpander::operator()(const CArcDXF& arc)
{
    CArcDXF copy = arc;
    Inherit(copy);
    copy.center = Moved(arc.center);
    copy.radius = arc.radius * std::abs(insert.scaleX);
    const double mirrored = MirrorTurn(insert.scaleX, insert.scaleY);
    copy.startAngle = arc.startAngle + insert.rotation + mirrored;
    copy.endAngle = arc.endAngle + insert.rotation + mirrored;
    target->OnArc(copy);
}

void CBlockExpander::operator()(const CSplineDXF& spline)
{
    CSplineDXF copy = spline;
    Inherit(copy);
    MoveAll(copy.controlPoints);
    MoveAll(copy.fitPoints);
    target->OnSpline(copy);
}

// Bulges stay, so a mirrored arc keeps the sign of its own.
void CBlockExpander::operator()(const CLWPolylineDXF& polyline)
{
    CLWPolylineDXF copy = polyline;
    Inherit(copy);
    MoveAll(copy.vertices);
    target->OnLWPolyline(copy);
}

void CBlockExpander::operator()(const CPolylineDXF& polyline)
{
    CPolylineDXF copy = polyline;
    Inherit(copy);
    MoveAll(copy.vertices);
    target->OnPolyline(copy);
}

void CBlockExpander::MoveText(CTextDXF& text) const
{
    InheritColor(text.color);
    text.position = Moved(text.position);
    text.height *= insert.scaleX;
    text.rotation += ToRadians(insert.rotation);
}

void CBlockExpander::operator()(const CTextDXF& text)
{
    CTextDXF copy = text;
    MoveText(copy);
    target->OnText(copy);
}

void CBlockExpander::operator()(const CMTextDXF& text)
{
    CMTextDXF copy = text;
    MoveText(copy);
    copy.rectWidth *= insert.scaleX;
    target->OnMText(copy);
}

void CBlockExpander::operator()(const CSolidDXF& solid)
{
    CSolidDXF copy = solid;
    InheritColor(copy.color);
    for (CPoint3D& point : copy.points) {
        const CPoint3D moved = Moved(point);
        point = {moved.x, moved.y, point.z};
    }
    target->OnSolid(copy);
}

void CBlockExpander::operator()(const C3DFaceDXF& face)
{
    C3DFaceDXF copy = face;
    InheritColor(copy.color);
    for (CPoint3D& corner : copy.corners) {
        corner = Moved(corner);
    }
    target->On3DFace(copy);
}

void CBlockExpander::operator()(const CRayDXF& ray)
{
    CRayDXF copy = ray;
    Inherit(copy);
    copy.origin = Moved(ray.origin);
    const CPoint3D tip = Moved(
        CPoint3D{ray.origin.x + ray.direction.x, ray.origin.y + ray.direction.y, ray.origin.z});
    copy.direction = {tip.x - copy.origin.x, tip.y - copy.origin.y, 0.0};
    target->OnRay(copy);
}

// Vertices that come to coincide are joined; their segments all stay.
void CBlockExpander::operator()(const CMLineDXF& mline)
{
    CMLineDXF copy = mline;
    copy.vertices.clear();
    for (const CVertexDXF& vertex : mline.vertices) {
        AppendVertex(copy.vertices, {Moved(vertex.point), vertex.bulge});
    }
    for (CMLineSegmentDXF& segment : copy.segments) {
        segment.direction = Turned(segment.direction);
        segment.miter = Turned(segment.miter);
    }
    target->OnMLine(copy);
}

// Only the edges are transformed; layer, angle, elevation and marked boundaries stay. An ellipse edge is
// dropped, as an ellipse is in a block.
void CBlockExpander::operator()(const CHatchDXF& hatch)
{
    CHatchDXF copy = hatch;
    InheritColor(copy.color);
    copy.loops.clear();
    CHatchCollector collector(&copy);
    CBlockExpander edges(&collector, insert);
    for (const CHatchLoopDXF& loop : hatch.loops) {
        for (const CHatchEdgeDXF& edge : loop) {
            boost::variant2::visit(edges, edge);
        }
        collector.NextLoop();
    }
    target->OnHatch(copy);
}

// Attributes and the scale along Z stay; a line style by block is replaced whole.
void CBlockExpander::operator()(const CInsertDXF& nested)
{
    CInsertDXF copy = nested;
    InheritColor(copy.color);
    if (IsByBlock(nested.lineStyle)) {
        copy.lineStyle = insert.lineStyle;
    }
    copy.point = Moved(nested.point);
    copy.rotation = ReducedTurn(nested.rotation + insert.rotation);
    copy.scaleX *= insert.scaleX;
    copy.scaleY *= insert.scaleY;
    target->OnInsert(copy);
}

HatchReaderWrapper::HatchReaderWrapper(CHatchDXF* result) : hatch(result) { }

bool HatchReaderWrapper::OnLWPolyline(const CLWPolylineDXF& polyline)
{
    edges.emplace_back(polyline);
    return true;
}

bool HatchReaderWrapper::OnSpline(const CSplineDXF& spline)
{
    edges.emplace_back(spline);
    return true;
}

bool HatchReaderWrapper::OnArc(const CArcDXF& arc)
{
    edges.emplace_back(arc);
    return true;
}

void HatchReaderWrapper::NextLoop()
{
    hatch->loops.push_back(std::exchange(edges, {}));
}

} // namespace VelorExchange::dxf

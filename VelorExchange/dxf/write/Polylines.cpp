// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/write/DXFWriterImpl_p.h"
#include "VelorExchange/dxf/write/Finite_p.h"
#include "VelorExchange/dxf/write/Texts_p.h"
#include "VelorExchange/foundation/Coincidence_p.h"

#include <cmath>

namespace VelorExchange::dxf {

namespace {

constexpr double kLeastBulge = 0.0000000001;
constexpr int kBulgeDigits = 10;
constexpr int kClosed = 1;
constexpr int kContinuousPattern = 128;
constexpr int kInSpace = 8;

int ClosedFlag(const std::vector<CVertexDXF>& vertices)
{
    return CoincideInPlan(vertices.front().point, vertices.back().point) ? kClosed : 0;
}

} // namespace

void CDXFWriterImpl::WriteBulge(double bulge)
{
    if (std::fabs(bulge) > kLeastBulge) {
        output.WriteReal(42, bulge, kBulgeDigits);
    }
}

bool CDXFWriterImpl::PlaceVertices(const std::vector<CVertexDXF>& vertices,
                                   std::vector<CPoint3D>& placed) const
{
    placed.reserve(vertices.size());
    CFiniteCheck check;
    for (const CVertexDXF& vertex : vertices) {
        placed.push_back(Placed(vertex.point));
        check << placed.back() << vertex.bulge;
    }
    return check.IsPassed();
}

bool CDXFWriterImpl::AddPolyline(const CLWPolylineDXF& record)
{
    const std::vector<CVertexDXF>& vertices = record.vertices;
    std::vector<CPoint3D> placed;
    CLineStylePlan plan;
    if (vertices.empty() || !PlaceVertices(vertices, placed) || !PlanHead(record, plan)
        || !AreFinite(Scaled(record.width), record.elevation))
    {
        return false;
    }
    WriteEntityHead(record, plan, "AcDbPolyline", "LWPOLYLINE");
    output.WriteTag(90, static_cast<int>(vertices.size()));
    output.WriteTag(70, kContinuousPattern + ClosedFlag(vertices));
    output.WriteReal(43, Scaled(record.width));
    WriteLineWeight(record.lineWeight);
    output.WriteReal(38, record.elevation);
    for (std::size_t i = 0; i < vertices.size(); ++i) {
        WritePoint(10, placed[i]);
        WriteBulge(vertices[i].bulge);
    }
    Count(texts::Polylines());
    return true;
}

// The record's own flag plays no part: closed is what ends where it starts.
bool CDXFWriterImpl::Add3DPolyline(const CPolylineDXF& record)
{
    const std::vector<CVertexDXF>& vertices = record.vertices;
    std::vector<CPoint3D> placed;
    TakeScale();
    if (vertices.empty() || !PlaceVertices(vertices, placed)
        || !AreFinite(Scaled(record.lineWeight))) {
        return false;
    }
    const CName& layer = Layer(record.layer);
    WriteStart("POLYLINE", layer);
    WriteColor(record.color);
    output.WriteTag(100, "AcDb3dPolyline");
    output.WriteTag(66, 1);
    output.WriteTag(70, kContinuousPattern + kInSpace + ClosedFlag(vertices));
    output.WriteReal(40, 0.0);
    output.WriteReal(41, 0.0);
    WriteLineWeight(record.lineWeight);
    for (std::size_t i = 0; i < vertices.size(); ++i) {
        WriteStart("VERTEX", layer);
        output.WriteTag(100, "AcDbVertex");
        output.WriteTag(100, "AcDb3dPolylineVertex");
        WritePoint(10, placed[i]);
        WriteBulge(vertices[i].bulge);
    }
    WriteSequenceEnd(layer);
    Count(texts::SpacePolylines());
    return true;
}

} // namespace VelorExchange::dxf

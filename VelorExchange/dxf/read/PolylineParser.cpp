// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/read/DXFReaderImpl_p.h"
#include "VelorExchange/dxf/read/VertexList_p.h"

namespace VelorExchange::dxf {

namespace {

constexpr int kClosedFlag = 1;
constexpr int kSplineFitFlag = 4;
constexpr int kIn3DFlag = 8;
constexpr int kFrameControlPoint = 16;

} // namespace

// POLYLINE and its VERTEX records; the SEQEND behind them is left to the entity loop. A closed one only
// has its flag set.
CDXFTag CDXFReaderImpl::ReadPolyline()
{
    CDXFTag next = tags.ReadObject();
    if (IsPaperSpace()) {
        return next;
    }
    const CObjectCoordinates coordinates = Coordinates();
    const int flags = tags.Int(70);
    CPolylineDXF polyline;
    FillStyledHead(polyline);
    polyline.width = tags.Double(40);
    polyline.is2D = (flags & kIn3DFlag) == 0;
    polyline.closed = (flags & kClosedFlag) != 0;
    while (input.Is(next, 0, "VERTEX")) {
        next = tags.ReadObject();
        AppendPolylineVertex(polyline, coordinates, (flags & kSplineFitFlag) != 0);
    }
    Deliver(polyline, &IDXFReader::OnPolyline);
    return next;
}

// The vertex stands in the coordinates of its polyline, whatever extrusion of its own it has.
void CDXFReaderImpl::AppendPolylineVertex(CPolylineDXF& polyline,
                                          const CObjectCoordinates& coordinates, bool splineFit)
{
    if (splineFit && tags.Int(70) == kFrameControlPoint) {
        return;
    }
    AppendVertex(polyline.vertices,
                 {coordinates.ToWorld(tags.Point3D(10, 20, 30)), tags.Double(42)});
}

} // namespace VelorExchange::dxf

// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/read/DXFReaderImpl_p.h"

namespace VelorExchange::dxf {

namespace {

constexpr double kHalfTurn = 180.0;

} // namespace

// ARC and CIRCLE: a circle has no angles, so both come out equal, and stay so when mirrored.
CDXFTag CDXFReaderImpl::ReadArc()
{
    const CDXFTag next = tags.ReadObject();
    if (IsPaperSpace()) {
        return next;
    }
    CArcDXF arc;
    FillStyledHead(arc);
    arc.center = Coordinates().ToWorld(tags.Point3D(10, 20, 30));
    arc.radius = tags.Double(40);
    arc.startAngle = tags.Double(50);
    arc.endAngle = tags.Double(51);
    if (tags.Double(230) < 0.0) {
        const double start = arc.startAngle;
        arc.startAngle = kHalfTurn - arc.endAngle;
        arc.endAngle = kHalfTurn - start;
    }
    Deliver(arc, &IDXFReader::OnArc);
    return next;
}

} // namespace VelorExchange::dxf

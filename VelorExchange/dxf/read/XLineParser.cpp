// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/read/DXFReaderImpl_p.h"

namespace VelorExchange::dxf {

// XLINE: a point and a direction, both in object coordinates.
CDXFTag CDXFReaderImpl::ReadXLine()
{
    const CDXFTag next = tags.ReadObject();
    if (IsPaperSpace()) {
        return next;
    }
    const CObjectCoordinates coordinates = Coordinates();
    const CPoint3D origin = coordinates.ToWorld(tags.Point3D(10, 20, 30));
    CXLineDXF line;
    FillStyledHead(line);
    line.origin = {origin.x, origin.y};
    line.originZ = origin.z;
    line.direction = PlanPoint(coordinates, 11, 21);
    Deliver(line, &IDXFReader::OnXLine);
    return next;
}

} // namespace VelorExchange::dxf

// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/read/DXFReaderImpl_p.h"

namespace VelorExchange::dxf {

// ELLIPSE: centre and axis in object coordinates. An absent end parameter is 0, not a full turn.
CDXFTag CDXFReaderImpl::ReadEllipse()
{
    const CDXFTag next = tags.ReadObject();
    if (IsPaperSpace()) {
        return next;
    }
    const CObjectCoordinates coordinates = Coordinates();
    CEllipseDXF ellipse;
    FillStyledHead(ellipse);
    ellipse.center = coordinates.ToWorld(tags.Point3D(10, 20, 30));
    ellipse.majorAxis = coordinates.ToWorld(tags.Point3D(11, 21, 31));
    ellipse.ratio = tags.Double(40);
    ellipse.startParameter = tags.Double(41);
    ellipse.endParameter = tags.Double(42);
    Deliver(ellipse, &IDXFReader::OnEllipse);
    return next;
}

} // namespace VelorExchange::dxf

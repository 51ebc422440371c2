// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/read/DXFReaderImpl_p.h"

namespace VelorExchange::dxf {

// LINE: its ends stand in world coordinates, so an extrusion changes nothing.
CDXFTag CDXFReaderImpl::ReadLine()
{
    const CDXFTag next = tags.ReadObject();
    if (IsPaperSpace()) {
        return next;
    }
    CLineDXF line;
    FillStyledHead(line);
    line.start = tags.Point3D(10, 20, 30);
    line.end = tags.Point3D(11, 21, 31);
    Deliver(line, &IDXFReader::OnLine);
    return next;
}

} // namespace VelorExchange::dxf

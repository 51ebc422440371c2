// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/read/DXFReaderImpl_p.h"

namespace VelorExchange::dxf {

// POINT: a place and an extent along the extrusion. It has no line type and no line weight.
CDXFTag CDXFReaderImpl::ReadPoint()
{
    const CDXFTag next = tags.ReadObject();
    if (IsPaperSpace()) {
        return next;
    }
    CPointDXF point;
    FillLayerAndColor(point.layer, point.color);
    point.point = Coordinates().ToWorld(tags.Point3D(10, 20, 30));
    point.thickness = tags.Double(39);
    Deliver(point, &IDXFReader::OnPoint);
    return next;
}

} // namespace VelorExchange::dxf

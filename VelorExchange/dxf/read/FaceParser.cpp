// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/read/DXFReaderImpl_p.h"

namespace VelorExchange::dxf {

// 3DFACE: always four corners, those of a triangle repeat.
CDXFTag CDXFReaderImpl::Read3DFace()
{
    const CDXFTag next = tags.ReadObject();
    if (IsPaperSpace()) {
        return next;
    }
    const CObjectCoordinates coordinates = Coordinates();
    C3DFaceDXF face;
    FillHead(face);
    int offset = 0;
    for (CPoint3D& corner : face.corners) {
        corner = coordinates.ToWorld(tags.Point3D(10 + offset, 20 + offset, 30 + offset));
        ++offset;
    }
    Deliver(face, &IDXFReader::On3DFace);
    return next;
}

} // namespace VelorExchange::dxf

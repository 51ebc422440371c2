// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/read/DXFReaderImpl_p.h"
#include "VelorExchange/dxf/read/VertexList_p.h"

namespace VelorExchange::dxf {

// SOLID: corners in file order, equal neighbours joined, closed by the first. The third and the fourth
// are not exchanged though the format stores them crosswise.
CDXFTag CDXFReaderImpl::ReadSolid()
{
    const CDXFTag next = tags.ReadObject();
    if (IsPaperSpace()) {
        return next;
    }
    const CObjectCoordinates coordinates = Coordinates();
    CSolidDXF solid;
    FillLayerAndColor(solid.layer, solid.color);
    for (int corner = 0; corner < 4; ++corner) {
        AppendPoint(solid.points,
                    coordinates.ToWorld({tags.Double(10 + corner), tags.Double(20 + corner), 0.0}));
    }
    const CPoint3D first = coordinates.ToWorldFlat(tags.Double(10), tags.Double(20));
    AppendPoint(solid.points, first);
    Deliver(solid, &IDXFReader::OnSolid);
    return next;
}

} // namespace VelorExchange::dxf

// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/read/DXFReaderImpl_p.h"

namespace VelorExchange::dxf {

// RAY: a start point and a direction in the plan. Only the start is in object coordinates.
CDXFTag CDXFReaderImpl::ReadRay()
{
    const CDXFTag next = tags.ReadObject();
    if (IsPaperSpace()) {
        return next;
    }
    CRayDXF ray;
    FillStyledHead(ray);
    ray.origin = Coordinates().ToWorldFlat(tags.Double(10), tags.Double(20));
    ray.direction = {tags.Double(11), tags.Double(21), 0.0};
    Deliver(ray, &IDXFReader::OnRay);
    return next;
}

} // namespace VelorExchange::dxf

// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/read/DXFReaderImpl_p.h"

#include <cstddef>

namespace VelorExchange::dxf {

// SPLINE: the lists alone tell it; degree, flags and counts play no part.
CDXFTag CDXFReaderImpl::ReadSpline()
{
    const CDXFTag next = tags.ReadObject();
    if (IsPaperSpace()) {
        return next;
    }
    const CObjectCoordinates coordinates = Coordinates();
    CSplineDXF spline;
    FillStyledHead(spline);
    FillPoints(spline.controlPoints, 10, 20, 30, &coordinates);
    FillPoints(spline.fitPoints, 11, 21, 31, nullptr);
    tags.SplitDoubles(40, spline.knots);
    Deliver(spline, &IDXFReader::OnSpline);
    return next;
}

// Lists of unequal length are of no use: the points are dropped. Without `coordinates` they are taken as
// they stand.
void CDXFReaderImpl::FillPoints(std::vector<CPoint3D>& points, int xCode, int yCode, int zCode,
                                const CObjectCoordinates* coordinates)
{
    tags.SplitDoubles(xCode, lists[0]);
    tags.SplitDoubles(yCode, lists[1]);
    tags.SplitDoubles(zCode, lists[2]);
    if (lists[0].size() != lists[1].size() || lists[0].size() != lists[2].size()) {
        return;
    }
    points.reserve(lists[0].size());
    for (std::size_t i = 0; i < lists[0].size(); ++i) {
        const CPoint3D point{lists[0][i], lists[1][i], lists[2][i]};
        points.push_back(coordinates != nullptr ? coordinates->ToWorld(point) : point);
    }
}

} // namespace VelorExchange::dxf

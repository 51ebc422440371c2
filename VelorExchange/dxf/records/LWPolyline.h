// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/records/Entity.h"
#include "VelorExchange/dxf/records/Vertex.h"

#include <vector>

namespace VelorExchange::dxf {

/// LWPOLYLINE, a plane polyline.
///
/// A closed one ends with a vertex in the place of the first; that vertex has the first one's bulge
/// as its z, and the bulge 0.
struct CLWPolylineDXF : CEntityDXF
{
    std::vector<CVertexDXF> vertices; ///< Empty if the file's lists do not match its vertex count.
    double width = 0.0; ///< Constant width, or the mean of the segments' widths.
    double elevation = 0.0; ///< Height of the plane.
};

} // namespace VelorExchange::dxf

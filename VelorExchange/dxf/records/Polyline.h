// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/records/Entity.h"
#include "VelorExchange/dxf/records/Vertex.h"

#include <vector>

namespace VelorExchange::dxf {

/// POLYLINE with its VERTEX records.
struct CPolylineDXF : CEntityDXF
{
    std::vector<CVertexDXF>
        vertices; ///< In file order; a closed polyline does not repeat its first.
    double width = 0.0; ///< Default start width, drawing units.
    bool is2D = false; ///< False for a polyline in space.
    bool closed = false; ///< True if the last vertex is joined to the first.
};

} // namespace VelorExchange::dxf

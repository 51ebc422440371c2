// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/foundation/Point.h"

namespace VelorExchange::dxf {

/// A vertex of a polyline.
struct CVertexDXF
{
    CPoint3D point; ///< Position in file units.
    /// Tangent of a quarter of the angle of the arc that leads to the next vertex, positive
    /// counter-clockwise; 0 for a straight segment.
    double bulge = 0.0;
};

} // namespace VelorExchange::dxf

// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/records/Entity.h"
#include "VelorExchange/foundation/Point.h"

#include <vector>

namespace VelorExchange::dxf {

/// SPLINE. Degree, flags and weights are not kept.
struct CSplineDXF : CEntityDXF
{
    std::vector<double> knots; ///< Knot values.
    std::vector<CPoint3D> controlPoints; ///< Empty if the file's coordinate lists differ in length.
    std::vector<CPoint3D> fitPoints; ///< Empty if the file's coordinate lists differ in length.
};

} // namespace VelorExchange::dxf

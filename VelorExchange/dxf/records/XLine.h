// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/records/Entity.h"
#include "VelorExchange/foundation/Point.h"

namespace VelorExchange::dxf {

/// XLINE, a line without ends.
struct CXLineDXF : CEntityDXF
{
    CPoint2D origin; ///< A point of the line.
    CPoint2D direction; ///< Direction, not normalised.
    double originZ = 0.0; ///< Height of the point.
};

} // namespace VelorExchange::dxf

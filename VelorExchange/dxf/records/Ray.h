// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/records/Entity.h"
#include "VelorExchange/foundation/Point.h"

namespace VelorExchange::dxf {

/// RAY, a line with one end.
struct CRayDXF : CEntityDXF
{
    CPoint3D origin; ///< The end; its z is 0 when the reader delivers it.
    CPoint3D direction; ///< Direction, not normalised; its z is 0 when the reader delivers it.
};

} // namespace VelorExchange::dxf

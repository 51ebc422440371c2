// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/records/Entity.h"
#include "VelorExchange/foundation/Point.h"

#include <array>

namespace VelorExchange::dxf {

/// 3DFACE.
struct C3DFaceDXF : CEntityDXF
{
    std::array<CPoint3D, 4> corners{}; ///< Always four; those of a triangle repeat.
};

} // namespace VelorExchange::dxf

// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/records/Entity.h"
#include "VelorExchange/foundation/Point.h"

namespace VelorExchange::dxf {

/// LINE. Its ends are taken as they stand in the file, whatever the extrusion.
struct CLineDXF : CEntityDXF
{
    CPoint3D start; ///< First end.
    CPoint3D end; ///< Second end.
};

} // namespace VelorExchange::dxf

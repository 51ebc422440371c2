// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/records/Entity.h"
#include "VelorExchange/foundation/Point.h"

namespace VelorExchange::dxf {

/// ELLIPSE, whole or an arc of one.
struct CEllipseDXF : CEntityDXF
{
    CPoint3D center; ///< Centre in world coordinates.
    CPoint3D majorAxis; ///< End of the major axis, relative to the centre.
    double ratio = 0.0; ///< Minor axis by major axis.
    double startParameter = 0.0; ///< Radians for ELLIPSE, degrees for an edge of a hatch.
    double endParameter =
        6.283185307179586; ///< As `startParameter`. The reader gives 0 where it is absent.
    bool counterClockwise = true; ///< Sense of an elliptic edge of a hatch.
};

} // namespace VelorExchange::dxf

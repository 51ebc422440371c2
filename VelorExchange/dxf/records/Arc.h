// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/records/Entity.h"
#include "VelorExchange/foundation/Point.h"

namespace VelorExchange::dxf {

/// ARC, and CIRCLE as an arc whose two angles are equal.
///
/// The reader delivers degrees as they stand in the file; the writer takes radians.
struct CArcDXF : CEntityDXF
{
    CPoint3D center; ///< Centre in world coordinates.
    double radius = 0.0; ///< Drawing units.
    double startAngle = 0.0; ///< From the X axis, counter-clockwise, in no fixed range.
    double endAngle = 6.283185307179586; ///< From the X axis, counter-clockwise, in no fixed range.
    bool counterClockwise = true; ///< Sense of an arc edge of a hatch.
};

} // namespace VelorExchange::dxf

// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/foundation/Point.h"

namespace VelorExchange::dxf {

/// The object coordinate system that an extrusion spans, and the way out of it.
class CObjectCoordinates final
{
public:
    /// All components below 1e-06, as where the groups are absent, mean no conversion.
    explicit CObjectCoordinates(const CPoint3D& extrusion);

    CPoint3D ToWorld(const CPoint3D& p) const
    {
        if (isWorld) {
            return p;
        }
        return {ax.x * p.x + ay.x * p.y + normal.x * p.z, ax.y * p.x + ay.y * p.y + normal.y * p.z,
                ax.z * p.x + ay.z * p.y + normal.z * p.z};
    }

    /// A point of the plane z = 0, converted; the height of the result is dropped.
    CPoint3D ToWorldFlat(double x, double y) const
    {
        const CPoint3D world = ToWorld({x, y, 0.0});
        return {world.x, world.y, 0.0};
    }

private:
    bool isWorld;
    CPoint3D normal;
    CPoint3D ax;
    CPoint3D ay;
};

} // namespace VelorExchange::dxf

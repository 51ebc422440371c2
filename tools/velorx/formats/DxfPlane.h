// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>

namespace velorx {

/// How the plane of an entity lies to somebody who looks at the plan from above.
enum class EDxfPlane {
    Plan,
    Behind, ///< Parallel to the plan, and seen from below: left and right change places.
    Tilted,
};

/// The plane with the normal (x, y, z), of any length.
inline EDxfPlane PlaneOf(double x, double y, double z)
{
    constexpr double kLeast = 1e-6;
    if (std::fabs(x) > kLeast || std::fabs(y) > kLeast) {
        return EDxfPlane::Tilted;
    }
    return z < 0 ? EDxfPlane::Behind : EDxfPlane::Plan;
}

/// The plane that groups 210, 220 and 230 tell, the plan where they are missing. `number` gives the value of a
/// group, or its second argument where the group is missing.
template <class TNumber>
EDxfPlane PlaneIn(TNumber number)
{
    return PlaneOf(number(210, 0.0), number(220, 0.0), number(230, 1.0));
}

} // namespace velorx

// SPDX-License-Identifier: MIT
#pragma once

/// \file
/// The two point types in which all coordinates travel.

namespace VelorExchange {

/// A point or a direction in the plan, in the units of the file it comes from or goes to.
struct CPoint2D
{
    double x = 0.0; ///< First coordinate.
    double y = 0.0; ///< Second coordinate.
};

/// A point or a direction in space, in the units of the file it comes from or goes to.
struct CPoint3D
{
    double x = 0.0; ///< First coordinate.
    double y = 0.0; ///< Second coordinate.
    double z = 0.0; ///< Height.
};

} // namespace VelorExchange

// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/foundation/Point.h"

namespace VelorExchange {

/// Squared distance, in square file units, below which two points are one.
constexpr double kCoincidenceSquared = 1e-08;

/// True if the squared distance in the plan is below the limit. The limit is strict and there is no
/// square root: two points exactly 1e-04 apart are what the rounded square says.
template <class A, class B>
constexpr bool CoincideInPlan(const A& a, const B& b)
{
    const double dx = a.x - b.x;
    const double dy = a.y - b.y;
    return dx * dx + dy * dy < kCoincidenceSquared;
}

/// The same in space.
constexpr bool CoincideInSpace(const CPoint3D& a, const CPoint3D& b)
{
    const double dx = a.x - b.x;
    const double dy = a.y - b.y;
    const double dz = a.z - b.z;
    return dx * dx + dy * dy + dz * dz < kCoincidenceSquared;
}

} // namespace VelorExchange

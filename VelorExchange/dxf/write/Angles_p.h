// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/foundation/Point.h"

#include <cmath>

namespace VelorExchange::dxf {

constexpr double kPi = 3.141592653589793;
constexpr double kTwoPi = 6.283185307179586;

/// Degrees of an angle in radians, in the order of operations that the files are compared by.
inline double DegreesOf(double radians)
{
    return radians * 180 / kPi;
}

/// Radians of an angle in degrees.
inline double RadiansOf(double degrees)
{
    return degrees * kPi / 180;
}

/// A direction ten units long.
inline CPoint2D DirectionOf(double radians)
{
    constexpr double kLength = 10;
    return {std::cos(radians) * kLength, std::sin(radians) * kLength};
}

} // namespace VelorExchange::dxf

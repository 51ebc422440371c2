// SPDX-License-Identifier: MIT
#pragma once

namespace VelorExchange::dxf {

constexpr double kPi = 3.141592653589793;
constexpr double kTwoPi = 6.283185307179586;

/// Degrees to radians, in the order of operations that all results hang on to the last bit.
constexpr double ToRadians(double degrees)
{
    return degrees * kPi / 180.0;
}

} // namespace VelorExchange::dxf

// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/foundation/Point.h"

namespace VelorExchange::dxf {

/// Tells whether all numbers it is shown are finite. A number times zero is zero exactly if it is
/// finite, so that long lists are gone through without a branch.
class CFiniteCheck
{
public:
    CFiniteCheck& operator<<(double value)
    {
        sum += value * 0.0;
        return *this;
    }
    CFiniteCheck& operator<<(const CPoint2D& point) { return *this << point.x << point.y; }
    CFiniteCheck& operator<<(const CPoint3D& point)
    {
        return *this << point.x << point.y << point.z;
    }
    bool IsPassed() const { return sum == 0.0; }

private:
    double sum = 0.0;
};

/// True if all of `values`, numbers or points, are finite.
template <class... Values>
bool AreFinite(const Values&... values)
{
    CFiniteCheck check;
    (check << ... << values);
    return check.IsPassed();
}

} // namespace VelorExchange::dxf

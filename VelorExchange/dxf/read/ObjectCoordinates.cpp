// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/read/ObjectCoordinates_p.h"

#include <cmath>

namespace VelorExchange::dxf {

namespace {

constexpr double kNoExtrusion = 1e-06;
constexpr double kNearZAxis = 0.015625; // 1/64

CPoint3D Cross(const CPoint3D& a, const CPoint3D& b)
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

// The zero vector stays what it is.
CPoint3D Normalised(const CPoint3D& v)
{
    const double length = std::sqrt(v.x * v.x + v.y * v.y + v.z * v.z);
    return length == 0.0 ? v : CPoint3D{v.x / length, v.y / length, v.z / length};
}

bool IsSmall(double component)
{
    return std::abs(component) < kNoExtrusion;
}

} // namespace

// The choice of the axis is by signed values, unlike the published rule, so that (-0.9, 0, 0.4) takes
// the Y axis: held by ObjectCoordinates.NegativeComponentsTakeTheYAxis. The normal is used as long as
// it is.
CObjectCoordinates::CObjectCoordinates(const CPoint3D& n)
    : isWorld(IsSmall(n.x) && IsSmall(n.y) && IsSmall(n.z)), normal(n)
{
    if (isWorld) {
        return;
    }
    const bool farFromZ = n.x >= kNearZAxis || n.y >= kNearZAxis;
    ax = Normalised(Cross(farFromZ ? CPoint3D{0, 0, 1} : CPoint3D{0, 1, 0}, n));
    ay = Normalised(Cross(n, ax));
}

} // namespace VelorExchange::dxf

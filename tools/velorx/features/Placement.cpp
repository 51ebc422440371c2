// SPDX-License-Identifier: MIT
#include "tools/velorx/features/Placement.h"

#include "VelorExchange/dxf/records/Insert.h"

#include <cmath>

namespace velorx {

using VelorExchange::CPoint2D;
using VelorExchange::CPoint3D;

namespace {

constexpr double kDegree = 3.141592653589793 / 180.0;
constexpr double kRightAngle = 90.0;

// Exact for right angles, so that what is level stays level.
CPoint2D DirectionOf(double degrees)
{
    const double quarters = degrees / kRightAngle;
    if (quarters != std::floor(quarters) || !std::isfinite(quarters)) {
        return {std::cos(degrees * kDegree), std::sin(degrees * kDegree)};
    }
    constexpr CPoint2D kQuarters[] = {{1, 0}, {0, 1}, {-1, 0}, {0, -1}};
    const auto quarter = static_cast<int>(std::fmod(quarters, 4));
    return kQuarters[(quarter + 4) % 4];
}

} // namespace

CPlacement::CPlacement(const VelorExchange::dxf::CInsertDXF& insert, const CPoint3D& base)
{
    const CPoint2D direction = DirectionOf(insert.rotation);
    xx = insert.scaleX * direction.x;
    xy = -insert.scaleY * direction.y;
    yx = insert.scaleX * direction.y;
    yy = insert.scaleY * direction.x;
    zz = insert.scaleZ;
    const CPoint3D shift = (*this)(base);
    move = {insert.point.x - shift.x, insert.point.y - shift.y, insert.point.z - shift.z};
}

CPlacement CPlacement::Around(const CPlacement& inner) const
{
    CPlacement both;
    both.xx = xx * inner.xx + xy * inner.yx;
    both.xy = xx * inner.xy + xy * inner.yy;
    both.yx = yx * inner.xx + yy * inner.yx;
    both.yy = yx * inner.xy + yy * inner.yy;
    both.zz = zz * inner.zz;
    both.move = (*this)(inner.move);
    return both;
}

CPoint3D CPlacement::operator()(const CPoint3D& p) const
{
    return {xx * p.x + xy * p.y + move.x, yx * p.x + yy * p.y + move.y, zz * p.z + move.z};
}

CPoint2D CPlacement::Turned(const CPoint2D& v) const
{
    return {xx * v.x + xy * v.y, yx * v.x + yy * v.y};
}

double CPlacement::TurnedAngle(double angle) const
{
    constexpr double kTwoPi = 6.283185307179586;
    if (xx == 1.0 && xy == 0.0 && yx == 0.0 && yy == 1.0) {
        return angle;
    }
    const CPoint2D direction = Turned({std::cos(angle), std::sin(angle)});
    const double turned = std::atan2(direction.y, direction.x);
    return turned < 0 ? turned + kTwoPi : turned;
}

// The larger of the two singular values.
double CPlacement::GreatestScale() const
{
    const double squares = xx * xx + xy * xy + yx * yx + yy * yy;
    const double area = xx * yy - xy * yx;
    return std::sqrt((squares + std::sqrt(std::fmax(squares * squares - 4 * area * area, 0))) / 2);
}

double CPlacement::MeanScale() const
{
    return std::sqrt(std::fabs(xx * yy - xy * yx));
}

} // namespace velorx

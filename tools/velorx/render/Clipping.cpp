// SPDX-License-Identifier: MIT
#include "tools/velorx/render/Clipping.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace velorx {

namespace {

/// A side of the frame: what lies on the inner side has a distance of 0 or more.
struct SSide
{
    double x;
    double y;
    double offset;

    double Distance(const QPointF& point) const { return x * point.x() + y * point.y() + offset; }
};

struct SSides
{
    SSide sides[4];
};

SSides SidesOf(const QRectF& frame)
{
    return {{{1, 0, -frame.left()},
             {-1, 0, frame.right()},
             {0, 1, -frame.top()},
             {0, -1, frame.bottom()}}};
}

// Lies on the side exactly, however far away the ends are.
QPointF Crossing(const QPointF& from, const QPointF& to, const SSide& side)
{
    const double behind = side.Distance(from);
    const QPointF place = from + (to - from) * (behind / (behind - side.Distance(to)));
    return {side.x != 0 ? -side.offset / side.x : place.x(),
            side.y != 0 ? -side.offset / side.y : place.y()};
}

CPixelLine ClipAtSide(const CPixelLine& ring, const SSide& side)
{
    CPixelLine result;
    result.reserve(ring.size() + 2);
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const QPointF& from = ring[i];
        const QPointF& to = ring[i + 1 < ring.size() ? i + 1 : 0];
        const double fromDistance = side.Distance(from);
        const double toDistance = side.Distance(to);
        if (fromDistance >= 0) {
            result.push_back(from);
        }
        if ((fromDistance >= 0) != (toDistance >= 0)) {
            result.push_back(Crossing(from, to, side));
        }
    }
    return result;
}

} // namespace

bool ClipLine(QLineF& line, const QRectF& frame)
{
    QPointF from = line.p1();
    QPointF to = line.p2();
    for (const SSide& side : SidesOf(frame).sides) {
        const bool isFromOut = side.Distance(from) < 0;
        const bool isToOut = side.Distance(to) < 0;
        if (isFromOut && isToOut) {
            return false;
        }
        if (isFromOut) {
            from = Crossing(from, to, side);
        } else if (isToOut) {
            to = Crossing(from, to, side);
        }
    }
    line = {from, to};
    return true;
}

CPixelLine ClipRing(CPixelLine ring, const QRectF& frame)
{
    if (frame.contains(BoundsOf(ring))) {
        return ring;
    }
    for (const SSide& side : SidesOf(frame).sides) {
        ring = ClipAtSide(ring, side);
    }
    return ring;
}

QRectF BoundsOf(const CPixelLine& points)
{
    if (points.empty()) {
        return {};
    }
    QPointF least = points.front();
    QPointF greatest = points.front();
    for (const QPointF& point : points) {
        least = {std::min(least.x(), point.x()), std::min(least.y(), point.y())};
        greatest = {std::max(greatest.x(), point.x()), std::max(greatest.y(), point.y())};
    }
    return {least, greatest};
}

bool Touch(const QRectF& one, const QRectF& other)
{
    return one.left() <= other.right() && other.left() <= one.right() && one.top() <= other.bottom()
        && other.top() <= one.bottom();
}

} // namespace velorx

// SPDX-License-Identifier: MIT
#include "tools/velorx/features/MifShapes.h"

#include <algorithm>
#include <cmath>

namespace velorx {

using namespace VelorExchange::mif;
using VelorExchange::CPoint2D;

namespace {

constexpr double kPi = 3.141592653589793;

/// The rectangle between two corners.
struct SFrame
{
    double left;
    double bottom;
    double right;
    double top;

    SFrame(const CPoint2D& one, const CPoint2D& other)
        : left(std::min(one.x, other.x)), bottom(std::min(one.y, other.y)),
          right(std::max(one.x, other.x)), top(std::max(one.y, other.y))
    {
    }
};

SEllipse EllipseIn(const SFrame& frame)
{
    return {{(frame.left + frame.right) / 2.0, (frame.bottom + frame.top) / 2.0, 0.0},
            {(frame.right - frame.left) / 2.0, 0.0, 0.0},
            {0.0, (frame.top - frame.bottom) / 2.0, 0.0}};
}

} // namespace

CFeatureLine MifArcLine(const CArcMIF& arc, CChords& chords)
{
    double sweep = std::fmod(arc.endAngle - arc.startAngle, 2.0 * kPi);
    sweep += sweep <= 0.0 ? 2.0 * kPi : 0.0;
    return chords.EllipseArc(EllipseIn(SFrame(arc.corner1, arc.corner2)), arc.startAngle, sweep);
}

CFeatureLine MifEllipseRing(const CRectMIF& ellipse, CChords& chords)
{
    CFeatureLine ring =
        chords.EllipseArc(EllipseIn(SFrame(ellipse.corner1, ellipse.corner2)), 0.0, 2.0 * kPi);
    if (!ring.empty()) {
        ring.pop_back();
    }
    return ring;
}

CFeatureLine MifRectRing(const CPoint2D& corner1, const CPoint2D& corner2)
{
    const SFrame frame(corner1, corner2);
    return {{frame.left, frame.bottom, 0.0},
            {frame.right, frame.bottom, 0.0},
            {frame.right, frame.top, 0.0},
            {frame.left, frame.top, 0.0}};
}

// A file tells the diameter of the corners' rounding; the library hands it on times pi / 180, like an
// angle.
CFeatureLine MifRoundRectRing(const CRoundRectMIF& rect, CChords& chords)
{
    const SFrame frame(rect.corner1, rect.corner2);
    const double told = rect.radius * 180.0 / kPi / 2.0;
    const double radius =
        std::min({told, (frame.right - frame.left) / 2.0, (frame.top - frame.bottom) / 2.0});
    if (!(radius > 0.0)) {
        return MifRectRing(rect.corner1, rect.corner2);
    }
    const VelorExchange::CPoint3D centres[] = {{frame.right - radius, frame.bottom + radius, 0.0},
                                               {frame.right - radius, frame.top - radius, 0.0},
                                               {frame.left + radius, frame.top - radius, 0.0},
                                               {frame.left + radius, frame.bottom + radius, 0.0}};
    CFeatureLine ring;
    double start = -kPi / 2.0;
    for (const auto& centre : centres) {
        const CFeatureLine corner = chords.Arc(centre, radius, start, kPi / 2.0);
        ring.insert(ring.end(), corner.begin(), corner.end());
        start += kPi / 2.0;
    }
    return ring;
}

} // namespace velorx

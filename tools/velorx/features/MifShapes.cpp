// SPDX-License-Identifier: MIT
#include "tools/velorx/features/MifShapes.h"

#include <algorithm>
#include <cmath>

namespace velorx {

using namespace VelorExchange::mif;
using VelorExchange::CPoint2D;

namespace {

constexpr double kPi = 3.141592653589793;
constexpr double kMostSegments = 100000.0;

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

/// An ellipse whose axes lie along those of the plan.
struct SEllipse
{
    CPoint2D centre;
    CPoint2D radius;

    explicit SEllipse(const SFrame& frame)
        : centre{(frame.left + frame.right) / 2.0, (frame.bottom + frame.top) / 2.0},
          radius{(frame.right - frame.left) / 2.0, (frame.top - frame.bottom) / 2.0}
    {
    }

    VelorExchange::CPoint3D At(double angle) const
    {
        return {centre.x + radius.x * std::cos(angle), centre.y + radius.y * std::sin(angle), 0.0};
    }
};

// An ellipse is a circle of its greater radius, squeezed, so that its chords are off by no more than
// those of the circle. Eight segments a turn at least.
int SegmentsOf(double radius, double sweep, double chord)
{
    double step = kPi / 4.0;
    if (radius > chord && chord > 0.0) {
        step = std::min(step, 2.0 * std::acos(1.0 - chord / radius));
    }
    const double segments = std::ceil(sweep / step - 1e-9);
    return static_cast<int>(segments >= 1.0 ? std::min(segments, kMostSegments) : 1.0);
}

// Appends the arc from `start`, without its last point.
void AppendArc(CFeatureLine& line, const SEllipse& ellipse, double start, double sweep,
               double chord)
{
    const int segments = SegmentsOf(std::max(ellipse.radius.x, ellipse.radius.y), sweep, chord);
    for (int i = 0; i < segments; ++i) {
        line.push_back(ellipse.At(start + sweep * i / segments));
    }
}

} // namespace

CFeatureLine MifArcLine(const CArcMIF& arc, double chord)
{
    double sweep = std::fmod(arc.endAngle - arc.startAngle, 2.0 * kPi);
    sweep += sweep <= 0.0 ? 2.0 * kPi : 0.0;
    const SEllipse ellipse(SFrame(arc.corner1, arc.corner2));
    CFeatureLine line;
    AppendArc(line, ellipse, arc.startAngle, sweep, chord);
    line.push_back(ellipse.At(arc.startAngle + sweep));
    return line;
}

CFeatureLine MifEllipseRing(const CRectMIF& ellipse, double chord)
{
    CFeatureLine ring;
    AppendArc(ring, SEllipse(SFrame(ellipse.corner1, ellipse.corner2)), 0.0, 2.0 * kPi, chord);
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
CFeatureLine MifRoundRectRing(const CRoundRectMIF& rect, double chord)
{
    const SFrame frame(rect.corner1, rect.corner2);
    const double told = rect.radius * 180.0 / kPi / 2.0;
    const double radius =
        std::min({told, (frame.right - frame.left) / 2.0, (frame.top - frame.bottom) / 2.0});
    if (!(radius > 0.0)) {
        return MifRectRing(rect.corner1, rect.corner2);
    }
    const CPoint2D corners[] = {{frame.right - radius, frame.bottom + radius},
                                {frame.right - radius, frame.top - radius},
                                {frame.left + radius, frame.top - radius},
                                {frame.left + radius, frame.bottom + radius}};
    CFeatureLine ring;
    double start = -kPi / 2.0;
    for (const CPoint2D& corner : corners) {
        const SEllipse circle(
            SFrame({corner.x - radius, corner.y - radius}, {corner.x + radius, corner.y + radius}));
        AppendArc(ring, circle, start, kPi / 2.0, chord);
        start += kPi / 2.0;
        ring.push_back(circle.At(start));
    }
    return ring;
}

} // namespace velorx

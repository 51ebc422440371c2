// SPDX-License-Identifier: MIT
#include "tools/velorx/features/Chords.h"

#include <algorithm>
#include <cmath>

namespace velorx {

using VelorExchange::CPoint3D;

namespace {

constexpr double kPi = 3.141592653589793;
constexpr double kTwoPi = 2 * kPi;
constexpr double kLongestStep = kPi / 4;
constexpr double kLeastBulge = 1e-10;
constexpr double kWholeTurn = 1e-9; // how near to a whole turn counts as one

CPoint3D Between(const CPoint3D& a, const CPoint3D& b, double part)
{
    return {a.x + (b.x - a.x) * part, a.y + (b.y - a.y) * part, a.z + (b.z - a.z) * part};
}

CPoint3D PointOf(const SEllipse& ellipse, double parameter)
{
    const double cosine = std::cos(parameter);
    const double sine = std::sin(parameter);
    return {ellipse.center.x + cosine * ellipse.major.x + sine * ellipse.minor.x,
            ellipse.center.y + cosine * ellipse.major.y + sine * ellipse.minor.y,
            ellipse.center.z + cosine * ellipse.major.z + sine * ellipse.minor.z};
}

double LengthOf(const CPoint3D& v)
{
    return std::hypot(std::hypot(v.x, v.y), v.z);
}

// The greatest second difference of the points of a Bezier curve.
double BendOf(const std::vector<CPoint3D>& points)
{
    double bend = 0.0;
    for (std::size_t i = 2; i < points.size(); ++i) {
        const CPoint3D &a = points[i - 2], &b = points[i - 1], &c = points[i];
        bend = std::max(bend,
                        LengthOf({a.x - 2 * b.x + c.x, a.y - 2 * b.y + c.y, a.z - 2 * b.z + c.z}));
    }
    return bend;
}

// Halves the ways between the points until one is left.
CPoint3D PointOf(std::vector<CPoint3D> points, double at)
{
    for (std::size_t left = points.size() - 1; left > 0; --left) {
        for (std::size_t i = 0; i < left; ++i) {
            points[i] = Between(points[i], points[i + 1], at);
        }
    }
    return points.front();
}

} // namespace

void CChords::SetTolerance(double distance)
{
    tolerance = distance > 0 ? distance : kUsualTolerance;
}

int CChords::Limited(double count)
{
    if (count <= kMostChords) {
        return std::max(static_cast<int>(count), 1);
    }
    ++coarse;
    return kMostChords;
}

// An arc leaves its chord by r (1 - cos(step / 2)), which is 2 r sin(step / 4)^2.
int CChords::CountFor(double radius, double sweep)
{
    const double part = tolerance / (2 * radius);
    const double step = part < 1 ? 4 * std::asin(std::sqrt(part)) : kLongestStep;
    return Limited(std::ceil(std::fabs(sweep) / std::min(step, kLongestStep) - kWholeTurn));
}

CFeatureLine CChords::EllipseArc(const SEllipse& ellipse, double start, double sweep)
{
    CFeatureLine line;
    if (!std::isfinite(start) || !std::isfinite(sweep)) {
        return line;
    }
    const double radius = std::max(LengthOf(ellipse.major), LengthOf(ellipse.minor));
    if (!std::isfinite(radius)) {
        return line;
    }
    const int chords = CountFor(radius, sweep);
    line.reserve(static_cast<std::size_t>(chords) + 1);
    for (int i = 0; i <= chords; ++i) {
        line.push_back(PointOf(ellipse, start + sweep * i / chords));
    }
    if (std::fabs(std::fabs(sweep) - kTwoPi) < kWholeTurn) {
        line.back() = line.front();
    }
    return line;
}

CFeatureLine CChords::Arc(const CPoint3D& center, double radius, double start, double sweep)
{
    return EllipseArc({center, {radius, 0, 0}, {0, radius, 0}}, start, sweep);
}

void CChords::AppendBulge(CFeatureLine& line, const CPoint3D& end, double bulge)
{
    const CPoint3D from = line.back();
    const double width = end.x - from.x;
    const double height = end.y - from.y;
    if (!(std::fabs(bulge) >= kLeastBulge) || !std::isfinite(bulge)
        || (width == 0.0 && height == 0.0)) {
        line.push_back(end);
        return;
    }
    // the centre lies on the middle line of the chord, to its left for less than half a turn
    const double reach = (1 / bulge - bulge) / 4;
    const CPoint3D center{from.x + width / 2 - height * reach, from.y + height / 2 + width * reach,
                          0};
    const double radius = std::hypot(from.x - center.x, from.y - center.y);
    const double start = std::atan2(from.y - center.y, from.x - center.x);
    const double sweep = 4 * std::atan(bulge);
    const int chords = std::isfinite(radius) ? CountFor(radius, sweep) : 1;
    for (int i = 1; i < chords; ++i) {
        const double part = static_cast<double>(i) / chords;
        const double angle = start + sweep * part;
        line.push_back({center.x + radius * std::cos(angle), center.y + radius * std::sin(angle),
                        from.z + (end.z - from.z) * part});
    }
    line.push_back(end);
}

// Chords of a curve of degree n whose points bend by up to d leave it by n (n - 1) d / 8 k^2 at most, k
// being their number.
void CChords::AppendBezier(CFeatureLine& line, std::vector<CPoint3D> points)
{
    if (points.size() < 2) {
        return;
    }
    const auto degree = static_cast<double>(points.size() - 1);
    const double wanted =
        std::ceil(std::sqrt(degree * (degree - 1) * BendOf(points) / (8 * tolerance)));
    const int chords = std::isfinite(wanted) ? Limited(wanted) : 1;
    for (int i = 1; i < chords; ++i) {
        line.push_back(PointOf(points, static_cast<double>(i) / chords));
    }
    line.push_back(points.back());
}

} // namespace velorx

// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfHatchOutlines.h"

#include "tools/velorx/formats/DxfCurves.h"

#include <boost/variant2/variant.hpp>

#include <algorithm>
#include <cmath>
#include <limits>

namespace velorx {

using VelorExchange::CPoint3D;
using namespace VelorExchange::dxf;

namespace {

constexpr double kPi = 3.141592653589793;
constexpr double kTwoPi = 2 * kPi;
constexpr double kDegree = kPi / 180.0;
constexpr double kChordTolerance = 0.001; // of the extent of the edge
constexpr double kMostChords = 1000; // more than a finite curve can want
constexpr double kLeastBulge = 0.0000000001;

struct SExtent
{
    double width = 0.0;
    double height = 0.0;

    double Longer() const { return std::max(width, height); }
};

SExtent ExtentOf(const std::vector<CPoint3D>& points)
{
    if (points.empty()) {
        return {};
    }
    const auto byX = [](const CPoint3D& a, const CPoint3D& b) { return a.x < b.x; };
    const auto byY = [](const CPoint3D& a, const CPoint3D& b) { return a.y < b.y; };
    const auto [left, right] = std::minmax_element(points.begin(), points.end(), byX);
    const auto [bottom, top] = std::minmax_element(points.begin(), points.end(), byY);
    return {right->x - left->x, top->y - bottom->y};
}

double Distance(const CPoint3D& a, const CPoint3D& b)
{
    return std::hypot(a.x - b.x, a.y - b.y);
}

// The way back: each bulge goes to the other end of its segment and changes its sign.
void Reverse(CHatchRing& path)
{
    std::reverse(path.begin(), path.end());
    for (std::size_t i = 0; i + 1 < path.size(); ++i) {
        path[i].z = -path[i + 1].z;
    }
    if (!path.empty()) {
        path.back().z = 0.0;
    }
}

// From the start to the end of an arc, clockwise angles being told with the other sign.
struct SSweep
{
    double start = 0.0;
    double turn = 0.0;
};

SSweep SweepOf(double start, double end, bool isCounterClockwise)
{
    double turn = std::fmod(end - start, kTwoPi);
    turn += turn <= 1e-9 ? kTwoPi : 0.0; // equal ends are a whole turn
    return isCounterClockwise ? SSweep{start, turn} : SSweep{-start, -turn};
}

CHatchRing PathOf(const CLWPolylineDXF& edge)
{
    CHatchRing path;
    path.reserve(edge.vertices.size());
    for (const CVertexDXF& vertex : edge.vertices) {
        path.push_back({vertex.point.x, vertex.point.y, vertex.bulge});
    }
    return path;
}

CHatchRing PathOf(const CArcDXF& edge)
{
    const SSweep sweep =
        SweepOf(edge.startAngle * kDegree, edge.endAngle * kDegree, edge.counterClockwise);
    const int pieces = std::fabs(sweep.turn) > kPi + 1e-9 ? 2 : 1;
    const double step = sweep.turn / pieces;
    CHatchRing path;
    for (int i = 0; i <= pieces; ++i) {
        const double angle = sweep.start + i * step;
        path.push_back({edge.center.x + edge.radius * std::cos(angle),
                        edge.center.y + edge.radius * std::sin(angle),
                        i < pieces ? std::tan(step / 4) : 0.0});
    }
    return path;
}

// The angles are directions from the centre, not parameters.
double ParameterOf(double angle, double ratio)
{
    const double turns = std::round(angle / kTwoPi) * kTwoPi;
    return turns + std::atan2(std::sin(angle), std::cos(angle) * ratio);
}

CHatchRing PathOf(const CEllipseDXF& edge)
{
    const SSweep sweep =
        SweepOf(ParameterOf(edge.startParameter * kDegree, edge.ratio),
                ParameterOf(edge.endParameter * kDegree, edge.ratio), edge.counterClockwise);
    const double stepLimit = 2 * std::acos(1 - kChordTolerance);
    const double chords = std::ceil(std::fabs(sweep.turn) / stepLimit);
    CHatchRing path;
    for (double i = 0; i <= chords; ++i) {
        const double at = sweep.start + sweep.turn * i / chords;
        const double along = std::cos(at);
        const double across = std::sin(at) * edge.ratio;
        path.push_back({edge.center.x + along * edge.majorAxis.x - across * edge.majorAxis.y,
                        edge.center.y + along * edge.majorAxis.y + across * edge.majorAxis.x, 0.0});
    }
    return path;
}

// How far a Bezier curve bends: a bound on its second difference.
double BendOf(const CPoint3D* curve)
{
    const auto bend = [curve](int i) {
        return std::hypot(curve[i].x - 2 * curve[i + 1].x + curve[i + 2].x,
                          curve[i].y - 2 * curve[i + 1].y + curve[i + 2].y);
    };
    return std::max(bend(0), bend(1));
}

CPoint3D PointOf(const CPoint3D* curve, double at)
{
    const double rest = 1 - at;
    const double weights[] = {rest * rest * rest, 3 * rest * rest * at, 3 * rest * at * at,
                              at * at * at};
    CPoint3D point;
    for (int i = 0; i < 4; ++i) {
        point.x += weights[i] * curve[i].x;
        point.y += weights[i] * curve[i].y;
    }
    return point;
}

CHatchRing PathOf(const CSplineDXF& edge)
{
    CSplineDXF spline = edge;
    if (MakeCubic(spline) == ECubic::Impossible) {
        return {};
    }
    const std::vector<CPoint3D> chain = BezierChain(spline);
    CHatchRing path;
    if (chain.empty()) {
        return path;
    }
    const double tolerance = ExtentOf(chain).Longer() * kChordTolerance;
    path.push_back({chain.front().x, chain.front().y, 0.0});
    for (std::size_t i = 0; i + 3 < chain.size(); i += 3) {
        // chords of a curve whose second derivative is up to 6 bends are off by 6 / 8 of a bend / n^2
        const double wanted = std::ceil(std::sqrt(0.75 * BendOf(&chain[i]) / tolerance));
        const double chords = wanted >= 1 && wanted <= kMostChords ? wanted : 1.0;
        for (double j = 1; j <= chords; ++j) {
            path.push_back(PointOf(&chain[i], j / chords));
        }
    }
    return path;
}

bool IsCurve(const CHatchEdgeDXF& edge)
{
    return boost::variant2::holds_alternative<CEllipseDXF>(edge)
        || boost::variant2::holds_alternative<CSplineDXF>(edge);
}

// The first edge goes the way that ends nearer to the second, each further one the way that begins
// nearer to the end of what is there.
void Append(CHatchRing& ring, CHatchRing path, const CHatchRing& next)
{
    if (path.empty()) {
        return;
    }
    if (ring.empty()) {
        if (!next.empty()) {
            const auto gap = [&next](const CPoint3D& end) {
                return std::min(Distance(end, next.front()), Distance(end, next.back()));
            };
            if (gap(path.front()) < gap(path.back())) {
                Reverse(path);
            }
        }
        ring = std::move(path);
        return;
    }
    if (Distance(ring.back(), path.back()) < Distance(ring.back(), path.front())) {
        Reverse(path);
    }
    ring.insert(ring.end(), path.begin(), path.end());
}

CHatchRing JoinedEdges(const CHatchLoopDXF& loop)
{
    std::vector<CHatchRing> paths;
    paths.reserve(loop.size());
    for (const CHatchEdgeDXF& edge : loop) {
        paths.push_back(
            boost::variant2::visit([](const auto& shape) { return PathOf(shape); }, edge));
    }
    CHatchRing ring;
    for (std::size_t i = 0; i < paths.size(); ++i) {
        Append(ring, paths[i], i + 1 < paths.size() ? paths[i + 1] : CHatchRing());
    }
    return ring;
}

// Of vertices in one place the last one's bulge leads on. The end joins the start in the same way.
void MergeNeighbours(CHatchRing& ring, double tolerance)
{
    CHatchRing kept;
    kept.reserve(ring.size());
    for (const CPoint3D& vertex : ring) {
        const bool isSame = !kept.empty() && std::fabs(kept.back().x - vertex.x) <= tolerance
            && std::fabs(kept.back().y - vertex.y) <= tolerance;
        if (isSame) {
            kept.back().z = vertex.z;
        } else {
            kept.push_back(vertex);
        }
    }
    while (kept.size() > 1 && std::fabs(kept.back().x - kept.front().x) <= tolerance
           && std::fabs(kept.back().y - kept.front().y) <= tolerance)
    {
        kept.pop_back();
    }
    ring = std::move(kept);
}

bool Encloses(const CHatchRing& ring)
{
    const auto isArc = [](const CPoint3D& vertex) { return std::fabs(vertex.z) > kLeastBulge; };
    return ring.size() >= 3 || (ring.size() == 2 && isArc(ring[0]) && isArc(ring[1]));
}

} // namespace

SHatchRings RingsOf(const CHatchDXF& hatch, double tolerance)
{
    SHatchRings result;
    const auto take = [&result, tolerance](CHatchRing ring) {
        MergeNeighbours(ring, tolerance);
        if (Encloses(ring)) {
            result.rings.push_back(std::move(ring));
        } else {
            ++result.dropped;
        }
    };
    for (const CHatchLoopDXF& loop : hatch.loops) {
        if (!loop.empty()) { // an empty one has its vertices in the marked boundaries
            result.curvedEdges +=
                static_cast<int>(std::count_if(loop.begin(), loop.end(), IsCurve));
            take(JoinedEdges(loop));
        }
    }
    for (CHatchRing boundary : hatch.markedBoundaries) {
        for (CPoint3D& point : boundary) {
            point.z = 0.0;
        }
        take(std::move(boundary));
    }
    const auto area = [](const CHatchRing& ring) {
        const SExtent extent = ExtentOf(ring);
        return extent.width * extent.height;
    };
    const auto largest = std::max_element(
        result.rings.begin(), result.rings.end(),
        [&area](const CHatchRing& a, const CHatchRing& b) { return area(a) < area(b); });
    if (largest != result.rings.end()) {
        std::rotate(result.rings.begin(), largest, largest + 1);
    }
    return result;
}

std::vector<CHatchLineDXF> PlainLines(const CHatchDXF& hatch, const CHatchRing& ring)
{
    constexpr double kSlant = 45.0;
    constexpr double kAcross = 90.0;
    constexpr double kLines = 40.0;
    const double extent = ExtentOf(ring).Longer();
    const double gap = extent > 0 ? extent / kLines : 1.0;
    std::vector<CHatchLineDXF> lines;
    for (double turn = 0; turn <= (hatch.style.isDouble ? kAcross : 0); turn += kAcross) {
        CHatchLineDXF line;
        line.angle = hatch.angle + kSlant + turn;
        line.offsetX = -gap * std::sin(line.angle * kDegree);
        line.offsetY = gap * std::cos(line.angle * kDegree);
        lines.push_back(line);
    }
    return lines;
}

} // namespace velorx

// SPDX-License-Identifier: MIT
#include "tools/velorx/features/RingBridge.h"

#include "tools/velorx/features/RingNesting.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace velorx {

using VelorExchange::CPoint3D;

namespace {

constexpr double kMostSteps = 2e8; // vertices times holes

std::size_t Rightmost(const CFeatureLine& ring)
{
    const auto most = std::max_element(ring.begin(), ring.end(),
                                       [](const auto& a, const auto& b) { return a.x < b.x; });
    return static_cast<std::size_t>(most - ring.begin());
}

// Runs against the outline, and starts at its rightmost vertex.
void Prepare(CFeatureLine& hole, bool isOutlineLeft)
{
    if ((SignedArea(hole) > 0.0) == isOutlineLeft) {
        std::reverse(hole.begin(), hole.end());
    }
    std::rotate(hole.begin(), hole.begin() + static_cast<std::ptrdiff_t>(Rightmost(hole)),
                hole.end());
}

double Cross(const CPoint3D& origin, const CPoint3D& one, const CPoint3D& other)
{
    return (one.x - origin.x) * (other.y - origin.y) - (other.x - origin.x) * (one.y - origin.y);
}

/// Where the ray from a point to the right first meets a ring.
struct SHit
{
    double x = std::numeric_limits<double>::infinity();
    std::size_t end = 0; // of the edge that is met, the end further right
};

SHit FirstHit(const CFeatureLine& ring, const CPoint3D& point)
{
    SHit hit;
    for (std::size_t i = 0, before = ring.size() - 1; i < ring.size(); before = i++) {
        const CPoint3D& a = ring[before];
        const CPoint3D& b = ring[i];
        if ((a.y > point.y) == (b.y > point.y) && a.y != point.y && b.y != point.y) {
            continue;
        }
        const double least = std::min(a.x, b.x);
        const double x = a.y != b.y ? a.x + (point.y - a.y) / (b.y - a.y) * (b.x - a.x)
            : least >= point.x      ? least
                                    : std::max(a.x, b.x);
        if (x >= point.x && x < hit.x) {
            hit.x = x;
            hit.end = a.x > b.x ? before : i;
        }
    }
    return hit;
}

// The vertex to which a cut from `point`, the rightmost of a hole, crosses nothing: the right end of the
// edge that a ray meets, or what lies in the triangle between, nearest to the ray.
std::size_t VertexInSight(const CFeatureLine& ring, const CPoint3D& point)
{
    const SHit hit = FirstHit(ring, point);
    if (!std::isfinite(hit.x)) {
        return 0; // it does not lie in the ring
    }
    const CPoint3D met = {hit.x, point.y, 0.0};
    const CPoint3D end = ring[hit.end];
    const double turn = Cross(point, met, end) >= 0.0 ? 1.0 : -1.0;
    std::size_t best = hit.end;
    double least = std::numeric_limits<double>::infinity();
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const CPoint3D& v = ring[i];
        const bool isIn = v.x >= point.x && turn * Cross(point, met, v) >= 0.0
            && turn * Cross(met, end, v) >= 0.0 && turn * Cross(end, point, v) >= 0.0;
        const double dx = v.x - point.x;
        const double slope = dx > 0.0 ? std::fabs(v.y - point.y) / dx : 0.0;
        if (isIn && (slope < least || (slope == least && dx < ring[best].x - point.x))) {
            least = slope;
            best = i;
        }
    }
    return best;
}

void InsertHole(CFeatureLine& ring, std::size_t from, const CFeatureLine& hole)
{
    CFeatureLine detour = hole;
    detour.push_back(hole.front());
    detour.push_back(ring[from]);
    ring.insert(ring.begin() + static_cast<std::ptrdiff_t>(from) + 1, detour.begin(), detour.end());
}

void AppendHole(CFeatureLine& ring, const CFeatureLine& hole)
{
    const CPoint3D first = ring.front();
    ring.push_back(first);
    ring.insert(ring.end(), hole.begin(), hole.end());
    ring.push_back(hole.front());
}

} // namespace

CFeatureLine JoinHoles(const CFeatureLine& outline, std::vector<CFeatureLine> holes)
{
    CFeatureLine ring = outline;
    const bool isLeft = SignedArea(outline) > 0.0;
    auto vertices = static_cast<double>(outline.size());
    for (CFeatureLine& hole : holes) {
        Prepare(hole, isLeft);
        vertices += static_cast<double>(hole.size());
    }
    // From right to left: what a ray meets is then joined already.
    std::stable_sort(holes.begin(), holes.end(), [](const CFeatureLine& a, const CFeatureLine& b) {
        return a.front().x > b.front().x;
    });
    const bool isHuge = vertices * static_cast<double>(holes.size()) > kMostSteps;
    for (const CFeatureLine& hole : holes) {
        if (isHuge) {
            AppendHole(ring, hole);
        } else {
            InsertHole(ring, VertexInSight(ring, hole.front()), hole);
        }
    }
    return ring;
}

} // namespace velorx

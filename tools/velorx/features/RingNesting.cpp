// SPDX-License-Identifier: MIT
#include "tools/velorx/features/RingNesting.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace velorx {

using VelorExchange::CPoint3D;

namespace {

enum class ESide { Outside, On, Inside };

// What is no number would have no place in any order.
double Known(double value)
{
    return std::isnan(value) ? 0.0 : value;
}

struct SBox
{
    double left = 0.0;
    double right = 0.0;
    double bottom = 0.0;
    double top = 0.0;
    double area = 0.0; // of the ring, without sign

    explicit SBox(const CFeatureLine& ring) : area(Known(std::fabs(SignedArea(ring))))
    {
        const auto [least, most] = std::minmax_element(
            ring.begin(), ring.end(), [](const auto& a, const auto& b) { return a.x < b.x; });
        const auto [low, high] = std::minmax_element(
            ring.begin(), ring.end(), [](const auto& a, const auto& b) { return a.y < b.y; });
        if (!ring.empty()) {
            left = Known(least->x);
            right = Known(most->x);
            bottom = Known(low->y);
            top = Known(high->y);
        }
    }

    bool Holds(const SBox& other) const
    {
        return area > other.area && left <= other.left && right >= other.right
            && bottom <= other.bottom && top >= other.top;
    }
};

bool IsBetween(double value, double one, double other)
{
    return value >= std::min(one, other) && value <= std::max(one, other);
}

ESide SideOf(double x, double y, const CFeatureLine& ring)
{
    bool isInside = false;
    const CPoint3D* from = &ring.back();
    for (const CPoint3D& to : ring) {
        const double across = (to.x - from->x) * (y - from->y) - (to.y - from->y) * (x - from->x);
        if (across == 0.0 && IsBetween(x, from->x, to.x) && IsBetween(y, from->y, to.y)) {
            return ESide::On;
        }
        if ((from->y > y) != (to.y > y) && (across > 0.0) == (to.y > from->y)) {
            isInside = !isInside;
        }
        from = &to;
    }
    return isInside ? ESide::Inside : ESide::Outside;
}

// Rings do not cross, so that one point that is not on the other ring tells. A ring whose vertices are
// all on the other is told by the middle of an edge.
bool LiesIn(const CFeatureLine& inner, const CFeatureLine& outer)
{
    if (inner.empty() || outer.empty()) {
        return false;
    }
    for (const CPoint3D& vertex : inner) {
        const ESide side = SideOf(vertex.x, vertex.y, outer);
        if (side != ESide::On) {
            return side == ESide::Inside;
        }
    }
    const CPoint3D* from = &inner.back();
    for (const CPoint3D& to : inner) {
        const ESide side = SideOf((from->x + to.x) / 2.0, (from->y + to.y) / 2.0, outer);
        if (side != ESide::On) {
            return side == ESide::Inside;
        }
        from = &to;
    }
    return false;
}

std::vector<std::size_t> Order(std::size_t count)
{
    std::vector<std::size_t> order(count);
    std::iota(order.begin(), order.end(), std::size_t{0});
    return order;
}

} // namespace

double SignedArea(const CFeatureLine& ring)
{
    double sum = 0.0;
    for (std::size_t i = 2; i < ring.size(); ++i) {
        // From the first vertex, so that coordinates of millions leave digits for the area.
        sum += (ring[i - 1].x - ring[0].x) * (ring[i].y - ring[0].y)
            - (ring[i].x - ring[0].x) * (ring[i - 1].y - ring[0].y);
    }
    return sum;
}

// From left to right, with a list of the rings that the sweep is in. The ring right around another is
// the least of those that it lies in.
std::vector<SRingNest> NestRings(const std::vector<CFeatureLine>& rings)
{
    std::vector<SRingNest> nests(rings.size());
    if (rings.size() < 2) {
        return nests;
    }
    const std::vector<SBox> boxes(rings.begin(), rings.end());
    std::vector<std::size_t> order = Order(rings.size());
    std::sort(order.begin(), order.end(), [&boxes](std::size_t a, std::size_t b) {
        return boxes[a].left != boxes[b].left ? boxes[a].left < boxes[b].left
                                              : boxes[a].area > boxes[b].area;
    });
    std::vector<std::size_t> open;
    for (const std::size_t at : order) {
        const SBox& box = boxes[at];
        open.erase(std::remove_if(open.begin(), open.end(),
                                  [&](std::size_t i) { return boxes[i].right < box.left; }),
                   open.end());
        int& around = nests[at].around;
        for (const std::size_t i : open) {
            const bool isLess =
                around < 0 || boxes[i].area < boxes[static_cast<std::size_t>(around)].area;
            if (isLess && boxes[i].Holds(box) && LiesIn(rings[at], rings[i])) {
                around = static_cast<int>(i);
            }
        }
        open.push_back(at);
        // What is around it begins at the same place or further left, and is greater: it is done.
        nests[at].depth = around < 0 ? 0 : nests[static_cast<std::size_t>(around)].depth + 1;
    }
    return nests;
}

} // namespace velorx

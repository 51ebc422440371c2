// SPDX-License-Identifier: MIT
#include "tools/velorx/features/RingOrder.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <utility>

namespace velorx {

using VelorExchange::CPoint3D;

namespace {

struct SBox
{
    double left = std::numeric_limits<double>::infinity();
    double right = -std::numeric_limits<double>::infinity();
    double bottom = std::numeric_limits<double>::infinity();
    double top = -std::numeric_limits<double>::infinity();

    bool Holds(const SBox& other) const
    {
        return left <= other.left && other.right <= right && bottom <= other.bottom
            && other.top <= top;
    }
};

SBox BoxOf(const CFeatureLine& ring)
{
    SBox box;
    for (const CPoint3D& vertex : ring) {
        box.left = std::min(box.left, vertex.x);
        box.right = std::max(box.right, vertex.x);
        box.bottom = std::min(box.bottom, vertex.y);
        box.top = std::max(box.top, vertex.y);
    }
    return box;
}

// Whether a ray to the right crosses the ring an odd number of times.
bool IsInside(const CPoint3D& point, const CFeatureLine& ring)
{
    bool isInside = false;
    for (std::size_t i = 0, before = ring.size() - 1; i < ring.size(); before = i++) {
        const CPoint3D &a = ring[before], &b = ring[i];
        if ((a.y > point.y) != (b.y > point.y)
            && point.x < a.x + (b.x - a.x) * (point.y - a.y) / (b.y - a.y))
        {
            isInside = !isInside;
        }
    }
    return isInside;
}

bool IsSame(const CPoint3D& a, const CPoint3D& b)
{
    return a.x == b.x && a.y == b.y && a.z == b.z;
}

} // namespace

void DropRepeats(CFeatureLine& ring)
{
    ring.erase(std::unique(ring.begin(), ring.end(), IsSame), ring.end());
    while (ring.size() > 1 && IsSame(ring.front(), ring.back())) {
        ring.pop_back();
    }
}

void PutOutermostFirst(std::vector<CFeatureLine>& rings)
{
    struct SPlace
    {
        std::size_t ring;
        std::size_t depth;
    };
    std::vector<SBox> boxes;
    boxes.reserve(rings.size());
    std::transform(rings.begin(), rings.end(), std::back_inserter(boxes), BoxOf);
    std::vector<SPlace> order;
    for (std::size_t i = 0; i < rings.size(); ++i) {
        std::size_t depth = 0;
        for (std::size_t j = 0; j < rings.size(); ++j) {
            const bool isWithin = i != j && !rings[i].empty() && boxes[j].Holds(boxes[i])
                && IsInside(rings[i].front(), rings[j]);
            depth += isWithin ? 1 : 0;
        }
        order.push_back({i, depth});
    }
    std::stable_sort(order.begin(), order.end(),
                     [](const SPlace& a, const SPlace& b) { return a.depth < b.depth; });
    std::vector<CFeatureLine> sorted;
    sorted.reserve(rings.size());
    for (const SPlace& place : order) {
        sorted.push_back(std::move(rings[place.ring]));
    }
    rings = std::move(sorted);
}

} // namespace velorx

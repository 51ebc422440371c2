// SPDX-License-Identifier: MIT
#include "tools/velorx/features/RingOrder.h"

#include "tools/velorx/features/RingNesting.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <utility>

namespace velorx {

using VelorExchange::CPoint3D;

namespace {

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
    const std::vector<SRingNest> nests = NestRings(rings);
    std::vector<std::size_t> order(rings.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [&nests](std::size_t a, std::size_t b) {
        return nests[a].depth < nests[b].depth;
    });
    std::vector<CFeatureLine> sorted;
    sorted.reserve(rings.size());
    for (const std::size_t ring : order) {
        sorted.push_back(std::move(rings[ring]));
    }
    rings = std::move(sorted);
}

} // namespace velorx

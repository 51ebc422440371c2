// SPDX-License-Identifier: MIT
#include "tools/velorx/features/AreaParts.h"

#include "tools/velorx/features/RingNesting.h"

#include <cstddef>

namespace velorx {

std::vector<SAreaPart> AreaParts(const std::vector<CFeatureLine>& rings)
{
    const std::vector<SRingNest> nests = NestRings(rings);
    std::vector<SAreaPart> parts;
    std::vector<std::size_t> partOf(rings.size());
    for (std::size_t i = 0; i < rings.size(); ++i) {
        if (!nests[i].IsHole()) {
            partOf[i] = parts.size();
            parts.push_back({&rings[i], {}});
        }
    }
    for (std::size_t i = 0; i < rings.size(); ++i) {
        if (nests[i].IsHole()) {
            const auto around = static_cast<std::size_t>(nests[i].around);
            parts[partOf[around]].holes.push_back(&rings[i]);
        }
    }
    return parts;
}

} // namespace velorx

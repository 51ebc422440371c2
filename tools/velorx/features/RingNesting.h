// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/Feature.h"

#include <vector>

namespace velorx {

/// Where a ring lies among the others of its area.
struct SRingNest
{
    int around = -1; ///< Index of the ring right around it; -1 for none.
    int depth = 0; ///< How many rings are around it.

    /// A hole in the ring around it, which is an outline.
    bool IsHole() const { return depth % 2 != 0; }
};

/// Twice the area within a ring, negative where it runs clockwise.
double SignedArea(const CFeatureLine& ring);

/// How rings, which do not cross, lie in one another. Of two equal rings neither lies in the other.
/// Rings of more than a few thousand take a time that grows with how many lie above one another.
std::vector<SRingNest> NestRings(const std::vector<CFeatureLine>& rings);

} // namespace velorx

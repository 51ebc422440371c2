// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/Feature.h"

#include <vector>

namespace velorx {

/// One ring that encloses what `outline` encloses without `holes`, which lie in it and apart from each
/// other: from the outline a cut leads to each hole and back the same way, so that area and fill are
/// those of the area with holes. Holes run against the outline. All vertices are those of the rings.
///
/// Cuts cross nothing, but for areas so large that looking for a way would take minutes: there all cuts
/// start from the outline's first vertex.
CFeatureLine JoinHoles(const CFeatureLine& outline, std::vector<CFeatureLine> holes);

} // namespace velorx

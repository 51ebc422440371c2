// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/Feature.h"

#include <vector>

namespace velorx {

/// One outline of an area and the holes that lie directly in it.
struct SAreaPart
{
    const CFeatureLine* outline = nullptr; ///< Lives in the area's rings; never null.
    std::vector<const CFeatureLine*> holes; ///< The same.
};

/// Takes an area apart for formats in which an area has one outline: rings that lie in an even number of
/// others are outlines, the rest are holes. Parts come in the order of their outlines.
std::vector<SAreaPart> AreaParts(const std::vector<CFeatureLine>& rings);

} // namespace velorx

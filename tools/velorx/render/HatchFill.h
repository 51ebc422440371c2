// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/render/HatchFamily.h"

#include <vector>

namespace velorx {

/// Hands on the lines of `family` within what an odd number of `rings` encloses. The rings lie within a
/// picture, pixels. False, with nothing handed on, if the budget does not suffice.
bool CutHatch(const std::vector<CPixelLine>& rings, SHatchFamily family, SPieceBudget& budget,
              const CTakePiece& take);

} // namespace velorx

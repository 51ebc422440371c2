// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/Feature.h"

namespace velorx {

/// The outline of what is shown of an image, file units: its clip, or its four corners.
CFeatureLine ImageRing(const SImageFeature& image);

} // namespace velorx

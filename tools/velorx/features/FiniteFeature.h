// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/Feature.h"

namespace velorx {

// Whether all numbers of a feature that tell its shape, place and size are finite. Sources hand on no others.
bool IsFinite(const SPointFeature& point);
bool IsFinite(const SLineFeature& line);
bool IsFinite(const SAreaFeature& area);
bool IsFinite(const STextFeature& text);
bool IsFinite(const SImageFeature& image);

} // namespace velorx

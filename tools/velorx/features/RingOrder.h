// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/Feature.h"

#include <vector>

namespace velorx {

/// Takes off what repeats: neighbours in one place, and the first vertex at the end.
void DropRepeats(CFeatureLine& ring);

/// Puts the rings first that lie in no other, behind them those that lie in one, and so on, otherwise in
/// their order.
void PutOutermostFirst(std::vector<CFeatureLine>& rings);

} // namespace velorx

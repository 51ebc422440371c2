// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/Feature.h"
#include "tools/velorx/features/FeatureTally.h"

namespace velorx {

/// Lists what a target whose layers have no state loses of one.
inline void LoseLayerState(const SFeatureLayer& layer, CFeatureTally& tally)
{
    if (!layer.isVisible) {
        tally.Lose(QStringLiteral("hidden layers are shown"), layer.name);
    }
    if (layer.isLocked) {
        tally.Lose(QStringLiteral("locked layers are open to changes"), layer.name);
    }
}

} // namespace velorx

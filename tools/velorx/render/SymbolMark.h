// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/Feature.h"

#include <QPainterPath>

namespace velorx {

/// The mark of a point, around (0, 0), pixels.
struct SSymbolMark
{
    QPainterPath outline;
    bool isFilled = false;
};

/// Whether `point` stands for a block reference that draws nothing, which has no mark.
bool IsEmptyBlock(const SPointFeature& point);

/// A small mark for `symbol`: that of the standard set for the numbers that are drawn there, a dot for a
/// plain point, a circle for every other. Signs of a font's own are not drawn.
SSymbolMark MarkFor(const SFeatureSymbol& symbol);

} // namespace velorx

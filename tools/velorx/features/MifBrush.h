// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/Feature.h"
#include "VelorExchange/mif/Brush.h"

namespace velorx {

/// The fill that a brush paints. Patterns have names like "MIF 15"; those of lines have the lines too.
/// White behind a pattern is no background, since the library gives white where the file has none.
SFeatureFill FillOfBrush(const VelorExchange::mif::CBrushMIF& brush);

/// Whether a brush paints a pattern that is not made of lines, of which the stream has the name alone.
bool HasDots(const VelorExchange::mif::CBrushMIF& brush);

/// A brush for an area, and in what it differs.
struct SMifBrush
{
    VelorExchange::mif::CBrushMIF brush;
    bool isNearPattern = false; ///< The pattern became the one that is most like it.
};

/// The brush that is most like a fill. Patterns that are called as `FillOfBrush` calls them become
/// the pattern that they were.
SMifBrush BrushOfFill(const SFeatureFill& fill);

} // namespace velorx

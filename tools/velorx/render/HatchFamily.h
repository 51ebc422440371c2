// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/Feature.h"
#include "tools/velorx/render/Dashes.h"
#include "tools/velorx/render/PictureView.h"

#include <vector>

namespace velorx {

/// Parallel lines of a hatch pattern, pixels, y downwards.
struct SHatchFamily
{
    QPointF base; ///< A point of line 0, at which its dashes begin.
    QPointF along; ///< Of length 1.
    QPointF step; ///< From each line to the next, and with it the beginning of the dashes.
    CDashes dashes;

    /// The distance between neighbouring lines, pixels; negative if `step` leads to the left of `along`.
    double Gap() const { return along.x() * step.y() - along.y() * step.x(); }
};

/// The families of lines that fill an area of the given extents, in pixels. They are those of the source
/// where it has some, else those that the name stands for, else plain slanted lines. Lines that would be
/// too dense to be told apart are spread, all of a pattern by the same factor.
std::vector<SHatchFamily> HatchFamilies(const SFeatureFill& fill, const CPictureView& view,
                                        double shorterExtent);

} // namespace velorx

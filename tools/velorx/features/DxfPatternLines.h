// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/Feature.h"
#include "VelorExchange/dxf/records/HatchStyle.h"

#include <vector>

namespace velorx {

/// Whether a patterned fill tells lines that can be drawn in `ring` as they are: not those that are measured
/// on paper, nor thousands.
bool HasLinesToDraw(const SFeatureFill& fill, const CFeatureLine& ring);

/// The lines of a patterned fill for the writer, which counts their places from the middle of `ring`. Where
/// they cannot be drawn as they are, plain lines in their directions, else in those that patterns of
/// its name have, 45 degrees for those that are not known, a fortieth of the extent of `ring` apart.
std::vector<VelorExchange::dxf::CHatchLineDXF> PatternLines(const SFeatureFill& fill,
                                                            const CFeatureLine& ring);

} // namespace velorx

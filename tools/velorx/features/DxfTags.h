// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/records/Attrib.h"

#include "tools/velorx/features/Feature.h"

#include <vector>

namespace velorx {

class CFeatureTally;

/// What stands beside a feature, as hidden attributes of an insert.
///
/// `outlines` is how many closed polylines behind the next object are its outlines; 0 for none. Empty if
/// there is nothing to keep. What has to be changed goes to `tally`.
std::vector<VelorExchange::dxf::CAttribDXF> TagsOf(const SFeature& feature, int outlines,
                                                   CFeatureTally& tally);

} // namespace velorx

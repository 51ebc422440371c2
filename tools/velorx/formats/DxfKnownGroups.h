// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/formats/DxfGroups.h"

#include <string>

namespace velorx {

/// Whether a conversion takes care of the group `code` of an entity of the kind: carries it over, counts
/// its loss under a name, or knows that it draws nothing. Zeros and extended data need no care.
bool IsGroupKnown(const std::string& kind, int code, const CDxfGroups& groups);

} // namespace velorx

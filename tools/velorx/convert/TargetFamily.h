// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace velorx {

/// A family of formats that velorx writes.
struct STargetFamily
{
    const char* name; ///< "DXF"; by this name targets are made.
    const char* extension; ///< Without the point, lower case; also the word behind `--to`.
};

/// The family called `extension`, in any case; null if there is none.
const STargetFamily* FindTargetFamily(const std::string& extension);

/// The family that the ending of the path `name` tells; null if it tells none.
const STargetFamily* TargetFamilyOf(const std::string& name);

/// The extensions of all families.
std::vector<std::string> TargetExtensions();

} // namespace velorx

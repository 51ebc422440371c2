// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/check/Findings.h"

#include <string_view>

namespace velorx {

/// A group of a drawing: its code and its value, each on a line of its own.
struct SDxfPair
{
    int code = -1; ///< -1 for what is no number.
    std::string_view value; ///< Without blanks around it; good until the next pair.
    SPlace codePlace;
    SPlace valuePlace;
};

} // namespace velorx

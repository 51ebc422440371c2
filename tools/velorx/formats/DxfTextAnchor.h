// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>

namespace velorx {

/// Whether a text of one line that is set by its top, middle or bottom has that point as its position.
/// `vertical` is 0 for its base line. `number` gives the number of a group, or its second argument where the
/// group is missing.
template <class TNumber>
bool IsAtAnchor(int vertical, TNumber number)
{
    constexpr double kNear = 1e-6;
    const auto isSame = [&number](int code) {
        return std::fabs(number(code, 0.0) - number(code + 1, HUGE_VAL)) < kNear;
    };
    return vertical != 0 && isSame(10) && isSame(20);
}

} // namespace velorx

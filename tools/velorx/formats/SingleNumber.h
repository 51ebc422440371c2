// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace velorx {

/// A number of single precision the way people write it.
struct SSingleNumber
{
    double value = 0.0; ///< 12.7 for what would else be 12.699999809265137.
    std::size_t digits =
        0; ///< Of the mantissa, without zeros at either end; 0 where the number is not finite.
};

/// The number with the fewest digits that `number` stands for.
SSingleNumber ShortestOf(float number);

} // namespace velorx

// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/SingleNumber.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string_view>

namespace velorx {

namespace {

// Of "-1.27e+01".
std::size_t DigitsOf(std::string_view text)
{
    const std::string_view mantissa = text.substr(0, text.find('e'));
    return static_cast<std::size_t>(std::count_if(mantissa.begin(), mantissa.end(),
                                                  [](char c) { return c >= '0' && c <= '9'; }));
}

} // namespace

SSingleNumber ShortestOf(float number)
{
    constexpr std::size_t kLongest = 32;
    SSingleNumber shortest{static_cast<double>(number), 0};
    if (!std::isfinite(number)) {
        return shortest;
    }
    std::array<char, kLongest> text = {};
    char* begin = text.data();
    const char* end =
        std::to_chars(begin, begin + text.size(), number, std::chars_format::scientific).ptr;
    std::from_chars(begin, end, shortest.value);
    shortest.digits = DigitsOf({begin, static_cast<std::size_t>(end - begin)});
    return shortest;
}

} // namespace velorx

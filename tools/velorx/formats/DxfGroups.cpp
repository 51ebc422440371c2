// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfGroups.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace velorx {

namespace {

struct SNumber
{
    double value = 0.0;
    bool isWhole = false; ///< Whether nothing but the number stands there.
};

SNumber NumberOf(std::string_view text)
{
    SNumber number;
    if (!text.empty() && text.front() == '+') {
        text.remove_prefix(1);
    }
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number.value);
    number.isWhole = result.ec == std::errc() && result.ptr == end;
    if (!std::isfinite(number.value)) {
        return {};
    }
    return number;
}

} // namespace

void CDxfGroups::Clear()
{
    for (const std::size_t code : touched) {
        groups[code] = SGroup{};
        if (code < kTexts) {
            texts[code].clear();
        }
    }
    touched.clear();
}

double CDxfGroups::Add(int code, std::string_view value)
{
    if (code < 0 || code >= kCodes) {
        return 0.0;
    }
    const auto index = static_cast<std::size_t>(code);
    SGroup& group = groups[index];
    const SNumber number = NumberOf(value);
    if (group.count == 0) {
        touched.push_back(index);
        group.first = number.value;
        if (code < kTexts) {
            texts[index] = value;
        }
    } else if (!group.varies) {
        group.varies = number.value != group.first;
    }
    group.isZero = group.isZero && number.isWhole && number.value == 0;
    ++group.count;
    return number.value;
}

double CDxfGroups::Number(int code, double absent) const
{
    return Has(code) ? groups[static_cast<std::size_t>(code)].first : absent;
}

int CDxfGroups::Integer(int code, int absent) const
{
    const double number = Number(code, absent);
    constexpr double kMost = std::numeric_limits<int>::max();
    return std::fabs(number) <= kMost ? static_cast<int>(number) : 0;
}

EDxfPlane CDxfGroups::Plane() const
{
    return PlaneIn([this](int code, double absent) { return Number(code, absent); });
}

} // namespace velorx

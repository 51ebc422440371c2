// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfGroups.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace velorx {

namespace {

constexpr int kNameCode = 2;

double NumberOf(std::string_view text)
{
    double number = 0.0;
    if (!text.empty() && text.front() == '+') {
        text.remove_prefix(1);
    }
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

} // namespace

void CDxfGroups::Clear()
{
    for (const std::size_t code : touched) {
        groups[code] = SGroup{};
    }
    touched.clear();
    name.clear();
}

void CDxfGroups::Add(int code, std::string_view value)
{
    if (code < 0 || code >= kCodes) {
        return;
    }
    const auto index = static_cast<std::size_t>(code);
    SGroup& group = groups[index];
    if (code == kNameCode && group.count == 0) {
        name = value;
    }
    if (group.count == 0) {
        touched.push_back(index);
        group.first = NumberOf(value);
    } else if (!group.varies) {
        group.varies = NumberOf(value) != group.first;
    }
    ++group.count;
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

} // namespace velorx

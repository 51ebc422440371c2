// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace VelorExchange::dxf {

/// In which version a pair of a template stands.
enum class ETemplateVersion { Both, Only1015, Only1018 };

constexpr auto k1015 = ETemplateVersion::Only1015;
constexpr auto k1018 = ETemplateVersion::Only1018;

/// A group of a template. Integers are given without the blanks that fill their column. The version
/// of a record's or a header variable's first group (0 or 9) holds for all its groups.
struct CTemplatePair
{
    int code;
    std::string_view value;
    ETemplateVersion version = ETemplateVersion::Both;
};

} // namespace VelorExchange::dxf

// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace VelorExchange::dxf {

/// The fixed texts of a drawing for one version: ASCII, lines ended by CR LF, group codes in three
/// columns. They use handles below hexadecimal C8 only. Each text's content is told at its data, in
/// `templates/`.
struct CTemplates
{
    std::string_view header;
    std::string_view classes;
    std::string_view viewports;
    std::string_view tables;
    std::string_view blocks;
    std::string_view objects;
};

/// The texts for AC1015 or, for any other `version`, AC1018.
const CTemplates& TemplatesOf(int version);

} // namespace VelorExchange::dxf

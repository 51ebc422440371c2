// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/write/TemplatePair_p.h"

// The whole VPORT table with its one record. The view is that of an empty drawing and doesn't
// follow what is drawn.
namespace VelorExchange::dxf::templates {

// One record a paragraph.
// clang-format off
constexpr CTemplatePair kViewports[] = {
    {0, "TABLE"}, {2, "VPORT"}, {5, "8"}, {330, "0"}, {100, "AcDbSymbolTable"}, {70, "3", k1015},
        {70, "2", k1018},

    {0, "VPORT"}, {5, "83", k1015}, {5, "81", k1018}, {330, "8"}, {100, "AcDbSymbolTableRecord"},
        {100, "AcDbViewportTableRecord"}, {2, "*Active"}, {70, "0"}, {10, "0.0"}, {20, "0.0"},
        {11, "1.0"}, {21, "1.0"}, {12, "812.0002951303476", k1015},
        {12, "825.1607537224115", k1018}, {22, "472.2858859431613"}, {13, "0.0"}, {23, "0.0"},
        {14, "10.0"}, {24, "10.0"}, {15, "10.0"}, {25, "10.0"}, {16, "0.0"}, {26, "0.0"},
        {36, "1.0"}, {17, "0.0"}, {27, "0.0"}, {37, "0.0"}, {40, "944.5717718863226"},
        {41, "1.719298245614035", k1015}, {41, "1.747163695299837", k1018}, {42, "50.0"},
        {43, "0.0"}, {44, "0.0"}, {50, "0.0"}, {51, "0.0"}, {71, "0"}, {72, "1000"}, {73, "1"},
        {74, "3"}, {75, "0"}, {76, "0"}, {77, "0"}, {78, "0"}, {281, "0"}, {65, "1"}, {110, "0.0"},
        {120, "0.0"}, {130, "0.0"}, {111, "1.0"}, {121, "0.0"}, {131, "0.0"}, {112, "0.0"},
        {122, "1.0"}, {132, "0.0"}, {79, "0"}, {146, "0.0"},

    {0, "ENDTAB"},
};
// clang-format on

} // namespace VelorExchange::dxf::templates

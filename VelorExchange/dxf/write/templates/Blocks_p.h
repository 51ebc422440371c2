// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/write/TemplatePair_p.h"

// The name of the BLOCKS section and the three empty blocks of the layouts.
namespace VelorExchange::dxf::templates {

// One record a paragraph.
// clang-format off
constexpr CTemplatePair kBlocks[] = {
    {2, "BLOCKS"},

    {0, "BLOCK"}, {5, "20"}, {330, "1F"}, {100, "AcDbEntity"}, {8, "0"}, {100, "AcDbBlockBegin"},
        {2, "*Model_Space"}, {70, "0"}, {10, "0.0"}, {20, "0.0"}, {30, "0.0"}, {3, "*Model_Space"},
        {1, ""},

    {0, "ENDBLK"}, {5, "21"}, {330, "1F"}, {100, "AcDbEntity"}, {8, "0"}, {100, "AcDbBlockEnd"},

    {0, "BLOCK"}, {5, "52"}, {330, "50"}, {100, "AcDbEntity"}, {67, "1"}, {8, "0"},
        {100, "AcDbBlockBegin"}, {2, "*Paper_Space"}, {70, "0"}, {10, "0.0"}, {20, "0.0"},
        {30, "0.0"}, {3, "*Paper_Space"}, {1, ""},

    {0, "ENDBLK"}, {5, "53"}, {330, "50"}, {100, "AcDbEntity"}, {67, "1"}, {8, "0"},
        {100, "AcDbBlockEnd"},

    {0, "BLOCK"}, {5, "57"}, {330, "55"}, {100, "AcDbEntity"}, {8, "0"}, {100, "AcDbBlockBegin"},
        {2, "*Paper_Space0"}, {70, "0"}, {10, "0.0"}, {20, "0.0"}, {30, "0.0"},
        {3, "*Paper_Space0"}, {1, ""},

    {0, "ENDBLK"}, {5, "58"}, {330, "55"}, {100, "AcDbEntity"}, {8, "0"}, {100, "AcDbBlockEnd"},
};
// clang-format on

} // namespace VelorExchange::dxf::templates

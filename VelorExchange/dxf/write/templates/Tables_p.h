// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/write/TemplatePair_p.h"

// The whole VIEW, UCS, APPID and DIMSTYLE tables and the head of the BLOCK_RECORD table with its
// three records; the writer goes on with its own records and the ENDTAB. The text style under 340 of
// the DIMSTYLE is the eighth handle that the writer takes.
namespace VelorExchange::dxf::templates {

// One record a paragraph.
// clang-format off
constexpr CTemplatePair kTables[] = {
    {0, "TABLE"}, {2, "VIEW"}, {5, "6"}, {330, "0"}, {100, "AcDbSymbolTable"}, {70, "0"},

    {0, "ENDTAB"},

    {0, "TABLE"}, {2, "UCS"}, {5, "7"}, {330, "0"}, {100, "AcDbSymbolTable"}, {70, "0"},

    {0, "ENDTAB"},

    {0, "TABLE"}, {2, "APPID"}, {5, "9"}, {330, "0"}, {100, "AcDbSymbolTable"}, {70, "1"},

    {0, "APPID"}, {5, "12"}, {330, "9"}, {100, "AcDbSymbolTableRecord"},
        {100, "AcDbRegAppTableRecord"}, {2, "ACAD"}, {70, "0"},

    {0, "ENDTAB"},

    {0, "TABLE"}, {2, "DIMSTYLE"}, {5, "A"}, {330, "0"}, {100, "AcDbSymbolTable"}, {70, "1"},
        {100, "AcDbDimStyleTable"}, {71, "0"},

    {0, "DIMSTYLE"}, {105, "27"}, {330, "A"}, {100, "AcDbSymbolTableRecord"},
        {100, "AcDbDimStyleTableRecord"}, {2, "ISO-25"}, {70, "0"}, {41, "2.5"}, {42, "0.625"},
        {43, "3.75"}, {44, "1.25"}, {73, "0"}, {74, "0"}, {77, "1"}, {78, "8"}, {140, "2.5"},
        {141, "2.5"}, {143, "0.03937007874016"}, {147, "0.625"}, {171, "3"}, {172, "1"},
        {271, "2"}, {272, "2"}, {274, "3"}, {278, "44"}, {283, "0"}, {284, "8"}, {340, "CF"},

    {0, "ENDTAB"},

    {0, "TABLE"}, {2, "BLOCK_RECORD"}, {5, "1"}, {330, "0"}, {100, "AcDbSymbolTable"}, {70, "3"},

    {0, "BLOCK_RECORD"}, {5, "1F"}, {330, "1"}, {100, "AcDbSymbolTableRecord"},
        {100, "AcDbBlockTableRecord"}, {2, "*Model_Space"}, {340, "22"},

    {0, "BLOCK_RECORD"}, {5, "50"}, {330, "1"}, {100, "AcDbSymbolTableRecord"},
        {100, "AcDbBlockTableRecord"}, {2, "*Paper_Space"}, {340, "51"},

    {0, "BLOCK_RECORD"}, {5, "55"}, {330, "1"}, {100, "AcDbSymbolTableRecord"},
        {100, "AcDbBlockTableRecord"}, {2, "*Paper_Space0"}, {340, "56"},
};
// clang-format on

} // namespace VelorExchange::dxf::templates

// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/write/TemplatePair_p.h"

// The name of the CLASSES section and the base classes.
namespace VelorExchange::dxf::templates {

// One record a paragraph.
// clang-format off
constexpr CTemplatePair kClasses[] = {
    {2, "CLASSES"},

    {0, "CLASS"}, {1, "ACDBDICTIONARYWDFLT"}, {2, "AcDbDictionaryWithDefault"},
        {3, "ObjectDBX Classes"}, {90, "0"}, {91, "1", k1018}, {280, "0"}, {281, "0"},

    {0, "CLASS", k1015}, {1, "ACDBPLACEHOLDER"}, {2, "AcDbPlaceHolder"}, {3, "ObjectDBX Classes"},
        {90, "0"}, {280, "0"}, {281, "0"},

    {0, "CLASS", k1015}, {1, "LAYOUT"}, {2, "AcDbLayout"}, {3, "ObjectDBX Classes"}, {90, "0"},
        {280, "0"}, {281, "0"},

    {0, "CLASS"}, {1, "DICTIONARYVAR"}, {2, "AcDbDictionaryVar"}, {3, "ObjectDBX Classes"},
        {90, "0"}, {91, "2", k1018}, {280, "0"}, {281, "0"},
};
// clang-format on

} // namespace VelorExchange::dxf::templates

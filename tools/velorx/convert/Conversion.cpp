// SPDX-License-Identifier: MIT
#include "tools/velorx/convert/Conversion.h"

#include <string_view>

namespace velorx {

namespace {

struct SWay
{
    std::string_view from;
    std::string_view to;
    CConversion conversion;
};

constexpr SWay kWays[] = {
    {"DXF", "DXF", ConvertDxfToDxf},
};

} // namespace

CConversion FindConversion(const SFamily& from, const SFamily& to)
{
    for (const SWay& way : kWays) {
        if (way.from == from.name && way.to == to.name) {
            return way.conversion;
        }
    }
    return nullptr;
}

} // namespace velorx

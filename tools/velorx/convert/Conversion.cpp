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
    {"SXF", "SXF", ConvertSxfToSxf},
    {"SXF", "SXF text", ConvertSxfToSxfText},
};

} // namespace

QString Convert(std::string_view from, std::string_view to, const SConversionJob& job,
                CConversionReport& report)
{
    for (const SWay& way : kWays) {
        if (way.from == from && way.to == to) {
            return way.conversion(job, report);
        }
    }
    return ConvertThroughFeatures(from, to, job, report);
}

} // namespace velorx

// SPDX-License-Identifier: MIT
#include "tests/tools/ConvertSupport.h"

#include <regex>

namespace velorx::test {

namespace {

constexpr char kBegin[] = "0\nSECTION\n2\nENTITIES\n";
constexpr char kEnd[] = "0\nENDSEC\n0\nEOF\n";

std::string Point(const std::string& x)
{
    return "0\nPOINT\n8\nWells\n10\n" + x + ".5\n20\n2.5\n30\n0.0\n";
}

} // namespace

std::string SmallDrawing()
{
    return kBegin + Point("1") + kEnd;
}

std::string LargeDrawing(int points)
{
    std::string drawing = kBegin;
    for (int i = 0; i < points; ++i) {
        drawing += Point(std::to_string(i));
    }
    return drawing + kEnd;
}

std::string BrokenDrawing()
{
    return "0\nSECTION\n2\nBLOCKS\n0\nBLOCK\n2\nB\n" + Point("1");
}

std::string WithoutTimes(const std::string& report)
{
    static const std::regex time("[0-9]{2}\\.[0-9]{2}\\.[0-9]{2}, [0-9]+:[0-9]{2}:[0-9]{2}");
    return std::regex_replace(report, time, "TIME");
}

} // namespace velorx::test

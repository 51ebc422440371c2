// SPDX-License-Identifier: MIT
#include "tools/velorx/features/MifDetails.h"

#include <gtest/gtest.h>

#include <sstream>

namespace velorx::test {

namespace {

std::string Apply(const std::vector<SMifDetail>& details, const std::string& lines)
{
    CMifDetailWriter writer(details);
    QByteArray out;
    std::istringstream in(lines);
    for (std::string line; std::getline(in, line);) {
        line += '\n';
        writer.Take(line.data(), line.data() + line.size(), out);
    }
    return out.toStdString();
}

SMifDetail Detail(qint64 object)
{
    SMifDetail detail;
    detail.object = object;
    return detail;
}

constexpr char kTriangle[] = "REGION 1\n3\n0 0\n1 0\n1 1\nPEN (1, 1, 0)\nBRUSH (2, 0, 0)\n";

} // namespace

TEST(MifDetails, WithoutAnyLinesStay)
{
    const std::string lines = std::string("\nPOINT 1 2\nTEXT \"REGION 1\"\n0 0 1 1\n") + kTriangle;
    EXPECT_EQ(Apply({}, lines), lines);
}

TEST(MifDetails, RegionGetsItsPen)
{
    SMifDetail detail = Detail(1);
    detail.hasPen = true;
    detail.pen = {2, 5, 0x0000FF};
    const std::string triangle = kTriangle;
    std::string outlined = triangle;
    outlined.replace(outlined.find("PEN (1, 1, 0)"), 13, "PEN (2, 5, 16711680)");
    EXPECT_EQ(Apply({detail}, triangle + triangle + triangle), triangle + outlined + triangle);
}

TEST(MifDetails, PensOfLinesStay)
{
    SMifDetail detail = Detail(0);
    detail.hasPen = true;
    const std::string line = "PLINE\n2\n1 1\n2 2\nPEN (1, 1, 0)\n";
    EXPECT_EQ(
        Apply({detail}, std::string(kTriangle) + line).substr(Apply({detail}, kTriangle).size()),
        line);
}

TEST(MifDetails, VerticesAreParcelledOutToRings)
{
    SMifDetail detail = Detail(0);
    detail.rings = {3, 4, 3};
    std::string vertices;
    for (int i = 0; i < 10; ++i) {
        vertices += "-" + std::to_string(i) + " 0\n";
    }
    EXPECT_EQ(Apply({detail}, "REGION 1\n10\n" + vertices + "PEN (1, 1, 0)\nPOINT 1 2\n"),
              "REGION 3\n3\n-0 0\n-1 0\n-2 0\n4\n-3 0\n-4 0\n-5 0\n-6 0\n3\n-7 0\n-8 0\n-9 0\n"
              "PEN (1, 1, 0)\nPOINT 1 2\n");
}

TEST(MifDetails, TextGetsItsAlignmentBehindTheFont)
{
    SMifDetail centre = Detail(0);
    centre.justify = 1;
    SMifDetail right = Detail(1);
    right.justify = 2;
    const std::string text = "TEXT \"FONT\"\n0 0 1 1\nFONT (\"A\", 0, 0, 0)\n";
    EXPECT_EQ(Apply({centre, right}, text + "Angle 5\n" + text + text),
              text + "Justify Center\nAngle 5\n" + text + "Justify Right\n" + text);
}

TEST(MifDetails, KnowsWhenNothingIsLeftToDo)
{
    SMifDetail detail = Detail(0);
    detail.hasPen = true;
    const std::vector<SMifDetail> details = {detail};
    CMifDetailWriter writer(details);
    QByteArray out;
    const std::string region = "REGION 1\n";
    const std::string point = "POINT 1 2\n";
    EXPECT_FALSE(writer.IsDone());
    writer.Take(region.data(), region.data() + region.size(), out);
    EXPECT_FALSE(writer.IsDone());
    writer.Take(point.data(), point.data() + point.size(), out);
    EXPECT_TRUE(writer.IsDone());
}

} // namespace velorx::test

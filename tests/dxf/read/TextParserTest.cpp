// SPDX-License-Identifier: MIT
#include "tests/support/DxfRecorder.h"

using namespace VelorExchange::test;

namespace {

// What the host gets for a TEXT with these groups.
std::string Text(const std::string& groups)
{
    return Recorded(Entities(("0 TEXT\n" + groups).c_str()));
}

} // namespace

TEST(TextParser, ReadsAllFields)
{
    EXPECT_EQ(Text("1 Well 7\n7 ROMAN\n8 Wells\n62 1\n10 1\n20 2\n30 3\n40 2.5\n50 90\n51 180\n"
                   "72 4\n"),
              "Text text=\"Well 7\" layer=\"Wells\" at=(1 2) height=2.5 "
              "rotation=1.5707963267948966 color=#0000FF align=4 style=\"ROMAN\" "
              "style.oblique=3.141592653589793\n");
}

TEST(TextParser, LeavesAbsentFieldsAtTheirDefaults)
{
    EXPECT_EQ(Text(""), "Text\n");
}

TEST(TextParser, RelativeWidthLandsInHeightOfStyle)
{
    EXPECT_EQ(Text("40 2.5\n41 0.8\n"), "Text height=2.5 style.height=0.8\n");
}

TEST(TextParser, TakesAnEmptyStyleName)
{
    EXPECT_EQ(Text("7\n"), "Text style=\"\"\n");
}

TEST(TextParser, PassesOverTheSecondAlignmentPoint)
{
    EXPECT_EQ(Text("10 1\n20 2\n11 3\n21 4\n31 5\n73 2\n"), "Text at=(1 2)\n");
}

TEST(TextParser, ConvertsItsPosition)
{
    EXPECT_EQ(Text("10 1\n20 2\n30 3\n210 0\n220 0\n230 -1\n"), "Text at=(-1 2)\n");
    EXPECT_EQ(Text("10 1\n20 2\n30 3\n210 1\n220 0\n230 0\n"), "Text at=(0 1)\n");
}

TEST(TextParser, JoinsSeveralPiecesOfText)
{
    EXPECT_EQ(Text("1 ab\n1 cd\n"), "Text text=\"ab;cd\"\n");
}

TEST(TextParser, KeepsFormattingCodes)
{
    EXPECT_EQ(Text("1 %%c100 \\U+00B0\n"), "Text text=\"%%c100 \\U+00B0\"\n");
}

TEST(TextParser, DropsTextInPaperSpace)
{
    EXPECT_EQ(Text("67 1\n1 ab\n0 POINT\n"), "Point\n");
}

TEST(TextParser, GoesIntoTheBlockInHand)
{
    EXPECT_EQ(Recorded(Block("0 TEXT\n62 0\n1 ab\n")),
              "Block name=\"B\"\n  Text text=\"ab\" color=#FFFFFFFF\n");
}

TEST(TextParser, ReadsNeitherLineTypeNorWeight)
{
    EXPECT_EQ(Text("6 DASHED\n370 25\n"), "Text\n");
}

TEST(TextParser, DeliversATextThatTheEndOfTheFileCutsOff)
{
    EXPECT_EQ(Recorded(Tags("0 SECTION\n2 ENTITIES\n0 TEXT\n1 ab\n")), "Text text=\"ab\"\n");
}

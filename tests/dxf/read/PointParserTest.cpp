// SPDX-License-Identifier: MIT
#include "tests/support/DxfRecorder.h"

using namespace VelorExchange::test;

TEST(PointParser, ReadsItsGroups)
{
    EXPECT_EQ(Recorded(Entities("0 POINT\n8 A\n62 1\n10 1.5\n20 2.5\n30 3.5\n39 0.25\n")),
              "Point layer=\"A\" color=#0000FF point=(1.5 2.5 3.5) thickness=0.25\n");
}

TEST(PointParser, AbsentGroupsAreZero)
{
    EXPECT_EQ(Recorded(Entities("0 POINT\n")), "Point\n");
}

TEST(PointParser, ExtrusionDownwardsNegatesXAndZ)
{
    EXPECT_EQ(Recorded(Entities("0 POINT\n10 1\n20 2\n30 3\n230 -1\n")), "Point point=(-1 2 -3)\n");
}

TEST(PointParser, ExtrusionIsTakenFromAllItsGroups)
{
    EXPECT_EQ(Recorded(Entities("0 POINT\n10 1\n20 2\n30 3\n210 1\n220 0\n230 0\n"
                                "0 POINT\n10 1\n20 2\n30 3\n210 0\n220 1\n230 0\n")),
              "Point point=(3 1 2)\nPoint point=(-1 3 2)\n");
}

TEST(PointParser, HasNoLineTypeAndNoLineWeight)
{
    EXPECT_EQ(Recorded(Entities("0 POINT\n6 DOT\n370 25\n")), "Point\n");
}

TEST(PointParser, ValuesThatDoNotConvertAreZero)
{
    EXPECT_EQ(Recorded(Entities("0 POINT\n10 x\n20 1,5\n30 3\n30 4\n39 \n")), "Point\n");
}

TEST(PointParser, DropsPointInPaperSpace)
{
    EXPECT_EQ(Recorded(Entities("0 POINT\n67 1\n10 1\n")), "");
}

TEST(PointParser, GoesIntoTheOpenBlock)
{
    EXPECT_EQ(Recorded(Block("0 POINT\n10 1\n")), "Block name=\"B\"\n  Point point=(1 0 0)\n");
}

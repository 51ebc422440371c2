// SPDX-License-Identifier: MIT
#include "tests/support/DxfRecorder.h"

using namespace VelorExchange::test;

TEST(LineParser, ReadsItsGroups)
{
    EXPECT_EQ(Recorded(Entities("0 LINE\n8 A\n6 DOT\n62 1\n370 25\n10 1\n20 2\n30 3\n"
                                "11 4\n21 5\n31 6\n")),
              "Line layer=\"A\" color=#0000FF weight=25 style=\"DOT\" start=(1 2 3) end=(4 5 6)\n");
}

TEST(LineParser, AbsentGroupsAreZero)
{
    EXPECT_EQ(Recorded(Entities("0 LINE\n")), "Line\n");
}

TEST(LineParser, ExtrusionChangesNothing)
{
    EXPECT_EQ(Recorded(Entities("0 LINE\n10 1\n20 2\n30 3\n11 4\n21 5\n31 6\n230 -1\n")),
              "Line start=(1 2 3) end=(4 5 6)\n");
}

TEST(LineParser, LineWeightMayBeNegative)
{
    EXPECT_EQ(Recorded(Entities("0 LINE\n370 -3\n")), "Line weight=-3\n");
}

TEST(LineParser, DropsLineInPaperSpace)
{
    EXPECT_EQ(Recorded(Entities("0 LINE\n67 1\n10 1\n")), "");
}

TEST(LineParser, GoesIntoTheOpenBlock)
{
    EXPECT_EQ(Recorded(Block("0 LINE\n10 1\n")), "Block name=\"B\"\n  Line start=(1 0 0)\n");
}

// SPDX-License-Identifier: MIT
#include "tests/support/DxfRecorder.h"

using namespace VelorExchange::test;

TEST(XLineParser, ReadsItsGroups)
{
    EXPECT_EQ(Recorded(Entities("0 XLINE\n8 A\n6 DOT\n62 1\n370 25\n10 1\n20 2\n30 3\n"
                                "11 0.6\n21 0.8\n31 9\n")),
              "XLine layer=\"A\" color=#0000FF weight=25 style=\"DOT\" origin=(1 2) z=3 "
              "direction=(0.6 0.8)\n");
}

TEST(XLineParser, AbsentGroupsAreZero)
{
    EXPECT_EQ(Recorded(Entities("0 XLINE\n")), "XLine\n");
}

TEST(XLineParser, OriginIsConvertedAsOnePoint)
{
    EXPECT_EQ(Recorded(Entities("0 XLINE\n10 1\n20 2\n30 3\n210 1\n")), "XLine origin=(3 1) z=2\n");
    EXPECT_EQ(Recorded(Entities("0 XLINE\n10 1\n20 2\n30 3\n230 -1\n")),
              "XLine origin=(-1 2) z=-3\n");
}

TEST(XLineParser, DirectionIsConvertedWithoutItsHeight)
{
    EXPECT_EQ(Recorded(Entities("0 XLINE\n11 1\n21 2\n31 3\n230 -1\n")),
              "XLine direction=(-1 2)\n");
    EXPECT_EQ(Recorded(Entities("0 XLINE\n11 1\n21 2\n31 3\n210 1\n")), "XLine direction=(0 1)\n");
}

TEST(XLineParser, DropsLineInPaperSpace)
{
    EXPECT_EQ(Recorded(Entities("0 XLINE\n67 1\n10 1\n")), "");
}

TEST(XLineParser, GoesIntoTheOpenBlock)
{
    EXPECT_EQ(Recorded(Block("0 XLINE\n10 1\n")), "Block name=\"B\"\n  XLine origin=(1 0)\n");
}

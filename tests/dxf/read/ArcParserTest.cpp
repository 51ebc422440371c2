// SPDX-License-Identifier: MIT
#include "tests/support/DxfRecorder.h"

using namespace VelorExchange::test;

TEST(ArcParser, ReadsItsGroups)
{
    EXPECT_EQ(Recorded(Entities("0 ARC\n8 A\n6 DOT\n62 1\n370 25\n10 1\n20 2\n30 3\n40 4\n"
                                "50 30\n51 60\n")),
              "Arc layer=\"A\" color=#0000FF weight=25 style=\"DOT\" center=(1 2 3) radius=4 "
              "start=30 end=60\n");
}

TEST(ArcParser, CircleHasBothAnglesZero)
{
    EXPECT_EQ(Recorded(Entities("0 CIRCLE\n10 1\n20 2\n30 3\n40 4\n")),
              "Arc center=(1 2 3) radius=4\n");
}

TEST(ArcParser, CircleKeepsAnglesThatItHas)
{
    EXPECT_EQ(Recorded(Entities("0 CIRCLE\n40 4\n50 30\n51 60\n")),
              "Arc radius=4 start=30 end=60\n");
}

TEST(ArcParser, CenterIsConverted)
{
    EXPECT_EQ(Recorded(Entities("0 ARC\n10 1\n20 2\n30 3\n210 1\n")), "Arc center=(3 1 2)\n");
}

TEST(ArcParser, AnglesOfAMirroredArcAreExchangedAndTakenFromAHalfTurn)
{
    EXPECT_EQ(Recorded(Entities("0 ARC\n10 1\n40 4\n50 30\n51 60\n230 -1\n")),
              "Arc center=(-1 0 0) radius=4 start=120 end=150\n");
    EXPECT_EQ(Recorded(Entities("0 ARC\n40 4\n50 200\n51 10\n230 -1\n")),
              "Arc radius=4 start=170 end=-20\n");
}

TEST(ArcParser, ArcIsMirroredByTheSignOfGroup230Alone)
{
    EXPECT_EQ(Recorded(Entities("0 ARC\n50 30\n51 60\n230 -0.0000001\n0 ARC\n50 30\n51 60\n230 1\n"
                                "0 ARC\n50 30\n51 60\n230 0\n0 ARC\n50 30\n51 60\n210 -1\n")),
              "Arc start=120 end=150\nArc start=30 end=60\nArc start=30 end=60\n"
              "Arc start=30 end=60\n");
}

TEST(ArcParser, MirroredCircleHasEqualAnglesToo)
{
    EXPECT_EQ(Recorded(Entities("0 CIRCLE\n10 1\n40 4\n230 -1\n")),
              "Arc center=(-1 0 0) radius=4 start=180 end=180\n");
}

TEST(ArcParser, DropsArcInPaperSpace)
{
    EXPECT_EQ(Recorded(Entities("0 ARC\n67 1\n40 1\n0 CIRCLE\n67 1\n40 1\n")), "");
}

TEST(ArcParser, GoesIntoTheOpenBlock)
{
    EXPECT_EQ(Recorded(Block("0 ARC\n40 1\n0 CIRCLE\n40 2\n")),
              "Block name=\"B\"\n  Arc radius=1\n  Arc radius=2\n");
}

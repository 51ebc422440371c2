// SPDX-License-Identifier: MIT
#include "tests/support/DxfRecorder.h"

using namespace VelorExchange::test;

TEST(EllipseParser, ReadsItsGroups)
{
    EXPECT_EQ(Recorded(Entities("0 ELLIPSE\n8 A\n6 DOT\n62 1\n370 25\n10 1\n20 2\n30 3\n"
                                "11 4\n21 5\n31 6\n40 0.5\n41 1.5\n42 2.5\n")),
              "Ellipse layer=\"A\" color=#0000FF weight=25 style=\"DOT\" center=(1 2 3) "
              "major=(4 5 6) ratio=0.5 start=1.5 end=2.5\n");
}

TEST(EllipseParser, AbsentGroupsAreZeroTheEndParameterToo)
{
    EXPECT_EQ(Recorded(Entities("0 ELLIPSE\n")), "Ellipse\n");
}

TEST(EllipseParser, CenterAndAxisAreConverted)
{
    EXPECT_EQ(Recorded(Entities("0 ELLIPSE\n10 1\n20 2\n30 3\n11 4\n21 5\n31 6\n210 1\n")),
              "Ellipse center=(3 1 2) major=(6 4 5)\n");
}

TEST(EllipseParser, ParametersOfAMirroredEllipseStay)
{
    EXPECT_EQ(
        Recorded(Entities("0 ELLIPSE\n10 1\n20 2\n30 3\n11 4\n21 5\n31 6\n41 1\n42 2\n230 -1\n")),
        "Ellipse center=(-1 2 -3) major=(-4 5 -6) start=1 end=2\n");
}

TEST(EllipseParser, DropsEllipseInPaperSpace)
{
    EXPECT_EQ(Recorded(Entities("0 ELLIPSE\n67 1\n40 1\n")), "");
}

TEST(EllipseParser, GoesIntoTheOpenBlock)
{
    EXPECT_EQ(Recorded(Block("0 ELLIPSE\n40 1\n")), "Block name=\"B\"\n  Ellipse ratio=1\n");
}

// SPDX-License-Identifier: MIT
#include "tests/support/DxfRecorder.h"

using namespace VelorExchange::test;

TEST(SolidParser, TakesItsCornersInFileOrderAndClosesThem)
{
    EXPECT_EQ(
        Recorded(Entities("0 SOLID\n8 A\n62 1\n10 0\n20 0\n11 1\n21 0\n12 0\n22 1\n13 1\n23 1\n")),
        "Solid layer=\"A\" color=#0000FF points=[(0 0 0) (1 0 0) (0 1 0) (1 1 0) (0 0 0)]\n");
}

TEST(SolidParser, HasNoLineWeightAndNoLineType)
{
    EXPECT_EQ(Recorded(Entities("0 SOLID\n370 25\n6 DOT\n10 1\n")),
              "Solid points=[(1 0 0) (0 0 0) (1 0 0)]\n");
}

TEST(SolidParser, HeightsAreNotRead)
{
    EXPECT_EQ(Recorded(Entities("0 SOLID\n10 1\n20 1\n30 5\n11 2\n21 2\n31 5\n12 3\n22 3\n32 5\n"
                                "13 4\n23 4\n33 5\n")),
              "Solid points=[(1 1 0) (2 2 0) (3 3 0) (4 4 0) (1 1 0)]\n");
}

TEST(SolidParser, TriangleEndsWithFourPoints)
{
    EXPECT_EQ(Recorded(Entities("0 SOLID\n10 0\n20 0\n11 1\n21 0\n12 0\n22 1\n13 0\n23 1\n")),
              "Solid points=[(0 0 0) (1 0 0) (0 1 0) (0 0 0)]\n");
}

TEST(SolidParser, FourEqualCornersEndWithOnePoint)
{
    EXPECT_EQ(Recorded(Entities("0 SOLID\n10 5\n20 6\n11 5\n21 6\n12 5\n22 6\n13 5\n23 6\n")),
              "Solid points=[(5 6 0)]\n");
    EXPECT_EQ(Recorded(Entities("0 SOLID\n")), "Solid points=[(0 0 0)]\n");
}

TEST(SolidParser, LaterOfTwoCoincidingCornersStays)
{
    EXPECT_EQ(Recorded(Entities("0 SOLID\n10 1\n11 1.00005\n12 5\n13 9\n")),
              "Solid points=[(1.00005 0 0) (5 0 0) (9 0 0) (1 0 0)]\n");
}

TEST(SolidParser, ClosingPointReplacesALastCornerThatCoincides)
{
    EXPECT_EQ(Recorded(Entities("0 SOLID\n10 1\n11 5\n12 9\n13 1.00005\n")),
              "Solid points=[(1 0 0) (5 0 0) (9 0 0) (1 0 0)]\n");
}

TEST(SolidParser, ClosingPointIsTheFirstCornerOfTheFile)
{
    // The first corner has gone from the list, but it closes the figure.
    EXPECT_EQ(Recorded(Entities("0 SOLID\n10 1\n11 1.00005\n12 5\n13 9\n20 0.00002\n")),
              "Solid points=[(1.00005 0 0) (5 0 0) (9 0 0) (1 2e-05 0)]\n");
}

TEST(SolidParser, CornersACertainDistanceApartDoNotCoincide)
{
    EXPECT_EQ(Recorded(Entities("0 SOLID\n10 0\n11 0.00011\n12 5\n13 9\n")),
              "Solid points=[(0 0 0) (0.00011 0 0) (5 0 0) (9 0 0) (0 0 0)]\n");
}

TEST(SolidParser, CornersAreConvertedAndKeepTheirHeights)
{
    EXPECT_EQ(
        Recorded(Entities("0 SOLID\n10 1\n20 2\n11 3\n21 4\n12 5\n22 6\n13 7\n23 8\n210 1\n")),
        "Solid points=[(0 1 2) (0 3 4) (0 5 6) (0 7 8) (0 1 0)]\n");
}

TEST(SolidParser, CornersThatDifferInHeightAloneCoincide)
{
    EXPECT_EQ(
        Recorded(Entities("0 SOLID\n10 1\n20 2\n11 1\n21 4\n12 5\n22 6\n13 7\n23 8\n210 1\n")),
        "Solid points=[(0 1 4) (0 5 6) (0 7 8) (0 1 0)]\n");
}

TEST(SolidParser, DropsSolidInPaperSpace)
{
    EXPECT_EQ(Recorded(Entities("0 SOLID\n67 1\n10 1\n")), "");
}

TEST(SolidParser, GoesIntoTheOpenBlock)
{
    EXPECT_EQ(Recorded(Block("0 SOLID\n")), "Block name=\"B\"\n  Solid points=[(0 0 0)]\n");
}

// SPDX-License-Identifier: MIT
#include "tests/support/DxfRecorder.h"

using namespace VelorExchange::test;

namespace {

// What the host gets for a SPLINE with these groups.
std::string Spline(const std::string& groups)
{
    return Recorded(Entities(("0 SPLINE\n" + groups).c_str()));
}

} // namespace

TEST(SplineParser, ReadsAllFields)
{
    EXPECT_EQ(Spline("8 Roads\n62 1\n370 25\n6 DASHED\n40 0\n40 0.5\n40 1\n"
                     "10 1\n20 2\n30 3\n10 4\n20 5\n30 6\n11 7\n21 8\n31 9\n"),
              "Spline layer=\"Roads\" color=#0000FF weight=25 style=\"DASHED\" knots=[0 0.5 1] "
              "control=[(1 2 3) (4 5 6)] fit=[(7 8 9)]\n");
}

TEST(SplineParser, DropsSplineInPaperSpace)
{
    EXPECT_EQ(Spline("67 1\n40 1\n0 POINT\n"), "Point\n");
}

TEST(SplineParser, GoesIntoTheBlockInHand)
{
    EXPECT_EQ(Recorded(Block("0 SPLINE\n62 0\n40 1\n")),
              "Block name=\"B\"\n  Spline color=#FFFFFFFF knots=[1]\n");
}

TEST(SplineParser, PassesOverDegreeFlagsAndCounts)
{
    EXPECT_EQ(Spline("70 11\n71 3\n72 99\n73 2147483647\n74 -1\n40 1\n10 1\n20 2\n30 3\n"),
              "Spline knots=[1] control=[(1 2 3)]\n");
}

TEST(SplineParser, DropsControlPointsWhereAnOrdinateIsLeftOut)
{
    EXPECT_EQ(Spline("40 1\n10 1\n20 2\n30 3\n10 4\n20 5\n11 7\n21 8\n31 9\n"),
              "Spline knots=[1] fit=[(7 8 9)]\n");
    EXPECT_EQ(Spline("40 1\n10 1\n20 2\n30 3\n10 4\n30 5\n"), "Spline knots=[1]\n");
    EXPECT_EQ(Spline("40 1\n10 1\n20 2\n30 3\n20 4\n30 5\n"), "Spline knots=[1]\n");
    EXPECT_EQ(Spline("10 1\n20\n30 3\n"), "Spline\n"); // an empty value counts as none
}

TEST(SplineParser, DropsFitPointsWhereAnOrdinateIsLeftOut)
{
    EXPECT_EQ(Spline("10 1\n20 2\n30 3\n11 7\n21 8\n"), "Spline control=[(1 2 3)]\n");
    EXPECT_EQ(Spline("11 7\n31 8\n"), "Spline\n");
}

TEST(SplineParser, ConvertsControlPointsAlone)
{
    EXPECT_EQ(Spline("210 0\n220 0\n230 -1\n10 1\n20 2\n30 3\n11 1\n21 2\n31 3\n"),
              "Spline control=[(-1 2 -3)] fit=[(1 2 3)]\n");
}

TEST(SplineParser, KeepsEqualPoints)
{
    EXPECT_EQ(Spline("10 1\n20 2\n30 3\n10 1\n20 2\n30 3\n"), "Spline control=[(1 2 3) (1 2 3)]\n");
}

TEST(SplineParser, TakesZeroForAKnotThatIsNoNumber)
{
    EXPECT_EQ(Spline("40 1\n40 x\n40 2;3\n"), "Spline knots=[1 0 2 3]\n");
}

TEST(SplineParser, DeliversASplineThatTheEndOfTheFileCutsOff)
{
    EXPECT_EQ(Recorded(Tags("0 SECTION\n2 ENTITIES\n0 SPLINE\n40 1\n40 2\n")),
              "Spline knots=[1 2]\n");
}

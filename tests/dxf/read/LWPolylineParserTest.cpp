// SPDX-License-Identifier: MIT
#include "tests/support/DxfRecorder.h"

using namespace VelorExchange::test;

namespace {

// What the host gets for an LWPOLYLINE with these groups.
std::string LWPolyline(const std::string& groups)
{
    return Recorded(Entities(("0 LWPOLYLINE\n" + groups).c_str()));
}

const std::string kSquare = "10 0\n20 0\n10 4\n20 0\n10 4\n20 4\n10 0\n20 4\n";

} // namespace

TEST(LWPolylineParser, ReadsAllFields)
{
    EXPECT_EQ(LWPolyline("8 Roads\n62 1\n370 25\n6 DASHED\n90 2\n70 0\n43 0.5\n38 7\n"
                         "10 1\n20 2\n42 0.25\n10 3\n20 4\n"),
              "LWPolyline layer=\"Roads\" color=#0000FF weight=25 style=\"DASHED\" "
              "vertices=[(1 2 0)^0.25 (3 4 0)] width=0.5 elevation=7\n");
}

TEST(LWPolylineParser, DropsPolylineInPaperSpace)
{
    EXPECT_EQ(LWPolyline("67 1\n90 1\n10 1\n20 2\n0 POINT\n10 5\n"), "Point point=(5 0 0)\n");
    EXPECT_EQ(LWPolyline("67 2\n43 1\n"), "LWPolyline width=1\n");
}

TEST(LWPolylineParser, GoesIntoTheBlockInHand)
{
    EXPECT_EQ(Recorded(Block("0 LWPOLYLINE\n62 0\n90 1\n43 1\n10 1\n20 2\n")),
              "Block name=\"B\"\n  LWPolyline color=#FFFFFFFF vertices=[(1 2 0)] width=1\n");
}

TEST(LWPolylineParser, KeepsGroupsOfVerticesInStep)
{
    EXPECT_EQ(LWPolyline("90 3\n43 1\n10 1\n20 2\n10 3\n20 4\n42 0.5\n10 5\n20 6\n"),
              "LWPolyline vertices=[(1 2 0) (3 4 0)^0.5 (5 6 0)] width=1\n");
}

TEST(LWPolylineParser, PutsZeroForALeftOutOrdinate)
{
    EXPECT_EQ(LWPolyline("90 2\n43 1\n10 1\n10 3\n20 4\n"),
              "LWPolyline vertices=[(1 0 0) (3 4 0)] width=1\n");
}

TEST(LWPolylineParser, PassesOverHeightsOfVertices)
{
    EXPECT_EQ(LWPolyline("90 2\n43 1\n10 1\n20 2\n30 9\n42 0.5\n10 3\n20 4\n42 0.25\n"),
              "LWPolyline vertices=[(1 2 0)^0.5 (3 4 0)^0.25] width=1\n");
}

TEST(LWPolylineParser, DeliversNoVerticesWhereTheCountDisagrees)
{
    for (const char* count : {"90 5\n", "90 3\n", "90 0\n", "90 -4\n", "90 x\n", "", "90 4\n90 4\n",
                              "90 2147483647\n", "90 4294967300\n"})
    {
        EXPECT_EQ(LWPolyline(count + kSquare + "43 1\n"), "LWPolyline width=1\n") << count;
    }
}

TEST(LWPolylineParser, DeliversNoVerticesForListsOfUnequalLength)
{
    // A group 120 passes for the 20 of the vertex and is kept under its own code.
    EXPECT_EQ(LWPolyline("90 2\n43 1\n10 1\n120 2\n10 3\n20 4\n"), "LWPolyline width=1\n");
}

TEST(LWPolylineParser, TakesZeroPastTheEndOfTheBulges)
{
    // A group 420 passes for the 42 of the vertex and is kept under its own code.
    EXPECT_EQ(LWPolyline("90 2\n43 1\n10 1\n20 2\n42 0.5\n10 3\n20 4\n420 255\n"),
              "LWPolyline vertices=[(1 2 0)^0.5 (3 4 0)] width=1\n");
}

TEST(LWPolylineParser, ConvertsVerticesAndDropsTheirHeight)
{
    EXPECT_EQ(LWPolyline("90 1\n43 1\n10 3\n20 4\n210 1\n220 0\n230 0\n"),
              "LWPolyline vertices=[(0 3 0)] width=1\n");
    EXPECT_EQ(LWPolyline("90 1\n43 1\n10 3\n20 4\n42 0.5\n210 0\n220 0\n230 -1\n"),
              "LWPolyline vertices=[(-3 4 0)^0.5] width=1\n");
}

TEST(LWPolylineParser, LetsTheLaterOfTwoEqualVerticesStand)
{
    EXPECT_EQ(LWPolyline("90 3\n43 1\n10 1\n20 2\n42 0.5\n10 1\n20 2\n42 0.25\n10 3\n20 4\n"),
              "LWPolyline vertices=[(1 2 0)^0.25 (3 4 0)] width=1\n");
}

TEST(LWPolylineParser, TakesTheConstantWidth)
{
    EXPECT_EQ(LWPolyline("90 2\n43 3\n10 1\n20 2\n40 8\n41 8\n10 3\n20 4\n40 8\n41 8\n"),
              "LWPolyline vertices=[(1 2 0) (3 4 0)] width=3\n");
}

TEST(LWPolylineParser, TakesTheMeanOfTheWidthsWithoutTheLast)
{
    const std::string vertices = "10 1\n20 1\n40 1\n41 2\n10 2\n20 2\n40 3\n41 6\n"
                                 "10 3\n20 3\n40 100\n41 100\n";
    const std::string expected = "LWPolyline vertices=[(1 1 0) (2 2 0) (3 3 0)] width=3\n";
    EXPECT_EQ(LWPolyline("90 3\n43 0.0\n" + vertices), expected);
    EXPECT_EQ(LWPolyline("90 3\n" + vertices), expected);
}

TEST(LWPolylineParser, DividesTheWidthOfASingleVertexByZero)
{
    EXPECT_EQ(LWPolyline("90 1\n10 1\n20 1\n40 5\n41 7\n"),
              "LWPolyline vertices=[(1 1 0)] width=inf\n");
    EXPECT_EQ(LWPolyline("90 1\n10 1\n20 1\n"), "LWPolyline vertices=[(1 1 0)] width=nan\n");
}

TEST(LWPolylineParser, TakesASingleWidthWhereTheListsDisagree)
{
    // A group 140 passes for the 40 of the first vertex and is kept under its own code.
    EXPECT_EQ(LWPolyline("90 2\n10 1\n20 1\n140 9\n41 3\n10 2\n20 2\n40 5\n41 6\n"),
              "LWPolyline vertices=[(1 1 0) (2 2 0)] width=5\n");
}

TEST(LWPolylineParser, ClosesWithTheFirstVertex)
{
    const std::string corners = "(0 0 0) (4 0 0) (4 4 0) (0 4 0)";
    EXPECT_EQ(LWPolyline("90 4\n43 1\n70 1\n" + kSquare),
              "LWPolyline vertices=[" + corners + " (0 0 0)] width=1\n");
    EXPECT_EQ(LWPolyline("90 4\n43 1\n70 129\n" + kSquare),
              "LWPolyline vertices=[" + corners + " (0 0 0)] width=1\n");
    EXPECT_EQ(LWPolyline("90 4\n43 1\n70 128\n" + kSquare),
              "LWPolyline vertices=[" + corners + "] width=1\n");
}

TEST(LWPolylineParser, ClosesAtTheHeightOfTheFirstBulge)
{
    EXPECT_EQ(LWPolyline("90 3\n43 1\n70 1\n10 1\n20 1\n42 0.5\n10 5\n20 1\n10 5\n20 5\n"),
              "LWPolyline vertices=[(1 1 0)^0.5 (5 1 0) (5 5 0) (1 1 0.5)] width=1\n");
}

TEST(LWPolylineParser, ReplacesALastVertexThatRepeatsTheFirst)
{
    EXPECT_EQ(LWPolyline("90 4\n43 1\n70 1\n10 1\n20 1\n10 5\n20 1\n10 5\n20 5\n"
                         "10 1\n20 1\n42 0.5\n"),
              "LWPolyline vertices=[(1 1 0) (5 1 0) (5 5 0) (1 1 0)] width=1\n");
}

TEST(LWPolylineParser, KeepsALastVertexThatRepeatsAFirstWithABulge)
{
    EXPECT_EQ(LWPolyline("90 4\n43 1\n70 1\n10 1\n20 1\n42 0.5\n10 5\n20 1\n10 5\n20 5\n"
                         "10 1\n20 1\n"),
              "LWPolyline vertices=[(1 1 0)^0.5 (5 1 0) (5 5 0) (1 1 0) (1 1 0.5)] width=1\n");
}

TEST(LWPolylineParser, DoesNotCloseTwoVertices)
{
    EXPECT_EQ(LWPolyline("90 2\n43 1\n70 1\n10 1\n20 1\n10 5\n20 1\n"),
              "LWPolyline vertices=[(1 1 0) (5 1 0)] width=1\n");
    // Three in the file, two in the list.
    EXPECT_EQ(LWPolyline("90 3\n43 1\n70 1\n10 1\n20 1\n10 5\n20 1\n10 5\n20 1\n"),
              "LWPolyline vertices=[(1 1 0) (5 1 0)] width=1\n");
}

TEST(LWPolylineParser, DeliversAPolylineThatTheEndOfTheFileCutsOff)
{
    EXPECT_EQ(Recorded(Tags("0 SECTION\n2 ENTITIES\n0 LWPOLYLINE\n90 1\n43 1\n10 1\n20 2\n")),
              "LWPolyline vertices=[(1 2 0)] width=1\n");
}

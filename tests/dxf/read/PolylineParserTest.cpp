// SPDX-License-Identifier: MIT
#include "tests/support/DxfRecorder.h"

using namespace VelorExchange::test;

namespace {

// What the host gets for a POLYLINE with these groups and records behind it.
std::string Polyline(const std::string& groups)
{
    return Recorded(Entities(("0 POLYLINE\n" + groups).c_str()));
}

} // namespace

TEST(PolylineParser, ReadsAllFields)
{
    EXPECT_EQ(Polyline("8 Roads\n62 1\n370 25\n6 DASHED\n40 0.5\n70 0\n"
                       "0 VERTEX\n10 1\n20 2\n30 3\n42 0.25\n0 VERTEX\n10 4\n20 5\n0 SEQEND\n"),
              "Polyline layer=\"Roads\" color=#0000FF weight=25 style=\"DASHED\" "
              "vertices=[(1 2 3)^0.25 (4 5 0)] width=0.5 2d=true\n");
}

TEST(PolylineParser, TellsItsKindByFlags)
{
    EXPECT_EQ(Polyline("0 SEQEND\n"), "Polyline 2d=true\n");
    EXPECT_EQ(Polyline("70 8\n0 SEQEND\n"), "Polyline\n");
    EXPECT_EQ(Polyline("70 1\n0 SEQEND\n"), "Polyline 2d=true closed=true\n");
    EXPECT_EQ(Polyline("70 137\n0 SEQEND\n"), "Polyline closed=true\n");
    EXPECT_EQ(Polyline("70 6\n0 SEQEND\n"), "Polyline 2d=true\n");
}

TEST(PolylineParser, OnlyFlagsAClosedPolyline)
{
    EXPECT_EQ(Polyline("70 1\n0 VERTEX\n10 1\n0 VERTEX\n10 2\n0 VERTEX\n20 3\n0 SEQEND\n"),
              "Polyline vertices=[(1 0 0) (2 0 0) (0 3 0)] 2d=true closed=true\n");
}

TEST(PolylineParser, DropsPolylineInPaperSpace)
{
    EXPECT_EQ(Polyline("67 1\n0 VERTEX\n10 1\n0 SEQEND\n0 POINT\n10 5\n"), "Point point=(5 0 0)\n");
}

TEST(PolylineParser, KeepsVerticesInPaperSpace)
{
    EXPECT_EQ(Polyline("0 VERTEX\n67 1\n10 1\n0 SEQEND\n"),
              "Polyline vertices=[(1 0 0)] 2d=true\n");
}

TEST(PolylineParser, GoesIntoTheBlockInHand)
{
    EXPECT_EQ(Recorded(Block("0 POLYLINE\n62 0\n0 VERTEX\n10 1\n0 SEQEND\n0 POINT\n")),
              "Block name=\"B\"\n  Polyline color=#FFFFFFFF vertices=[(1 0 0)] 2d=true\n  Point\n");
}

TEST(PolylineParser, DropsFrameControlPointsOfAFittedSpline)
{
    const std::string vertices = "0 VERTEX\n70 16\n10 1\n0 VERTEX\n70 8\n10 2\n"
                                 "0 VERTEX\n70 48\n10 3\n0 VERTEX\n10 4\n0 SEQEND\n";
    EXPECT_EQ(Polyline("70 4\n" + vertices),
              "Polyline vertices=[(2 0 0) (3 0 0) (4 0 0)] 2d=true\n");
    EXPECT_EQ(Polyline("70 2\n" + vertices),
              "Polyline vertices=[(1 0 0) (2 0 0) (3 0 0) (4 0 0)] 2d=true\n");
}

TEST(PolylineParser, ConvertsVerticesByTheExtrusionOfThePolyline)
{
    EXPECT_EQ(Polyline("210 0\n220 0\n230 -1\n0 VERTEX\n10 1\n20 2\n30 3\n0 SEQEND\n"),
              "Polyline vertices=[(-1 2 -3)] 2d=true\n");
    EXPECT_EQ(Polyline("0 VERTEX\n10 1\n20 2\n30 3\n210 0\n220 0\n230 -1\n0 SEQEND\n"),
              "Polyline vertices=[(1 2 3)] 2d=true\n");
}

TEST(PolylineParser, LetsTheLaterOfTwoEqualVerticesStand)
{
    EXPECT_EQ(Polyline("0 VERTEX\n10 1\n42 0.5\n0 VERTEX\n10 1\n42 0.25\n"
                       "0 VERTEX\n10 1\n30 1\n0 SEQEND\n"),
              "Polyline vertices=[(1 0 0)^0.25 (1 0 1)] 2d=true\n");
}

TEST(PolylineParser, TakesTheNameOfAVertexInAnyCase)
{
    EXPECT_EQ(Polyline("0 Vertex\n10 1\n0 vertex\n10 2\n0 SEQEND\n"),
              "Polyline vertices=[(1 0 0) (2 0 0)] 2d=true\n");
}

TEST(PolylineParser, EndsAtTheFirstOtherObject)
{
    EXPECT_EQ(Polyline("0 VERTEX\n10 1\n0 POINT\n10 5\n0 VERTEX\n10 2\n"),
              "Polyline vertices=[(1 0 0)] 2d=true\nPoint point=(5 0 0)\n");
}

TEST(PolylineParser, TakesNothingOfAVertexForThePolyline)
{
    EXPECT_EQ(Polyline("8 A\n0 VERTEX\n8 B\n62 1\n40 9\n70 1\n10 1\n0 SEQEND\n8 C\n"),
              "Polyline layer=\"A\" vertices=[(1 0 0)] 2d=true\n");
}

TEST(PolylineParser, DeliversAPolylineThatTheEndOfTheFileCutsOff)
{
    const std::string head = "0 SECTION\n2 ENTITIES\n0 POLYLINE\n";
    EXPECT_EQ(Recorded(Tags((head + "8 A\n").c_str())), "Polyline layer=\"A\" 2d=true\n");
    EXPECT_EQ(Recorded(Tags((head + "0 VERTEX\n10 1\n").c_str())),
              "Polyline vertices=[(1 0 0)] 2d=true\n");
    EXPECT_EQ(Recorded(Tags((head + "0 VERTEX\n").c_str())),
              "Polyline vertices=[(0 0 0)] 2d=true\n");
}

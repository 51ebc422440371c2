// SPDX-License-Identifier: MIT
#include "tests/support/DxfRecorder.h"

using namespace VelorExchange::test;

namespace {

// What the host gets for an MLINE with these groups.
std::string MLine(const std::string& groups)
{
    return Recorded(Entities(("0 MLINE\n" + groups).c_str()));
}

// A vertex with its direction and its miter.
std::string Joint(int x, int y, int number)
{
    const std::string n = std::to_string(number);
    return "11 " + std::to_string(x) + "\n21 " + std::to_string(y) + "\n31 1\n12 " + n
        + "\n22 0\n32 0\n13 0\n23 " + n + "\n33 0\n";
}

} // namespace

TEST(MLineParser, ReadsAllFields)
{
    EXPECT_EQ(MLine("2 WALL\n8 Roads\n62 1\n370 25\n72 2\n" + Joint(1, 2, 1)
                    + "74 2\n41 0\n41 0.5\n75 0\n" + Joint(3, 4, 2)),
              "MLine layer=\"Roads\" color=#0000FF weight=25 mstyle=\"WALL\" "
              "vertices=[(1 2 1) (3 4 1)] segments=[(1 0 0)/(0 1 0) (2 0 0)/(0 2 0)]\n");
}

TEST(MLineParser, NamesAStyleByLayerWhereItTellsNone)
{
    EXPECT_EQ(MLine(""), "MLine mstyle=\"BYLAYER\"\n");
    EXPECT_EQ(MLine("2\n"), "MLine\n");
}

TEST(MLineParser, DropsMultilineInPaperSpace)
{
    EXPECT_EQ(MLine("67 1\n72 1\n" + Joint(1, 2, 1) + "0 POINT\n"), "Point\n");
}

TEST(MLineParser, GoesIntoTheBlockInHand)
{
    EXPECT_EQ(Recorded(Block("0 MLINE\n62 0\n2 S\n")),
              "Block name=\"B\"\n  MLine color=#FFFFFFFF mstyle=\"S\"\n");
}

TEST(MLineParser, TakesAsManyVerticesAsItTells)
{
    const std::string joints = Joint(1, 2, 1) + Joint(3, 4, 2);
    EXPECT_EQ(MLine("2\n72 1\n" + joints), "MLine vertices=[(1 2 1)] segments=[(1 0 0)/(0 1 0)]\n");
    EXPECT_EQ(MLine("2\n" + joints), "MLine\n");
    EXPECT_EQ(MLine("2\n72 -1\n" + joints), "MLine\n");
}

TEST(MLineParser, TakesZerosPastTheEndOfItsLists)
{
    EXPECT_EQ(MLine("2\n72 2\n" + Joint(1, 2, 1)),
              "MLine vertices=[(1 2 1) (0 0 0)] segments=[(1 0 0)/(0 1 0) (0 0 0)/(0 0 0)]\n");
}

TEST(MLineParser, MakesNothingOfACountThatTheFileDoesNotBack)
{
    EXPECT_EQ(MLine("2\n72 2147483647\n" + Joint(1, 2, 1)),
              "MLine vertices=[(1 2 1) (0 0 0)] segments=[(1 0 0)/(0 1 0) (0 0 0)/(0 0 0)]\n");
    EXPECT_EQ(MLine("2\n72 2147483647\n"), "MLine vertices=[(0 0 0)] segments=[(0 0 0)/(0 0 0)]\n");
}

TEST(MLineParser, TakesZeroVerticesForListsOfUnequalLength)
{
    EXPECT_EQ(MLine("2\n72 2\n" + Joint(1, 2, 1) + Joint(3, 4, 2) + "31 5\n"),
              "MLine vertices=[(0 0 0)] segments=[(1 0 0)/(0 1 0)]\n");
    EXPECT_EQ(MLine("2\n72 2\n" + Joint(1, 2, 1) + Joint(3, 4, 2) + "21 5\n"),
              "MLine vertices=[(0 0 0)] segments=[(1 0 0)/(0 1 0)]\n");
}

TEST(MLineParser, TakesZeroDirectionsForListsOfUnequalLength)
{
    for (const char* extra : {"12 5\n", "22 5\n", "32 5\n"}) {
        EXPECT_EQ(MLine("2\n72 2\n" + Joint(1, 2, 1) + Joint(3, 4, 2) + extra),
                  "MLine vertices=[(1 2 1) (3 4 1)] segments=[(0 0 0)/(0 1 0) (0 0 0)/(0 2 0)]\n");
    }
}

TEST(MLineParser, TakesZeroMitersForListsOfUnequalLength)
{
    for (const char* extra : {"13 5\n", "23 5\n", "33 5\n"}) {
        EXPECT_EQ(MLine("2\n72 2\n" + Joint(1, 2, 1) + Joint(3, 4, 2) + extra),
                  "MLine vertices=[(1 2 1) (3 4 1)] segments=[(1 0 0)/(0 0 0) (2 0 0)/(0 0 0)]\n");
    }
}

TEST(MLineParser, TakesDirectionsBeyondAShortListOfVertices)
{
    EXPECT_EQ(MLine("2\n72 2\n" + Joint(1, 2, 1) + "12 7\n22 7\n32 7\n"),
              "MLine vertices=[(1 2 1) (0 0 0)] segments=[(1 0 0)/(0 1 0) (7 7 7)/(0 0 0)]\n");
}

TEST(MLineParser, ConvertsVerticesAlone)
{
    EXPECT_EQ(MLine("2\n72 1\n210 0\n220 0\n230 -1\n" + Joint(1, 2, 1)),
              "MLine vertices=[(-1 2 -1)] segments=[(1 0 0)/(0 1 0)]\n");
}

TEST(MLineParser, KeepsTheFirstSegmentOfTwoEqualVertices)
{
    EXPECT_EQ(MLine("2\n72 3\n" + Joint(1, 2, 1) + Joint(1, 2, 2) + Joint(3, 4, 3)),
              "MLine vertices=[(1 2 1) (3 4 1)] segments=[(1 0 0)/(0 1 0) (3 0 0)/(0 3 0)]\n");
}

TEST(MLineParser, ClosesWithTheFirstVertexAndSegment)
{
    const std::string joints = Joint(1, 1, 1) + Joint(5, 1, 2) + Joint(5, 5, 3);
    const std::string open = "MLine vertices=[(1 1 1) (5 1 1) (5 5 1)] "
                             "segments=[(1 0 0)/(0 1 0) (2 0 0)/(0 2 0) (3 0 0)/(0 3 0)]\n";
    const std::string closed =
        "MLine vertices=[(1 1 1) (5 1 1) (5 5 1) (1 1 1)] "
        "segments=[(1 0 0)/(0 1 0) (2 0 0)/(0 2 0) (3 0 0)/(0 3 0) (1 0 0)/(0 1 0)]\n";
    EXPECT_EQ(MLine("2\n71 1\n72 3\n" + joints), open);
    EXPECT_EQ(MLine("2\n71 2\n72 3\n" + joints), closed);
    EXPECT_EQ(MLine("2\n71 3\n72 3\n" + joints), closed);
}

TEST(MLineParser, ReplacesALastVertexThatRepeatsTheFirst)
{
    EXPECT_EQ(MLine("2\n71 2\n72 4\n" + Joint(1, 1, 1) + Joint(5, 1, 2) + Joint(5, 5, 3)
                    + Joint(1, 1, 4)),
              "MLine vertices=[(1 1 1) (5 1 1) (5 5 1) (1 1 1)] "
              "segments=[(1 0 0)/(0 1 0) (2 0 0)/(0 2 0) (3 0 0)/(0 3 0) (4 0 0)/(0 4 0)]\n");
}

TEST(MLineParser, DoesNotCloseTwoVertices)
{
    EXPECT_EQ(MLine("2\n71 2\n72 2\n" + Joint(1, 1, 1) + Joint(5, 1, 2)),
              "MLine vertices=[(1 1 1) (5 1 1)] segments=[(1 0 0)/(0 1 0) (2 0 0)/(0 2 0)]\n");
}

TEST(MLineParser, DeliversAMultilineThatTheEndOfTheFileCutsOff)
{
    EXPECT_EQ(Recorded(Tags("0 SECTION\n2 ENTITIES\n0 MLINE\n2 S\n")), "MLine mstyle=\"S\"\n");
}

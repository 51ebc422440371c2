// SPDX-License-Identifier: MIT
#include "tests/support/MifRecorder.h"

using namespace VelorExchange::test;

TEST(RegionParser, RingsGoOutApartWithEqualClausesAndAttributes)
{
    EXPECT_EQ(Recorded(CMifPair("Columns 1\nn Integer\nData\nRegion 2\n3\n1 2\n3 4\n5 6\n"
                                "  3\n1 1\n2 2\n3 3\nBrush (2,255)\nCenter 7 8\nPen (2,2,0)\n"
                                "Point 1 1\n",
                                "1\n2\n")),
              "AddRegion (1 2)(3 4)(5 6) brush=2,#ff0000,#ffffff pen=2,2,#000000 center=(7 8)"
              " [n=int:1]\n"
              "AddRegion (1 1)(2 2)(3 3) brush=2,#ff0000,#ffffff pen=2,2,#000000 center=(7 8)"
              " [n=int:1]\n"
              "AddPoint (1 1) [n=int:2]\n");
}

TEST(RegionParser, ClausesAreTriedInTheirOrder)
{
    const QByteArray region = "Region 1\n3\n1 2\n3 4\n5 6\n";
    const std::string bare = "AddRegion (1 2)(3 4)(5 6)";
    EXPECT_EQ(RecordedObjects(region + "Center 7 8 Brush (5,6)\n"),
              bare + " brush=5,#060000,#ffffff\n");
    EXPECT_EQ(RecordedObjects(region + "Brush (5,6,7) Pen\n"), bare + " pen=5,6,#070000\n");
}

TEST(RegionParser, RingOfTwoVerticesDisappears)
{
    EXPECT_EQ(RecordedObjects("Region 2\n2\n9 9\n8 8\n3\n1 2\n3 4\n5 6\n"),
              "AddRegion (1 2)(3 4)(5 6)\n");
}

TEST(RegionParser, WithAllRingsDroppedTheRowIsTakenAllTheSame)
{
    EXPECT_EQ(Recorded(CMifPair("Columns 1\nn Integer\nData\nRegion 3\n0\n1\n1 1\n2\n1 1\n2 2\n"
                                "Point 1 1\n",
                                "1\n2\n")),
              "AddPoint (1 1) [n=int:2]\n");
}

TEST(RegionParser, CountHasToStandOnItsLine)
{
    EXPECT_EQ(RecordedObjects("Region\n1\n3\n1 2\n3 4\n5 6\n"), "");
}

TEST(RegionParser, MissingVertexDropsAllRings)
{
    EXPECT_EQ(RecordedObjects("Region 2\n3\n1 2\n3 4\n5 6\n3\n1 2\n3 4\n"), "");
}

TEST(RegionParser, ShortCenterDropsTheObject)
{
    EXPECT_EQ(RecordedObjects("Region 1\n3\n1 2\n3 4\n5 6\nCenter 1\n"), "");
}

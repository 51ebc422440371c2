// SPDX-License-Identifier: MIT
#include "tests/support/DxfRecorder.h"

using namespace VelorExchange::test;

TEST(FaceParser, ReadsItsGroups)
{
    EXPECT_EQ(Recorded(Entities("0 3DFACE\n8 A\n62 1\n370 25\n10 1\n20 2\n30 3\n11 4\n21 5\n31 6\n"
                                "12 7\n22 8\n32 9\n13 10\n23 11\n33 12\n")),
              "3DFace layer=\"A\" color=#0000FF weight=25 "
              "corners=[(1 2 3) (4 5 6) (7 8 9) (10 11 12)]\n");
}

TEST(FaceParser, EqualCornersAllStay)
{
    EXPECT_EQ(Recorded(Entities("0 3DFACE\n")),
              "3DFace corners=[(0 0 0) (0 0 0) (0 0 0) (0 0 0)]\n");
}

TEST(FaceParser, LineTypeKeepsItsDefault)
{
    EXPECT_EQ(Recorded(Entities("0 3DFACE\n6 DOT\n")),
              "3DFace corners=[(0 0 0) (0 0 0) (0 0 0) (0 0 0)]\n");
}

TEST(FaceParser, CornersAreConverted)
{
    EXPECT_EQ(Recorded(Entities("0 3DFACE\n10 1\n20 2\n30 3\n11 4\n21 5\n31 6\n12 7\n22 8\n32 9\n"
                                "13 10\n23 11\n33 12\n210 1\n")),
              "3DFace corners=[(3 1 2) (6 4 5) (9 7 8) (12 10 11)]\n");
}

TEST(FaceParser, DropsFaceInPaperSpace)
{
    EXPECT_EQ(Recorded(Entities("0 3DFACE\n67 1\n")), "");
}

TEST(FaceParser, GoesIntoTheOpenBlock)
{
    EXPECT_EQ(Recorded(Block("0 3DFACE\n13 1\n")),
              "Block name=\"B\"\n  3DFace corners=[(0 0 0) (0 0 0) (0 0 0) (1 0 0)]\n");
}

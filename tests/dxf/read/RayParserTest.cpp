// SPDX-License-Identifier: MIT
#include "tests/support/DxfRecorder.h"

using namespace VelorExchange::test;

TEST(RayParser, ReadsItsGroups)
{
    EXPECT_EQ(Recorded(Entities("0 RAY\n8 A\n6 DOT\n62 1\n370 25\n10 1\n20 2\n11 0.6\n21 0.8\n")),
              "Ray layer=\"A\" color=#0000FF weight=25 style=\"DOT\" origin=(1 2 0) "
              "direction=(0.6 0.8 0)\n");
}

TEST(RayParser, AbsentGroupsAreZero)
{
    EXPECT_EQ(Recorded(Entities("0 RAY\n")), "Ray\n");
}

TEST(RayParser, HeightsAreNotRead)
{
    EXPECT_EQ(Recorded(Entities("0 RAY\n10 1\n20 2\n30 3\n11 4\n21 5\n31 6\n")),
              "Ray origin=(1 2 0) direction=(4 5 0)\n");
}

TEST(RayParser, OriginAloneIsConverted)
{
    EXPECT_EQ(Recorded(Entities("0 RAY\n10 1\n20 2\n11 4\n21 5\n230 -1\n")),
              "Ray origin=(-1 2 0) direction=(4 5 0)\n");
}

TEST(RayParser, HeightThatComesOfTheConversionIsDropped)
{
    EXPECT_EQ(Recorded(Entities("0 RAY\n10 1\n20 2\n30 3\n11 4\n21 5\n210 1\n")),
              "Ray origin=(0 1 0) direction=(4 5 0)\n");
}

TEST(RayParser, DropsRayInPaperSpace)
{
    EXPECT_EQ(Recorded(Entities("0 RAY\n67 1\n10 1\n")), "");
}

TEST(RayParser, GoesIntoTheOpenBlock)
{
    EXPECT_EQ(Recorded(Block("0 RAY\n10 1\n")), "Block name=\"B\"\n  Ray origin=(1 0 0)\n");
}

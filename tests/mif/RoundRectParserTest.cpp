// SPDX-License-Identifier: MIT
#include "tests/support/MifRecorder.h"

using namespace VelorExchange::test;

TEST(RoundRectParser, ScalesRadiusLikeAnAngle)
{
    EXPECT_EQ(RecordedObjects("RoundRect 1 2 3 4 180\n"),
              "AddRoundRect (1 2)(3 4) radius=3.141592653589793\n");
}

TEST(RoundRectParser, RadiusMayBeTheWholeNextLine)
{
    EXPECT_EQ(RecordedObjects("RoundRect 1 2 3 4\n 180 \n"),
              "AddRoundRect (1 2)(3 4) radius=3.141592653589793\n");
    EXPECT_EQ(RecordedObjects("RoundRect 1 2 3 4\n180 1\n"), "AddRoundRect (1 2)(3 4) radius=0\n");
    EXPECT_EQ(RecordedObjects("RoundRect 1 2 3 4 5 6\n180\n"),
              "AddRoundRect (1 2)(3 4) radius=3.141592653589793\n");
}

TEST(RoundRectParser, TakesPenAndBrush)
{
    EXPECT_EQ(RecordedObjects("RoundRect 1 2 3 4 0\nPen (2,2,0)\nBrush (1,0,0)\n"),
              "AddRoundRect (1 2)(3 4) radius=0 pen=2,2,#000000 brush=1,#000000,#000000\n");
}

TEST(RoundRectParser, MissingRadiusDropsIt)
{
    EXPECT_EQ(RecordedObjects("RoundRect 1 2 3 4\n"), "");
}

// SPDX-License-Identifier: MIT
#include "tests/support/MifRecorder.h"

using namespace VelorExchange::test;

TEST(LineParser, IsAPolylineOfTwoPoints)
{
    EXPECT_EQ(RecordedObjects("Line 1 2 3 4\n"), "AddPolyline (1 2)(3 4)\n");
}

TEST(LineParser, TakesThePenOfTheNextLineOnly)
{
    EXPECT_EQ(RecordedObjects("Line 1 2 3 4\n  Pen (3,5,255)\nPoint 1 2\n"),
              "AddPolyline (1 2)(3 4) pen=3,5,#ff0000\nAddPoint (1 2)\n");
    EXPECT_EQ(RecordedObjects("Line 1 2 3 4\nPen (3,5,255)\nPen (4,5,255)\nPoint 1 2\n"),
              "AddPolyline (1 2)(3 4) pen=3,5,#ff0000\nAddPoint (1 2)\n");
    EXPECT_EQ(RecordedObjects("Line 1 2 3 4\nsmooth\nPen (3,5,255)\n"), "AddPolyline (1 2)(3 4)\n");
}

TEST(LineParser, AtTheEndThePenIsTriedOnItsOwnLine)
{
    EXPECT_EQ(RecordedObjects("Line 1 2 3 4 Pen (3,5,255)"),
              "AddPolyline (1 2)(3 4) pen=3,5,#ff0000\n");
    EXPECT_EQ(RecordedObjects("Line 1 2 3 4 Pen (3,5,255)\nPoint 1 2\n"),
              "AddPolyline (1 2)(3 4)\nAddPoint (1 2)\n");
}

TEST(LineParser, FourTokensAreTooFew)
{
    EXPECT_EQ(RecordedObjects("Line 1 2 3\n4\n"), "");
}

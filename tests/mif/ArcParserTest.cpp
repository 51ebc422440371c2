// SPDX-License-Identifier: MIT
#include "tests/support/MifRecorder.h"

using namespace VelorExchange::test;

TEST(ArcParser, AnglesStandOnItsLineOrTheNext)
{
    const std::string arc = "AddArc (1 2)(3 4) angles=1.5707963267948966,3.141592653589793\n";
    EXPECT_EQ(RecordedObjects("Arc 1 2 3 4 90 180\n"), arc);
    EXPECT_EQ(RecordedObjects("Arc 1 2 3 4\n 90 180\n"), arc);
}

TEST(ArcParser, AnglesCountOnlyAsExactlySevenTokens)
{
    EXPECT_EQ(RecordedObjects("Arc 1 2 3 4 90\n0 180\n"),
              "AddArc (1 2)(3 4) angles=0,3.141592653589793\n");
    EXPECT_EQ(RecordedObjects("Arc 1 2 3 4 90 90 90\n0 180\n"),
              "AddArc (1 2)(3 4) angles=0,3.141592653589793\n");
}

TEST(ArcParser, TakesAPenAndNoBrush)
{
    EXPECT_EQ(RecordedObjects("Arc 1 2 3 4 0 0\nPen (3,5,255)\nBrush (2,0)\nPoint 1 2\n"),
              "AddArc (1 2)(3 4) angles=0,0 pen=3,5,#ff0000\nAddPoint (1 2)\n");
    EXPECT_EQ(RecordedObjects("Arc 1 2 3 4 0 0\nBrush (2,0)\nPen (3,5,255)\n"),
              "AddArc (1 2)(3 4) angles=0,0\n");
}

TEST(ArcParser, MissingAnglesDropIt)
{
    EXPECT_EQ(RecordedObjects("Arc 1 2 3 4\n90\n"), "");
    EXPECT_EQ(RecordedObjects("Arc 1 2 3 4\n"), "");
    EXPECT_EQ(RecordedObjects("Arc 1 2 3\n"), "");
}

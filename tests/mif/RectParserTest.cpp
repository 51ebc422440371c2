// SPDX-License-Identifier: MIT
#include "tests/support/MifRecorder.h"

using namespace VelorExchange::test;

TEST(RectParser, ReadsCorners)
{
    EXPECT_EQ(RecordedObjects("Rect 1 2 3 4\n"), "AddRect (1 2)(3 4)\n");
    EXPECT_EQ(RecordedObjects("Rect 1 2 3\n"), "");
}

TEST(RectParser, TakesPenAndBrushInAnyOrder)
{
    const std::string rect = "AddRect (1 2)(3 4) pen=3,5,#ff0000 brush=7,#0000ff,#ffffff\n";
    EXPECT_EQ(RecordedObjects("Rect 1 2 3 4\nPen (3,5,255)\nBrush (7,16711680)\n"), rect);
    EXPECT_EQ(RecordedObjects("Rect 1 2 3 4\nBrush (7,16711680)\nPen (3,5,255)\n"), rect);
}

TEST(RectParser, LaterClauseOfOneKindWins)
{
    EXPECT_EQ(RecordedObjects("Rect 1 2 3 4\nPen (3,5,255)\nPen (4,6,0)\n"),
              "AddRect (1 2)(3 4) pen=4,6,#000000\n");
}

TEST(RectParser, AnyOtherLineEndsTheClauses)
{
    EXPECT_EQ(RecordedObjects("Rect 1 2 3 4\nCenter 1 2\nPen (3,5,255)\nPoint 1 2\n"),
              "AddRect (1 2)(3 4)\nAddPoint (1 2)\n");
}

TEST(RectParser, LineOfBothClausesIsAPen)
{
    EXPECT_EQ(RecordedObjects("Rect 1 2 3 4\nBrush (5,6,7) Pen (8,9,10)\n"),
              "AddRect (1 2)(3 4) pen=5,6,#070000\n");
}

TEST(RectParser, ShortClauseDropsTheObject)
{
    EXPECT_EQ(RecordedObjects("Rect 1 2 3 4\nPen (3,5)\nPoint 1 2\n"), "AddPoint (1 2)\n");
    EXPECT_EQ(RecordedObjects("Rect 1 2 3 4\nBrush (3)\nPoint 1 2\n"), "AddPoint (1 2)\n");
}

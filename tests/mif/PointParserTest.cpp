// SPDX-License-Identifier: MIT
#include "tests/support/MifRecorder.h"

using namespace VelorExchange::test;

TEST(PointParser, CoordinatesStandOnItsLineOrTheNext)
{
    EXPECT_EQ(RecordedObjects("Point 1 2\n"), "AddPoint (1 2)\n");
    EXPECT_EQ(RecordedObjects("Point\n1 2\n"), "AddPoint (1 2)\n");
    EXPECT_EQ(RecordedObjects("POINT\t1\t \t2 3\n"), "AddPoint (1 2)\n");
}

TEST(PointParser, OneNumberIsTooShort)
{
    EXPECT_EQ(RecordedObjects("Point 1\nPoint\n3\nPoint\n"), "");
}

TEST(PointParser, TakesTheSymbolOfTheNextLineOnly)
{
    EXPECT_EQ(RecordedObjects("Point 1 2\nSymbol (34,255,9)\nPoint 3 4\n"),
              "AddPoint (1 2) symbol=34,#ff0000,9,<шрифт не задан>,0,0\nAddPoint (3 4)\n");
    EXPECT_EQ(RecordedObjects("Point 1 2\nPen (1,2,3)\nSymbol (34,255,9)\nPoint 3 4\n"),
              "AddPoint (1 2)\nAddPoint (3 4)\n");
}

TEST(PointParser, AtTheEndTheClauseIsTriedOnItsOwnLastLine)
{
    EXPECT_EQ(RecordedObjects("Point 1 2 Symbol (34,0,9)"),
              "AddPoint (1 2) symbol=34,#000000,9,<шрифт не задан>,0,0\n");
    EXPECT_EQ(RecordedObjects("Point 1 2 Symbol (34,0,9)\n\n"), "AddPoint (1 2)\n");
    EXPECT_EQ(RecordedObjects("Point 1 2 Symbol (34,0,9)\nNone\n"), "AddPoint (1 2)\n");
}

TEST(PointParser, ShortSymbolDropsThePoint)
{
    EXPECT_EQ(RecordedObjects("Point 1 2\nSymbol\nPoint 3 4\n"), "AddPoint (3 4)\n");
}

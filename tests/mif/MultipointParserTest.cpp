// SPDX-License-Identifier: MIT
#include "tests/support/MifRecorder.h"

using namespace VelorExchange::test;

TEST(MultipointParser, EachPointGoesOutWithSymbolAndAttributes)
{
    EXPECT_EQ(Recorded(CMifPair("Columns 1\nn Integer\nData\nMultipoint 2\n1 2\n3 4\n"
                                "Symbol (34,0,9)\nPoint 5 6\n",
                                "1\n2\n")),
              "AddPoint (1 2) symbol=34,#000000,9,<шрифт не задан>,0,0 [n=int:1]\n"
              "AddPoint (3 4) symbol=34,#000000,9,<шрифт не задан>,0,0 [n=int:1]\n"
              "AddPoint (5 6) [n=int:2]\n");
}

TEST(MultipointParser, NoPointsTakeTheRowAllTheSame)
{
    EXPECT_EQ(Recorded(CMifPair("Columns 1\nn Integer\nData\nMultipoint 0\nPoint 5 6\n", "1\n2\n")),
              "AddPoint (5 6) [n=int:2]\n");
}

TEST(MultipointParser, CountHasToStandOnItsLine)
{
    EXPECT_EQ(RecordedObjects("Multipoint\n2\n1 2\n3 4\n"), "");
}

TEST(MultipointParser, MissingPointDropsAll)
{
    EXPECT_EQ(RecordedObjects("Multipoint 3\n1 2\n3 4\n"), "");
    EXPECT_EQ(RecordedObjects("Multipoint 2\n1 2\n3\nPoint 5 6\n"), "AddPoint (5 6)\n");
}

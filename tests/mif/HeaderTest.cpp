// SPDX-License-Identifier: MIT
#include "tests/support/MifRecorder.h"

using namespace VelorExchange::test;

namespace {

std::string RecordedHeader(const QByteArray& header, const QByteArray& row)
{
    return Recorded(CMifPair(header + "Point 1 2\n", row));
}

} // namespace

TEST(Header, CountMayStandOnItsLineOrTheNext)
{
    EXPECT_EQ(RecordedHeader("Columns 2\na Integer\nb Integer\nData\n", "1\t2\n"),
              "AddPoint (1 2) [a=int:1] [b=int:2]\n");
    EXPECT_EQ(RecordedHeader("Columns\n2\na Integer\nb Integer\nData\n", "1\t2\n"),
              "AddPoint (1 2) [a=int:1] [b=int:2]\n");
}

TEST(Header, NoColumnsGiveNoAttributes)
{
    EXPECT_EQ(RecordedHeader("Columns 0\nData\n", "1\n"), "AddPoint (1 2)\n");
    EXPECT_EQ(RecordedHeader("Data\n", "1\n"), "AddPoint (1 2)\n");
}

TEST(Header, EveryTypeIsKnownInAnyCase)
{
    EXPECT_EQ(RecordedHeader("Columns 7\na char (20)\nb INTEGER\nc SmallInt\nd Decimal (10, 2)\n"
                             "e Float\nf Date\ng Logical\nData\n",
                             "x\t1\t2\t3.5\t4.5\tSat May 20 1995\ttrue\n"),
              "AddPoint (1 2) [a=QString:x] [b=int:1] [c=short:2] [d=double:3.5] [e=float:4.5]"
              " [f=QDate:1995-05-20] [g=bool:true]\n");
}

TEST(Header, TypeWordsAreTriedInOrder)
{
    // "DateChar" holds two of them, and Char is tried before Date.
    EXPECT_EQ(RecordedHeader("Columns 1\na DateChar\nData\n", "x\n"),
              "AddPoint (1 2) [a=QString:x]\n");
    EXPECT_EQ(RecordedHeader("Columns 1\na LogicalInteger\nData\n", "5\n"),
              "AddPoint (1 2) [a=int:5]\n");
    EXPECT_EQ(RecordedHeader("Columns 1\na DateTime\nData\n", "Sat May 20 1995\n"),
              "AddPoint (1 2) [a=QDate:1995-05-20]\n");
}

TEST(Header, TabDoesNotSeparateNameAndType)
{
    EXPECT_EQ(RecordedHeader("Columns 1\na\tInteger\nData\n", "1\n"), "false\n");
}

TEST(Header, UnknownTypeFailsTheRead)
{
    EXPECT_EQ(RecordedHeader("Columns 1\na LargeNumber\nData\n", "1\n"), "false\n");
}

TEST(Header, ColumnWithoutTypeFailsTheRead)
{
    EXPECT_EQ(RecordedHeader("Columns 1\na\nData\n", "1\n"), "false\n");
}

TEST(Header, EndInsideTheColumnsFailsTheRead)
{
    EXPECT_EQ(Recorded(CMifPair("Columns 2\na Integer\n")), "false\n");
    EXPECT_EQ(Recorded(CMifPair("Columns\n")), "false\n");
}

TEST(Header, DelimiterIsTakenBetweenQuotes)
{
    EXPECT_EQ(RecordedHeader("Delimiter \",\"\nColumns 2\na Char\nb Char\nData\n", "x,y\n"),
              "AddPoint (1 2) [a=QString:x] [b=QString:y]\n");
}

TEST(Header, DelimiterWithoutValueFailsTheRead)
{
    EXPECT_EQ(RecordedHeader("Delimiter\nData\n", "x\n"), "false\n");
    EXPECT_EQ(RecordedHeader("Delimiter \"\"\nData\n", "x\n"), "false\n");
}

TEST(Header, WordsCountAnywhereInALine)
{
    EXPECT_EQ(RecordedHeader("xxdelimiter';' \";\"\nmy cOlUmNs 1\n", ""), "false\n");
    EXPECT_EQ(RecordedHeader("the COLUMNS\n1\na Char\nMetaDATA\n", "x\n"),
              "AddPoint (1 2) [a=QString:x]\n");
}

TEST(Header, DelimiterComesBeforeColumnsAndColumnsBeforeData)
{
    EXPECT_EQ(
        RecordedHeader("Delimiter \"Columns 5 Data\"\nColumns 1 Data\na Char\nData\n", "xCy\n"),
        "AddPoint (1 2) [a=QString:x]\n");
}

TEST(Header, CountIsTheSecondToken)
{
    EXPECT_EQ(RecordedHeader("Columns 1 2\na Char\nData\n", "x\n"),
              "AddPoint (1 2) [a=QString:x]\n");
    EXPECT_EQ(RecordedHeader("Columns2\na Char\nData\n", "x\n"), "false\n");
}

TEST(Header, SecondColumnsClauseReplacesTheFirst)
{
    EXPECT_EQ(RecordedHeader("Columns 2\na Char\nb Char\nColumns 1\nc Integer\nData\n", "7\t8\n"),
              "AddPoint (1 2) [c=int:7]\n");
}

TEST(Header, OtherClausesHaveNoEffect)
{
    EXPECT_EQ(RecordedHeader("Version 900\nCharset \"Neutral\"\nUnique 1\nIndex 1\n"
                             "CoordSys Earth Projection 1, 104 Bounds (0, 0) (1, 1)\n"
                             "Transform 100, 100, 5, 5\nData\n",
                             ""),
              "AddPoint (1 2)\n");
}

// SPDX-License-Identifier: MIT
#include "tests/support/MifRecorder.h"

using namespace VelorExchange::test;

TEST(PLineParser, CountStandsOnItsLineOrTheNext)
{
    EXPECT_EQ(RecordedObjects("PLINE 3\n1 2\n3 4\n5 6\n"), "AddPolyline (1 2)(3 4)(5 6)\n");
    EXPECT_EQ(RecordedObjects("PLINE\n3\n1 2\n3 4\n5 6\n"), "AddPolyline (1 2)(3 4)(5 6)\n");
}

TEST(PLineParser, CountOfZeroMeansTheNextLine)
{
    EXPECT_EQ(RecordedObjects("PLine 0\n1\n1 2\n"), "AddPolyline (1 2)\n");
}

TEST(PLineParser, CountOfThreeTokensIsNotTaken)
{
    EXPECT_EQ(RecordedObjects("PLine 2 2\n1\n1 2\n"), "AddPolyline (1 2)\n");
}

TEST(PLineParser, SectionsGoOutApartWithEqualAttributes)
{
    EXPECT_EQ(
        Recorded(CMifPair("Columns 1\nn Integer\nData\nPLINE MULTIPLE 2\n2\n1 2\n3 4\n1\n5 6\n"
                          "Pen (2,2,0)\nsmooth\nPoint 1 1\n",
                          "1\n2\n")),
        "AddPolyline (1 2)(3 4) pen=2,2,#000000 smooth [n=int:1]\n"
        "AddPolyline (5 6) pen=2,2,#000000 smooth [n=int:1]\n"
        "AddPoint (1 1) [n=int:2]\n");
}

TEST(PLineParser, MultipleWithTwoTokensReadsTheCountFromTheNextLine)
{
    EXPECT_EQ(RecordedObjects("PLine Multiple\n2\n1 2\n3 4\n"), "AddPolyline (1 2)(3 4)\n");
}

TEST(PLineParser, EverySectionIsKept)
{
    EXPECT_EQ(RecordedObjects("PLine Multiple 2\n0\n1\n1 2\n"),
              "AddPolyline \nAddPolyline (1 2)\n");
}

TEST(PLineParser, NoSectionsTakeTheRowAllTheSame)
{
    EXPECT_EQ(
        Recorded(CMifPair("Columns 1\nn Integer\nData\nPLine Multiple 0\nPoint 1 1\n", "1\n2\n")),
        "AddPoint (1 1) [n=int:2]\n");
}

TEST(PLineParser, PenAndSmoothStandInAnyOrder)
{
    EXPECT_EQ(RecordedObjects("PLine 1\n1 2\n  SMOOTH\nPen (2,2,0)\nPen (3,2,0)\n"),
              "AddPolyline (1 2) pen=3,2,#000000 smooth\n");
}

TEST(PLineParser, LineOfBothClausesIsAPen)
{
    EXPECT_EQ(RecordedObjects("PLine 1\n1 2\nsmooth Pen (2,3,4)\n"),
              "AddPolyline (1 2) pen=2,3,#040000\n");
}

TEST(PLineParser, TokensBehindAVertexAreIgnored)
{
    EXPECT_EQ(RecordedObjects("PLine 2\n1 2 3\n\n\t3\t4 x\n"), "AddPolyline (1 2)(3 4)\n");
}

TEST(PLineParser, CountLineThatIsNoNumberIsZero)
{
    EXPECT_EQ(RecordedObjects("PLine\n2 2\nPoint 1 2\n"), "AddPolyline \nAddPoint (1 2)\n");
}

TEST(PLineParser, CarriageReturnInsideAVertexJoinsIt)
{
    EXPECT_EQ(RecordedObjects("PLine 1\n1\r2 3\r4\n"), "AddPolyline (12 34)\n");
}

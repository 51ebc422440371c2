// SPDX-License-Identifier: MIT
#include "tests/tools/CheckSupport.h"
#include "tools/velorx/HostCodec.h"

#include <gtest/gtest.h>

namespace velorx::test {

namespace {

using Strings = std::vector<std::string>;

Strings FoundInPair(const std::string& table, const std::string& rows)
{
    const CTemporaryFolder folder;
    folder.Write("a.mid", rows);
    const std::string path = folder.Write("a.mif", table);
    CFindings findings;
    EXPECT_EQ(MakeChecker("MIF", false)->Check(PathFromBytes(path), findings, nullptr), "");
    return Texts(findings);
}

Strings Found(const std::string& table)
{
    return FindingsIn("MIF", false, table);
}

// Objects start in line 4.
Strings FoundInObjects(const std::string& objects)
{
    return Found("Version 300\nColumns 0\nData\n" + objects);
}

// A table of as many points as `rows` has lines, with a column of each type that is read.
Strings FoundInRows(const std::string& columns, int count, const std::string& rows, int points)
{
    std::string table = "Version 300\nDelimiter \",\"\nColumns " + std::to_string(count) + "\n"
        + columns + "Data\n";
    for (int i = 0; i < points; ++i) {
        table += "Point 1 2\n";
    }
    return FoundInPair(table, rows);
}

} // namespace

TEST(CheckMif, SoundTableHasNoFindings)
{
    EXPECT_EQ(
        FoundInPair("Version 300\nCharset \"WindowsLatin1\"\nDelimiter \",\"\nUnique 1\nIndex 1\n"
                    "CoordSys Earth Projection 8, 1001\n  Bounds (0, 0) (1, 1)\nTransform 0,0,0,0\n"
                    "Columns 2\n  NAME Char (5)\n  DATA Decimal (10, 2)\nData\n\nPoint 1 2\n"
                    "  Symbol (35,0,12)\nPline 2\n0 0\n1 1\n  Pen (1,2,0)\n  Smooth\n",
                    "\"a,b\",1.5\n\"\",\n"),
        Strings());
}

TEST(CheckMif, SoundObjectsOfAllKindsHaveNoFindings)
{
    EXPECT_EQ(
        FoundInObjects(
            "Point\n1 2\nMultipoint 2\n0 0\n1 1\nLine 0 0 1 1\nPline\n2\n0 0\n1 1\n"
            "Pline Multiple 2\n2\n0 0\n1 1\n3\n0 0\n1 1\n2 2\nRegion 2\n3\n0 0\n1 0\n1 1\n"
            "4\n0 0\n1 0\n1 1\n0 1\n  Pen (1,2,0)\n  Brush (1,0)\n  Center 1 1\nArc 0 0 1 1\n0 90\n"
            "Arc 0 0 1 1 0 90\nRect 0 0 1 1\nRoundrect 0 0 1 1 0.5\nRoundrect 0 0 1 1\n0.5\n"
            "Ellipse 0 0 1 1\nText \"a\"\n0 0 1 1\n  Font (\"Arial\",0,0,255)\n  Angle 45\n"
            "  Spacing 1.5\n  Justify Center\n  Label Line Simple 1 1\nText\n\"b\"\"c\"\n0 0 1 1\n"
            "Point 1 2\n  Symbol (\"a,b.bmp\",0,12,0)\n"),
        Strings());
}

TEST(CheckMif, FindsAMissingVersion)
{
    EXPECT_EQ(Found("Columns 0\nData\n"), Strings({"no-version line 1: Columns 0"}));
    EXPECT_EQ(Found("Version x\nColumns 0\nData\n"), Strings({"no-version line 1: Version x"}));
}

TEST(CheckMif, FindsDelimitersThatAreNone)
{
    EXPECT_EQ(
        Found("Version 300\nDelimiter ,\nDelimiter \"ab\"\nData\n"),
        Strings({"bad-delimiter line 2: Delimiter ,", "bad-delimiter line 3: Delimiter \"ab\""}));
}

TEST(CheckMif, FindsUnknownLinesOfTheHeader)
{
    EXPECT_EQ(Found("Version 300\nColor blue\nCharset x\nData\n"),
              Strings({"unknown-clause line 2: Color blue", "unknown-clause line 3: Charset x"}));
}

TEST(CheckMif, FindsAHeaderWithoutAnEnd)
{
    EXPECT_EQ(Found("Version 300\nColumns 0\n"), Strings({"no-data line 2"}));
}

TEST(CheckMif, FindsCountsOfColumnsThatAreWrong)
{
    EXPECT_EQ(Found("Version 300\nColumns 2\n  A Integer\nData\n"),
              Strings({"bad-columns line 2: Columns 2, found 1"}));
    EXPECT_EQ(Found("Version 300\nColumns two\nData\n"),
              Strings({"bad-columns line 2: Columns two"}));
    EXPECT_EQ(Found("Version 300\nColumns\n1\n  A Integer\nData\n"), Strings());
}

TEST(CheckMif, FindsColumnsThatCannotBeTakenApart)
{
    EXPECT_EQ(Found("Version 300\nColumns 2\n  A\tInteger\n  B Char (x)\nData\n"),
              Strings({"bad-column line 3: A\tInteger", "bad-column line 4: B Char (x)"}));
}

TEST(CheckMif, FindsTypesOfColumnsThatAreNotRead)
{
    EXPECT_EQ(Found("Version 300\nColumns 3\n  A LargeInt\n  B Time\n  C DateTime\nData\n"),
              Strings({"unread-type line 3: A LargeInt", "unread-type line 4: B Time"}));
}

TEST(CheckMif, TellsOfLinesOfTheHeaderThatAreTakenForOthers)
{
    EXPECT_EQ(Found("Version 300\nCoordSys Table \"my data\"\nColumns 0\nData\n"),
              Strings({"header-word line 2: CoordSys Table \"my data\""}));
}

TEST(CheckMif, FindsUnknownLines)
{
    EXPECT_EQ(FoundInObjects("Pen (1,2,0)\nCircle 0 0 1\nPoint 1 2\n7\n"),
              Strings({"unknown-line line 4: Pen (1,2,0)", "unknown-line line 5: Circle 0 0 1",
                       "unknown-line line 7: 7"}));
}

TEST(CheckMif, FindsObjectsThatAreCutOff)
{
    EXPECT_EQ(FoundInObjects("Pline 3\n0 0\n1 1\n"), Strings({"cut-short line 4"}));
    EXPECT_EQ(FoundInObjects("Text \"a\"\n"), Strings({"cut-short line 4"}));
    EXPECT_EQ(FoundInObjects("Region 2\n3\n0 0\n1 0\n1 1\n"), Strings({"cut-short line 4"}));
}

TEST(CheckMif, FindsCountsThatAreWrong)
{
    EXPECT_EQ(FoundInObjects("Pline 3\n0 0\n1 1\n  Pen (1,2,0)\n"),
              Strings({"bad-count line 4: tells 3, has 2"}));
    EXPECT_EQ(FoundInObjects("Pline 2\n0 0\n1 1\n2 2\n3 3\nPoint 1 2\n"),
              Strings({"bad-count line 4: tells 2, has 4"}));
    EXPECT_EQ(FoundInObjects("Region 2\n3\n0 0\n1 0\n1 1\nPoint 1 2\n"),
              Strings({"bad-count line 9: Point 1 2"}));
    EXPECT_EQ(FoundInObjects("Pline x\nRegion\nMultipoint -1\nPline Multiple\nCollection x\n"),
              Strings({"bad-count line 4: Pline x", "bad-count line 5: Region",
                       "bad-count line 6: Multipoint -1", "bad-count line 7: Pline Multiple",
                       "bad-count line 8: Collection x"}));
}

TEST(CheckMif, FindsTooFewVertices)
{
    EXPECT_EQ(FoundInObjects("Pline 1\n0 0\nRegion 1\n2\n0 0\n1 1\n"),
              Strings({"few-vertices line 4: Pline 1", "few-vertices line 7: 2"}));
}

TEST(CheckMif, FindsValuesThatAreNoNumbers)
{
    EXPECT_EQ(FoundInObjects("Point 1,5 2\nLine 0 0 1\nPline 2\n0 0\n1 -\nText \"a\"\n0 0 1 nan\n"),
              Strings({"bad-number line 4: Point 1,5 2", "bad-number line 5: Line 0 0 1",
                       "bad-number line 8: 1 -", "bad-number line 10: 0 0 1 nan"}));
}

TEST(CheckMif, FindsClausesThatCannotBeTakenApart)
{
    EXPECT_EQ(FoundInObjects("Pline 2\n0 0\n1 1\nPen (1,2)\nPoint 1 2\nSymbol 35,0,12\nText \"a\"\n"
                             "0 0 1 1\nFont (\"a,b\",0,0)\nAngle\n"),
              Strings({"bad-clause line 7: Pen (1,2)", "bad-clause line 9: Symbol 35,0,12",
                       "bad-clause line 12: Font (\"a,b\",0,0)", "bad-clause line 13: Angle"}));
}

TEST(CheckMif, FindsTextsWithoutTheirQuotes)
{
    EXPECT_EQ(FoundInObjects("Text \"a\n0 0 1 1\nText\nb\n0 0 1 1\n"),
              Strings({"bad-string line 4: Text \"a", "bad-string line 7: b"}));
}

TEST(CheckMif, TellsOfObjectsThatAreTakenForOthers)
{
    EXPECT_EQ(FoundInObjects("Text \"Region 5\"\n0 0 1 1\nText \"a pole\"\n0 0 1 1\n"),
              Strings({"other-word line 4: Text \"Region 5\""}));
}

TEST(CheckMif, TellsOfObjectsWithoutAShape)
{
    EXPECT_EQ(FoundInObjects("None\nNONE\n"), Strings({"none line 4 (2 times)"}));
}

TEST(CheckMif, FindsMissingRows)
{
    EXPECT_EQ(Found("Version 300\nColumns 1\n  A Integer\nData\nPoint 1 2\n"),
              Strings({"no-rows .mid: No such file or directory"}));
}

TEST(CheckMif, FindsRowsOutOfStep)
{
    EXPECT_EQ(FoundInRows("A Integer\n", 1, "1\n", 3),
              Strings({"few-rows .mid line 1: 3 objects, 1 rows (2 times)"}));
    EXPECT_EQ(FoundInRows("A Integer\n", 1, "1\n2\n", 1),
              Strings({"many-rows .mid line 2: 1 objects, 2 rows"}));
}

TEST(CheckMif, PartsOfACollectionShareOneRow)
{
    EXPECT_EQ(FoundInPair("Version 300\nColumns 1\n  A Integer\nData\nCollection 2\n"
                          "Pline 2\n0 0\n1 1\nMultipoint 1\n0 0\nPoint 1 2\n",
                          "1\n2\n"),
              Strings());
}

TEST(CheckMif, FindsRowsThatDoNotFitTheColumns)
{
    EXPECT_EQ(FoundInRows("A Integer\nB Char (9)\n", 2, "1\n1,a,b\n1,\"a,b\"\n", 3),
              Strings({"bad-row .mid line 1: 1 fields for 2 columns",
                       "bad-row .mid line 2: 3 fields for 2 columns"}));
}

TEST(CheckMif, FindsOddQuotes)
{
    EXPECT_EQ(FoundInRows("A Char (9)\n", 1, "\"a\n\"b \"\"c\"\"\"\n", 2),
              Strings({"bad-quotes .mid line 1: \"a"}));
}

TEST(CheckMif, FindsValuesThatAreNotOfTheirColumnsType)
{
    EXPECT_EQ(FoundInRows("I Integer\nS SmallInt\nD Decimal (5, 1)\nF Float\nT Date\nL Logical\n",
                          6, "1,2,3.5,4e5,,T\n,,,,,\n1.5,40000,x,nan,20201340,maybe\n", 3),
              Strings({"logical .mid line 1: L", "bad-value .mid line 3: I: 1.5",
                       "bad-value .mid line 3: S: 40000", "bad-value .mid line 3: D: x",
                       "bad-value .mid line 3: F: nan", "bad-value .mid line 3: T: 20201340",
                       "bad-value .mid line 3: L: maybe"}));
}

TEST(CheckMif, FindsTextsThatAreLongerThanTheirColumn)
{
    EXPECT_EQ(FoundInRows("A Char (3)\n", 1, "abc\n\"a\"\"c\"\nabcd\n", 3),
              Strings({"long-value .mid line 3: A: abcd"}));
}

TEST(CheckMif, TellsOfDatesAndLogicalValuesThatAreMisread)
{
    EXPECT_EQ(FoundInRows("D Date\nL Logical\n", 2, "20200131,T\n20200131,F\n,true\n", 3),
              Strings({"date .mid line 1: D (2 times)", "logical .mid line 1: L"}));
}

TEST(CheckMif, TellsOfNumbersThatLoseDigits)
{
    EXPECT_EQ(
        FoundInRows("F Float\nD Decimal (12, 3)\n", 2, "12.7,6543210.123\n6543210.123,0\n", 2),
        Strings({"float .mid line 2: F: 6543210.123"}));
}

TEST(CheckMif, FindsTextOutsideOfTheCodePage)
{
    const CCodePage codePage("UTF-8");
    const Strings found = FoundInPair(
        "Version 300\nColumns 1\n  A Char (9)\nData\nText \"\xE4\"\n0 0 1 1\n", "\xE4\n");
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0].substr(0, 15), "bad-text line 5");
    EXPECT_EQ(found[1].substr(0, 20), "bad-text .mid line 1");
}

TEST(CheckMif, TellsOfAnotherCharacterSetThanThatOfTheProcess)
{
    const CCodePage codePage("windows-1251");
    const Strings found =
        FoundInPair("Version 300\nCharset \"WindowsLatin1\"\nColumns 1\n  A Char (9)\n"
                    "Data\nText \"\xE4\"\n0 0 1 1\n",
                    "\xE4\n");
    EXPECT_EQ(found, Strings({"other-code-page line 6: windows-1252 (2 times)"}));
}

TEST(CheckMif, LinesThatNeverEndAreChecked)
{
    const std::string line(5000000, 'x');
    EXPECT_EQ(FoundInObjects(line + "\nPoint 1 2\n" + line).size(), 2U);
}

} // namespace velorx::test

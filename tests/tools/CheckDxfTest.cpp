// SPDX-License-Identifier: MIT
#include "tests/tools/CheckSupport.h"

#include <gtest/gtest.h>

namespace velorx::test {

namespace {

using Strings = std::vector<std::string>;

constexpr char kEof[] = "0\nEOF\n";

Strings Found(const std::string& drawing)
{
    return FindingsIn("DXF", false, drawing);
}

std::string Section(const std::string& name, const std::string& content)
{
    return "0\nSECTION\n2\n" + name + "\n" + content + "0\nENDSEC\n";
}

// The content starts in line 5.
std::string Entities(const std::string& content)
{
    return Section("ENTITIES", content) + kEof;
}

} // namespace

TEST(CheckDxf, SoundDrawingHasNoFindings)
{
    EXPECT_EQ(Found(Entities("0\nPOINT\n8\n0\n10\n1.5\n20\n-2.5e3\n30\n+.5\n62\n7\n")), Strings());
}

TEST(CheckDxf, LineEndsOfAllKindsAreSound)
{
    EXPECT_EQ(Found("0\r\nSECTION\r\n2\r\nENTITIES\r\n0\r\nENDSEC\r\n0\r\nEOF\r\n"), Strings());
    EXPECT_EQ(Found("0\rSECTION\r2\rENTITIES\r0\rENDSEC\r0\rEOF"), Strings());
}

TEST(CheckDxf, CommentsAheadOfTheFirstSectionAreSound)
{
    EXPECT_EQ(Found("999\na comment\n" + Entities("")), Strings());
}

TEST(CheckDxf, FindsBinaryDrawings)
{
    EXPECT_EQ(Found("AutoCAD Binary DXF\r\n\x1A"), Strings({"binary byte 0"}));
}

TEST(CheckDxf, FindsAStartThatIsNone)
{
    EXPECT_EQ(Found("0\nLINE\n" + Entities("")),
              Strings({"no-start line 1: LINE", "stray line 2: LINE"}));
    EXPECT_EQ(Found(""), Strings({"no-end byte 0", "no-start byte 0"}));
}

TEST(CheckDxf, FindsAByteOrderMark)
{
    EXPECT_EQ(Found("\xEF\xBB\xBF" + Entities("")),
              Strings({"no-start line 1: a byte order mark"}));
}

TEST(CheckDxf, FindsCodesThatAreNoNumbers)
{
    EXPECT_EQ(Found(Entities("0\nPOINT\n8\n0\nx\n1\n\n2\n-5\n3\n")),
              Strings({"bad-code line 9: x", "bad-code line 11", "bad-code line 13: -5"}));
}

TEST(CheckDxf, FindsCodesThatAreSpelledOddly)
{
    EXPECT_EQ(Found(Entities("0\nPOINT\n08\n0\n+10\n1.0\n")),
              Strings({"odd-code line 7: 08", "odd-code line 9: +10"}));
}

TEST(CheckDxf, FindsACodeWithoutAValueAtTheEnd)
{
    EXPECT_EQ(Found(Section("ENTITIES", "") + "0\n"), Strings({"odd-end line 7", "no-end line 7"}));
}

TEST(CheckDxf, FindsLinesThatTheReaderCuts)
{
    EXPECT_EQ(Found(Entities("0\nTEXT\n1\n" + std::string(999, 'a') + "\n1\n"
                             + std::string(1000, 'b') + "\n")),
              Strings({"long-line line 10: 1000 bytes"}));
}

TEST(CheckDxf, FindsValuesThatAreNoNumbers)
{
    EXPECT_EQ(Found(Entities("0\nPOINT\n10\n1,5\n20\n\n1040\nabc\n")),
              Strings({"bad-real line 8: group 10: 1,5",
                       "bad-real line 10: group 20: ", "bad-real line 12: group 1040: abc"}));
}

TEST(CheckDxf, FindsNumbersThatAreNotFinite)
{
    EXPECT_EQ(Found(Entities("0\nPOINT\n10\nnan\n20\ninf\n")),
              Strings({"not-finite line 8: group 10: nan", "not-finite line 10: group 20: inf"}));
}

TEST(CheckDxf, FindsValuesThatAreNoWholeNumbers)
{
    EXPECT_EQ(Found(Entities("0\nPOINT\n62\n7.0\n70\n5000000000\n90\n4294967295\n160\n"
                             "5000000000\n")),
              Strings({"bad-integer line 8: group 62: 7.0",
                       "bad-integer line 10: group 70: 5000000000"}));
}

TEST(CheckDxf, HandlesAndTextsAreNotTakenForNumbers)
{
    EXPECT_EQ(Found(Entities("0\nTEXT\n5\n1F\n330\nA\n1\nabc\n1005\nFF\n310\nC0FFEE\n")),
              Strings());
}

TEST(CheckDxf, FindsSectionsThatAreNotClosed)
{
    EXPECT_EQ(Found("0\nSECTION\n2\nHEADER\n" + Entities("")),
              Strings({"open-section line 2: HEADER"}));
    EXPECT_EQ(Found("0\nSECTION\n2\nENTITIES\n0\nEOF\n"),
              Strings({"open-section line 2: ENTITIES"}));
}

TEST(CheckDxf, FindsTablesThatAreNotClosed)
{
    EXPECT_EQ(
        Found(Section("TABLES", "0\nTABLE\n2\nLAYER\n0\nTABLE\n2\nSTYLE\n0\nENDTAB\n") + kEof),
        Strings({"open-table line 6: LAYER"}));
    EXPECT_EQ(Found(Section("TABLES", "0\nTABLE\n2\nLAYER\n") + kEof),
              Strings({"open-table line 6: LAYER"}));
}

TEST(CheckDxf, FindsBlocksThatAreNotClosed)
{
    EXPECT_EQ(Found(Section("BLOCKS", "0\nBLOCK\n2\nA\n0\nBLOCK\n2\nB\n0\nENDBLK\n") + kEof),
              Strings({"open-block line 6: A"}));
    EXPECT_EQ(Found(Section("BLOCKS", "0\nBLOCK\n2\nA\n") + kEof),
              Strings({"open-block line 6: A"}));
}

TEST(CheckDxf, FindsPolylinesAndInsertsWithoutTheirEnd)
{
    EXPECT_EQ(Found(Entities("0\nPOLYLINE\n0\nVERTEX\n0\nPOINT\n")),
              Strings({"open-sequence line 6: POLYLINE"}));
    const std::string block = Section("BLOCKS", "0\nBLOCK\n2\nA\n0\nENDBLK\n");
    EXPECT_EQ(Found(block + Entities("0\nINSERT\n66\n1\n2\nA\n0\nPOINT\n")),
              Strings({"open-sequence line 18: INSERT"}));
    EXPECT_EQ(Found(block + Entities("0\nINSERT\n2\nA\n0\nATTRIB\n0\nINSERT\n2\nA\n")),
              Strings({"open-sequence line 18: INSERT"}));
}

TEST(CheckDxf, PolylinesAndInsertsWithTheirPartsAreSound)
{
    const std::string block = Section("BLOCKS", "0\nBLOCK\n2\nA\n0\nENDBLK\n");
    EXPECT_EQ(Found(block
                    + Entities("0\nPOLYLINE\n0\nVERTEX\n0\nVERTEX\n0\nSEQEND\n0\nINSERT\n2\nA\n"
                               "66\n1\n0\nATTRIB\n0\nSEQEND\n0\nINSERT\n2\nA\n")),
              Strings());
}

TEST(CheckDxf, FindsMarksAndPartsThatBelongToNothing)
{
    EXPECT_EQ(Found(Entities("0\nVERTEX\n0\nSEQEND\n0\nATTRIB\n")),
              Strings({"stray line 6: VERTEX", "stray line 8: SEQEND", "stray line 10: ATTRIB"}));
    EXPECT_EQ(Found(Section("BLOCKS", "0\nENDBLK\n0\nLINE\n") + Section("TABLES", "0\nENDTAB\n")
                    + "0\nENDSEC\n" + kEof),
              Strings({"stray line 6: ENDBLK", "stray line 8: LINE", "stray line 16: ENDTAB",
                       "stray line 20: ENDSEC"}));
}

TEST(CheckDxf, FindsAMissingEndMark)
{
    EXPECT_EQ(Found(Section("ENTITIES", "")), Strings({"no-end line 6"}));
}

TEST(CheckDxf, TellsOfLinesBehindTheEndMark)
{
    EXPECT_EQ(Found(Entities("") + "\nrest\n"), Strings({"behind-end line 10"}));
}

TEST(CheckDxf, TellsOfGroupsOutsideOfSections)
{
    EXPECT_EQ(Found(Section("ENTITIES", "") + "8\n0\n62\n1\n" + kEof), Strings({"outside line 7"}));
}

TEST(CheckDxf, FindsSectionsBehindTheLastOneThatIsRead)
{
    EXPECT_EQ(Found(Section("OBJECTS", "") + Section("ACDSDATA", "") + Entities("")),
              Strings({"late-section line 14: ENTITIES"}));
}

TEST(CheckDxf, FindsCountsThatAreWrong)
{
    EXPECT_EQ(Found(Entities("0\nLWPOLYLINE\n90\n3\n10\n0\n20\n0\n10\n1\n20\n0\n")),
              Strings({"bad-count line 8: LWPOLYLINE tells 3, has 2"}));
    EXPECT_EQ(Found(Entities("0\nSPLINE\n72\n1\n73\n1\n74\n1\n40\n0\n10\n0\n11\n0\n11\n0\n")),
              Strings({"bad-count line 12: SPLINE tells 1, has 2"}));
    EXPECT_EQ(Found(Entities("0\nMLINE\n72\n2\n11\n0\n0\nIMAGE\n91\n1\n")),
              Strings({"bad-count line 8: MLINE tells 2, has 1",
                       "bad-count line 14: IMAGE tells 1, has 0"}));
}

TEST(CheckDxf, TellsOfEntitiesThatAreNotReadByKind)
{
    EXPECT_EQ(Found(Entities("0\nDIMENSION\n0\nLEADER\n0\nDIMENSION\n0\nPOINT\n")),
              Strings({"unread line 6: DIMENSION (2 times)", "unread line 8: LEADER"}));
}

TEST(CheckDxf, TellsOfEntitiesOfPaperSpace)
{
    EXPECT_EQ(Found(Entities("0\nTEXT\n67\n1\n0\nTEXT\n67\n0\n")),
              Strings({"paper-space line 7: TEXT"}));
}

TEST(CheckDxf, TellsOfLayersLineTypesAndStylesThatAreNotDefined)
{
    const std::string tables = Section("TABLES",
                                       "0\nLAYER\n2\nWells\n6\nDOTS\n0\nLTYPE\n2\nDashed\n"
                                       "0\nSTYLE\n2\nBig\n");
    EXPECT_EQ(Found(tables
                    + Entities("0\nTEXT\n8\nWELLS\n6\nDASHED\n7\nBIG\n"
                               "0\nTEXT\n8\nRoads\n6\nWavy\n7\nSmall\n0\nPOINT\n8\nRoads\n"
                               "0\nTEXT\n8\n0\n6\nByLayer\n7\nStandard\n")),
              Strings({"no-layer line 36: Roads (2 times)", "no-line-type line 10: DOTS",
                       "no-line-type line 38: Wavy", "no-style line 40: Small"}));
}

TEST(CheckDxf, FindsInsertsOfBlocksThatAreNotDefined)
{
    const std::string blocks = Section(
        "BLOCKS", "0\nBLOCK\n2\nA\n0\nINSERT\n2\nB\n0\nENDBLK\n0\nBLOCK\n2\nb\n0\nENDBLK\n");
    EXPECT_EQ(Found(blocks + Entities("0\nINSERT\n2\nA\n0\nINSERT\n2\nC\n")),
              Strings({"no-block line 34: C"}));
}

TEST(CheckDxf, FindsBlocksThatHoldThemselves)
{
    const std::string itself = Section("BLOCKS", "0\nBLOCK\n2\nA\n0\nINSERT\n2\na\n0\nENDBLK\n");
    EXPECT_EQ(Found(itself + Entities("")), Strings({"block-loop line 12: A"}));
    const std::string three =
        Section("BLOCKS",
                "0\nBLOCK\n2\nA\n0\nINSERT\n2\nB\n0\nENDBLK\n"
                "0\nBLOCK\n2\nB\n0\nINSERT\n2\nC\n0\nENDBLK\n"
                "0\nBLOCK\n2\nC\n0\nINSERT\n2\nA\n0\nINSERT\n2\nB\n0\nENDBLK\n");
    EXPECT_EQ(Found(three + Entities("")),
              Strings({"block-loop line 32: A", "block-loop line 36: B"}));
}

TEST(CheckDxf, BlocksThatShareAnotherAreNoLoop)
{
    EXPECT_EQ(Found(Section("BLOCKS",
                            "0\nBLOCK\n2\nA\n0\nINSERT\n2\nB\n0\nINSERT\n2\nC\n0\nENDBLK\n"
                            "0\nBLOCK\n2\nB\n0\nINSERT\n2\nC\n0\nENDBLK\n"
                            "0\nBLOCK\n2\nC\n0\nENDBLK\n")
                    + Entities("0\nINSERT\n2\nA\n0\nINSERT\n2\nA\n")),
              Strings());
}

TEST(CheckDxf, FindsTextOutsideOfItsCodePage)
{
    const std::string header = Section("HEADER", "9\n$ACADVER\n1\nAC1021\n");
    EXPECT_EQ(Found(header + Entities("0\nTEXT\n1\n\xD0\x9F\n0\nTEXT\n1\n\xCF\xEB\n")).size(), 1U);
    EXPECT_EQ(Found(header + Entities("0\nTEXT\n1\n\xCF\xEB\n"))[0].substr(0, 16),
              "bad-text line 18");
    const CCodePage codePage("UTF-8");
    EXPECT_EQ(Found(Entities("0\nTEXT\n1\n\xCF\xEB\n"))[0].substr(0, 15), "bad-text line 8");
}

TEST(CheckDxf, TellsOfAnotherCodePageThanThatOfTheProcess)
{
    const CCodePage codePage("windows-1251");
    const std::string text = Entities("0\nTEXT\n1\n\xE4\n");
    const auto header = [](const std::string& name) {
        return Section("HEADER", "9\n$ACADVER\n1\nAC1015\n9\n$DWGCODEPAGE\n3\n" + name + "\n");
    };
    EXPECT_EQ(Found(header("ANSI_1252") + text), Strings({"other-code-page line 22: ANSI_1252"}));
    EXPECT_EQ(Found(header("ANSI_1251") + text), Strings());
    EXPECT_EQ(Found(header("ANSI_1252") + Entities("0\nTEXT\n1\nplain\n")), Strings());
}

} // namespace velorx::test

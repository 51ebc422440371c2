// SPDX-License-Identifier: MIT
#include "tests/tools/CheckSupport.h"

#include <gtest/gtest.h>

namespace velorx::test {

namespace {

using Strings = std::vector<std::string>;

Strings Found(const std::string& map)
{
    return FindingsIn("SXF", true, map);
}

// The object starts in line 3.
Strings FoundInObject(const std::string& object)
{
    return Found(".SXF 4.0\n.DAT 1\n" + object + ".END\n");
}

} // namespace

TEST(CheckSxfText, SoundMapHasNoFindings)
{
    EXPECT_EQ(
        Found(
            ".SIT 4.0\r\n\r\nP000 map\r\n.DAT 4\r\n\r\n.OBJ 91000000 LIN\r\n.KEY 1\r\n2\r\n0 0\r\n"
            "1 1\r\n.OBJ 0 SQR\r\n.SEG Forest\r\n.MET 1\r\n3\r\n0 0 1\r\n1 0 1\r\n1 1 1\r\n1\r\n"
            "0 0 0\r\n.SEM 2\r\n9 a b\r\n10 5\r\n.IMG 1\r\n_SQUARE 1\r\nCOLOR 5\r\n"
            ".OBJ 0 TIT\r\n.ALG CENTER 0\r\n1\r\n0 0\r\n>text 5\r\n.IMG 1\r\n_TEXT 13\r\n"
            "NAME Times New Roman\r\n.OBJ 7 DOT\r\n1\r\n0 0\r\n.END\r\n"),
        Strings());
}

TEST(CheckSxfText, FindsAMissingOrWrongCountOfObjects)
{
    EXPECT_EQ(Found(".SXF 4.0\n"), Strings({"bad-object-count line 1"}));
    EXPECT_EQ(Found(".SXF 4.0\n.DAT x\n.END\n"), Strings({"bad-object-count line 2: .DAT x"}));
    EXPECT_EQ(Found(".SXF 4.0\n.DAT 2\n.OBJ 1 DOT\n1\n0 0\n.END\n"),
              Strings({"bad-object-count line 2: tells 2, has 1"}));
}

TEST(CheckSxfText, TellsOfAStartThatIsNone)
{
    EXPECT_EQ(Found("P000 map\n.DAT 0\n.END\n"), Strings({"no-start line 1: P000 map"}));
}

TEST(CheckSxfText, FindsObjectsWithoutACodeOrOfAnUnknownKind)
{
    EXPECT_EQ(FoundInObject(".OBJ x LIN\n1\n0 0\n"), Strings({"bad-object line 3: .OBJ x LIN"}));
    EXPECT_EQ(FoundInObject(".OBJ -1 LIN\n1\n0 0\n"), Strings({"bad-object line 3: .OBJ -1 LIN"}));
    EXPECT_EQ(FoundInObject(".OBJ 1 CIR\n1\n0 0\n"), Strings({"bad-object line 3: .OBJ 1 CIR"}));
    EXPECT_EQ(FoundInObject(".OBJ\n1\n0 0\n"), Strings({"bad-object line 3: .OBJ"}));
}

TEST(CheckSxfText, FindsCountsThatAreWrong)
{
    EXPECT_EQ(FoundInObject(".OBJ 1 LIN\n3\n0 0\n1 1\n"),
              Strings({"bad-count line 4: tells 3, has 2"}));
    EXPECT_EQ(FoundInObject(".OBJ 1 LIN\n0\n"), Strings({"bad-count line 4: 0"}));
    EXPECT_EQ(FoundInObject(".OBJ 1 LIN\n.MET x\n1\n0 0\n"), Strings({"bad-count line 4: .MET x"}));
    EXPECT_EQ(FoundInObject(".OBJ 1 LIN\n1\n0 0\n.SEM 2\n1 a\n"),
              Strings({"bad-count line 6: tells 2, has 1"}));
    EXPECT_EQ(FoundInObject(".OBJ 1 LIN\n1\n0 0\n.SEM\n"), Strings({"bad-count line 6: .SEM"}));
}

TEST(CheckSxfText, FindsVerticesThatAreNone)
{
    EXPECT_EQ(
        FoundInObject(".OBJ 1 LIN\n4\n0 0\n1\n1 x\n1 1 1\n"),
        Strings({"bad-vertex line 6: 1", "bad-vertex line 7: 1 x", "bad-vertex line 8: 1 1 1"}));
}

TEST(CheckSxfText, FindsObjectsWithOtherContoursThanTheyTell)
{
    EXPECT_EQ(FoundInObject(".OBJ 1 LIN\n.MET 1\n1\n0 0\n"),
              Strings({"bad-contours line 3: .OBJ 1 LIN: tells 2, has 1"}));
    EXPECT_EQ(FoundInObject(".OBJ 1 LIN\n"),
              Strings({"bad-contours line 3: .OBJ 1 LIN: tells 1, has 0"}));
}

TEST(CheckSxfText, FindsAttributesThatAreNone)
{
    EXPECT_EQ(FoundInObject(".OBJ 1 LIN\n1\n0 0\n.SEM 3\n9\nx y\n5 z\n"),
              Strings({"bad-attribute-line line 7: 9", "bad-attribute-line line 8: x y"}));
}

TEST(CheckSxfText, AcceptsAttributesWithoutALetter)
{
    EXPECT_EQ(FoundInObject(".OBJ 1 LIN\n1\n0 0\n.SEM 1\n9 \n"), Strings());
}

TEST(CheckSxfText, FindsLinesOfADrawingThatAreNone)
{
    EXPECT_EQ(FoundInObject(".OBJ 0 LIN\n1\n0 0\n.IMG 1\n_LINE 2\nCOLOR 5 6\nTHICK 7\n"),
              Strings({"bad-drawing-line line 8: COLOR 5 6"}));
    EXPECT_EQ(FoundInObject(".OBJ 1 LIN\n1\n0 0\n.IMG 1\n_LINE 2\nCOLOR 5 6\n"), Strings());
}

TEST(CheckSxfText, FindsAMissingEndMark)
{
    EXPECT_EQ(Found(".SXF 4.0\n.DAT 1\n.OBJ 1 DOT\n1\n0 0\n"), Strings({"no-end line 5"}));
}

TEST(CheckSxfText, TellsOfLinesBehindTheEndMark)
{
    EXPECT_EQ(Found(".SXF 4.0\n.DAT 0\n.END\nrest\n"), Strings({"behind-end line 4: rest"}));
}

TEST(CheckSxfText, FindsMarksInsideOfLines)
{
    EXPECT_EQ(FoundInObject(".OBJ 1 TIT\n1\n0 0\n>the .End\n.SEM 1\n9 a.obj\n"),
              Strings({"other-word line 6: >the .End", "other-word line 8: 9 a.obj"}));
}

TEST(CheckSxfText, FindsTextOutsideOfTheCodePage)
{
    const CCodePage codePage("UTF-8");
    const Strings found = FoundInObject(".OBJ 1 TIT\n1\n0 0\n>\xE4\n");
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].substr(0, 15), "bad-text line 6");
}

} // namespace velorx::test

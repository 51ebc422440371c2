// SPDX-License-Identifier: MIT
// Texts of maps written again in the other form or the same, and what ties them to objects.
#include "tests/support/SxfBuilder.h"
#include "tests/tools/SxfToSxf.h"

namespace velorx::test {

namespace {

using namespace SxfBuilder;

CRecord MixedText()
{
    CRecord text;
    text.flags = kMixed | kDouble | SxfBuilder::kSemantics;
    text.code = 8;
    text.vertices = 2;
    text.subContours = 1;
    text.metric = F64s({1, 2, 1, 8}) + I8(6) + QByteArray("a\0\x1F\0\0\0\0", 7) + I16(0) + I16(2)
        + F64s({3, 2, 3, 8}) + I8(6) + QByteArray("b\0\x1C\0\0\0\0", 7);
    text.semantics = Semantic(4, 1, 0, I8(9));
    return text;
}

} // namespace

TEST_F(SxfToSxf, PartsOfAMixedTextBecomeTextsWhereTheyLie)
{
    const SConverted binary = Convert(File(MixedText()), false);
    EXPECT_EQ(binary.log,
              "text 8 SYSTEM 'a' 31 | (1 2) (1 8) ; 4:1=9\n"
              "text 8 SYSTEM 'b' 28 | (3 2) (3 8)\nframe\n");
    EXPECT_EQ(Losses(binary.report), "");
    ASSERT_EQ(binary.report.kinds.size(), 2U);
    EXPECT_EQ(binary.report.kinds[1].name, "Text, further part");
    EXPECT_EQ(binary.report.kinds[1].written, 1);
    EXPECT_EQ(Convert(File(MixedText()), true).log,
              "frame\ntext 8 SYSTEM 'a' 31 | (1 2) (1 8) ; 4:-1=9\n"
              "text 8 SYSTEM 'b' 28 | (3 2) (3 8)\n");
}

TEST_F(SxfToSxf, PartsOnOneContourStayPartsOrBecomeLines)
{
    const QByteArray objects = ".OBJ 7 MIX\n.ALG LEFT 0\n.ALG RIGHT 1\n.MET 1\n2\n1 2\n1 8\n>a\n"
                               "2\n1 2\n1 8\n>b\n";
    const SConverted text = Convert(TextMap(objects), true);
    EXPECT_EQ(text.log, "frame\ntext 7 SYSTEM 'a' 20 'b' 21 | (1 2) (1 8)\n");
    EXPECT_EQ(Losses(text.report), "");
    const SConverted binary = Convert(TextMap(objects), false);
    EXPECT_EQ(binary.log, "text 7 SYSTEM 'a\\nb' 20 | (1 2) (1 8)\nframe\n");
    EXPECT_EQ(Losses(binary.report), "1 texts of several parts became texts of several lines\n");
}

TEST_F(SxfToSxf, LinesOfATextComeThroughBothForms)
{
    const QByteArray block = I8(14) + QByteArray("a\r\nb\r\nc\r\n\0\x14\0\0\0\0", 15);
    CRecord text;
    text.flags = kText | kDouble;
    text.vertices = 2;
    text.metric = F64s({1, 2, 1, 8}) + block;
    const std::string start = "text 0 SYSTEM 'a\\nb\\nc' 20 color 0 height 1800 font Arial";
    const SConverted binary = Convert(File(text), false);
    EXPECT_EQ(binary.log, start + " | (1 2) (1 8)\nframe\n");
    const SConverted inText = Convert(binary.bytes, true);
    EXPECT_EQ(inText.log,
              "frame\ntext 0 SYSTEM 'a' 20 'b' 20 'c' 20 color 0 height 1800 font Arial"
              " | (1 2) (1 8)\n");
    const SConverted again = Convert(inText.bytes, false);
    EXPECT_EQ(again.bytes, binary.bytes);
    EXPECT_EQ(Losses(again.report), "1 frames around everything are made anew\n");
}

TEST_F(SxfToSxf, TextOfOneVertexGetsALineInTheBinaryForm)
{
    const QByteArray objects =
        ".OBJ 0 TIT\n.ALG CENTER 0\n1\n10 20\n>ab\n.IMG 1\n_TEXT 13\nCOLOR 0\n"
        "HEIGHT 5000\n";
    EXPECT_EQ(Convert(TextMap(objects), false).log,
              "text 0 SYSTEM 'ab' 22 color 0 height 5000 font Arial | (10 14) (10 26)\nframe\n");
}

TEST_F(SxfToSxf, TextAlongACurveBecomesStraightInTheBinaryForm)
{
    const QByteArray objects = ".OBJ 7 TIT\n3\n1 2 5\n1 8 5\n2 9 5\n>a>b\n";
    const SConverted binary = Convert(TextMap(objects), false);
    EXPECT_EQ(binary.log, "text 7 SYSTEM 'ab' 20 | (1 2) (1 8)\nframe\n");
    EXPECT_EQ(Losses(binary.report),
              "1 texts lost their height above zero\n1 texts lost a \">\"\n"
              "1 texts along a curve became straight\n");
    EXPECT_EQ(Convert(TextMap(objects), true).log,
              "frame\ntext 7 SYSTEM 'a>b' 20 | (1 2) (1 8) (2 9)\n");
}

TEST_F(SxfToSxf, LongTextIsCutInTheBinaryForm)
{
    const QByteArray objects = ".OBJ 7 TIT\n2\n1 2\n1 8\n>" + QByteArray(400, 'x') + "\n";
    const SConverted binary = Convert(TextMap(objects), false);
    EXPECT_EQ(binary.log,
              "text 7 SYSTEM '" + std::string(252, 'x') + "' 20 | (1 2) (1 8)\nframe\n");
    EXPECT_EQ(Losses(binary.report), "1 texts were cut to 252 characters\n");
}

TEST_F(SxfToSxf, LinksKeepPointingAtTheirTexts)
{
    CRecord line;
    line.flags = kLine | kDouble | SxfBuilder::kSemantics;
    line.vertices = 2;
    line.metric = F64s({1, 2, 3, 4});
    line.semantics = Semantic(0x8024, 4, 0, I32(4));
    const QByteArray map = File(MixedText().Bytes() + line.Bytes() + MixedText().Bytes(), 3);
    const SConverted result = Convert(map, false);
    EXPECT_NE(result.log.find("32804:4=5"), std::string::npos) << result.log;
    EXPECT_EQ(Losses(result.report), "1 links between objects and texts have other numbers\n");
}

TEST_F(SxfToSxf, WordsOfTheTextFormDoNotEndAnObject)
{
    CRecord text = MixedText();
    text.flags = kText | kDouble | SxfBuilder::kSemantics;
    text.subContours = 0;
    text.metric = F64s({1, 2, 1, 8}) + I8(14) + QByteArray("x.end.objx\0\x14\0\0\0", 15);
    text.semantics = Semantic(9, 126, 5, QByteArray("a.Obj\0", 6));
    const SConverted result = Convert(File(text), true);
    EXPECT_EQ(result.log, "frame\ntext 8 SYSTEM 'x. end. objx' 20 | (1 2) (1 8) ; 9:-1=a. Obj\n");
    EXPECT_EQ(Losses(result.report),
              "1 attributes with line breaks or words of the format, written otherwise\n"
              "1 texts with words of the format, written otherwise\n");
}

} // namespace velorx::test

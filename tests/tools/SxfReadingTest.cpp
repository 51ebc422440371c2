// SPDX-License-Identifier: MIT
// What the tool reads of a map beyond what the library delivers.
#include "tests/support/SxfBuilder.h"
#include "tests/tools/SxfMaps.h"

namespace velorx::test {

namespace {

using namespace SxfBuilder;

using SxfReading = CSxfMaps;

// A text's own drawing: colour 5, no background, no shadow, 2.5 mm, the font "Times".
QByteArray Letters()
{
    return I32(5) + I32(-1) + I32(-1) + I32(2500) + I16(400) + I8(0) + I8(0) + I16(24) + I16(0)
        + QByteArray("\0\0\1\0\0\0\xCC\0", 8);
}

QByteArray Font()
{
    return QByteArray("Times").leftJustified(32, '\0');
}

CRecord Text(const QByteArray& block)
{
    CRecord text;
    text.flags = kText | kDouble;
    text.code = 92172000;
    text.vertices = 2;
    text.metric = F64s({1, 2, 1, 8}) + block;
    return text;
}

// "Ab" and its alignment.
QByteArray TextBlock(int align)
{
    return I8(6) + QByteArray("Ab\0", 3) + I8(align) + QByteArray(3, '\0');
}

constexpr char kTextStart[] = ".SXF 4.0\nP000 N-37\nP001 Map\nP207 2000\n.DAT ";

} // namespace

// ---- Binary maps -------------------------------------------------------------------------------

TEST_F(SxfReading, GivesATextItsCodeAndItsAlignment)
{
    EXPECT_EQ(Read(File(Text(TextBlock(31)))), "text 92172000 SYSTEM 'Ab' 31 | (1 2) (1 8)\n");
}

TEST_F(SxfReading, AlignsATextAtItsStartWhereTheMapTellsNothing)
{
    EXPECT_EQ(Read(File(Text(TextBlock(0)))), "text 92172000 SYSTEM 'Ab' 20 | (1 2) (1 8)\n");
    EXPECT_EQ(Read(File(Text(I8(2) + QByteArray("Ab\0", 3)))),
              "text 92172000 SYSTEM 'Ab' 20 | (1 2) (1 8)\n");
}

TEST_F(SxfReading, GivesATextTheDrawingOfTheFile)
{
    CRecord text = Text(TextBlock(22));
    text.flags |= kDrawing;
    text.code = 0;
    text.metric += SxfBuilder::Drawing(0x98, Letters() + Font());
    EXPECT_EQ(Read(File(text)),
              "text 0 SYSTEM 'Ab' 22 color 5 height 2500 font Times | (1 2) (1 8)\n");
    text.metric = F64s({1, 2, 1, 8}) + TextBlock(22) + SxfBuilder::Drawing(0x8E, Letters());
    EXPECT_EQ(Read(File(text)),
              "text 0 SYSTEM 'Ab' 22 color 5 height 2500 font Arial | (1 2) (1 8)\n");
}

TEST_F(SxfReading, TellsThePartsOfAMixedTextWithTheirContours)
{
    CRecord text = Text(TextBlock(25));
    text.flags = kMixed | kDouble;
    text.subContours = 1;
    text.metric += I16(0) + I16(2) + F64s({3, 2, 3, 8}) + I8(6) + QByteArray("c>d\0\x1C\0\0", 7);
    EXPECT_EQ(Read(File(text)),
              "text 92172000 SYSTEM 'Ab' 25 'c>d' 28 | (1 2) (1 8) | (3 2) (3 8)\n");
}

TEST_F(SxfReading, TellsTheLinesOfATextByLineFeeds)
{
    const QByteArray block = I8(10) + QByteArray("a\r\nb\r\n\0\x14\0\0\0", 11);
    EXPECT_EQ(Read(File(Text(block))), "text 92172000 SYSTEM 'a\\nb' 20 | (1 2) (1 8)\n");
}

TEST_F(SxfReading, GivesAPointTheMarkOfTheFile)
{
    CRecord point;
    point.flags = kPoint | kDouble | kDrawing;
    point.vertices = 1;
    point.metric = F64s({1, 2})
        + SxfBuilder::Drawing(0x8F,
                              I32(152) + I32(1) + I32(4000) + I32(0) + I32(0) + I32(255)
                                  + QByteArray(128, '\x0F'));
    EXPECT_EQ(Read(File(point)),
              "point 0 SYSTEM color 255 size 4000 bits 0f0f0f0f0f0f0f0f | (1 2)\n");
}

TEST_F(SxfReading, GivesAThinLineItsThickness)
{
    CRecord line;
    line.flags = kLine | kInt16 | kDrawing | k3D;
    line.vertices = 2;
    line.subContours = 1;
    line.metric = I16(1) + I16(2) + I16(3) + I16(4) + I16(5) + I16(6) + I16(0) + I16(1) + I16(7)
        + I16(8) + I16(9) + SxfBuilder::Drawing(0x80, I32(9) + I32(250));
    EXPECT_EQ(Read(File(line)),
              "line 0 SYSTEM color 9 thickness 250 | (1 2 3) (4 5 6) | (7 8 9)\n");
}

TEST_F(SxfReading, KeepsInStepWithTheLibraryOverAllElementTypes)
{
    CRecord wide;
    wide.flags = kLine | kInt32 | k3D | kDrawing;
    wide.vertices = 1;
    wide.metric =
        I32(1) + I32(2) + I16(3) + SxfBuilder::Drawing(0x81, I32(1) + I32(70) + I32(0) + I32(0));
    CRecord real;
    real.flags = kLine | kFloat | k3D | kDrawing;
    real.vertices = 1;
    real.metric = F32(1) + F32(2) + F32(3) + SxfBuilder::Drawing(0x80, I32(1) + I32(80));
    EXPECT_EQ(Read(File(wide.Bytes() + real.Bytes() + Text(TextBlock(21)).Bytes(), 3)),
              "line 0 SYSTEM color 1 thickness 70 | (1 2 3)\n"
              "line 0 SYSTEM color 1 thickness 80 | (1 2 3)\n"
              "text 92172000 SYSTEM 'Ab' 21 | (1 2) (1 8)\n");
}

TEST_F(SxfReading, TakesTheLayerFromItsAttributeWithoutZeros)
{
    CRecord line;
    line.flags = kLine | kDouble | SxfBuilder::kSemantics;
    line.vertices = 2;
    line.metric = F64s({1, 2, 3, 4});
    line.semantics =
        Semantic(0x802A, 126, 4, QByteArray("\xCB\xE5\xF1\0\0", 5)) + Semantic(4, 2, 0, I16(120));
    EXPECT_EQ(Read(File(line)), "line 0 Лес | (1 2) (3 4) ; 32810:126=Лес ; 4:2=120\n");
}

TEST_F(SxfReading, PutsCoordinatesOfASheetOnTheGround)
{
    CRecord line;
    line.flags = kLine | kInt16;
    line.vertices = 2;
    line.metric = I16(10) + I16(20) + I16(30) + I16(40);
    QByteArray map = File(line);
    Put(map, 96, I32(7));
    Put(map, 104, F64s({5000, 7000}));
    MendChecksum(map);
    EXPECT_EQ(Read(map), "line 0 SYSTEM | (10 20) (30 40)\n") << "no grid, nothing to go by";
    Put(map, 316, I32(10) + I32(20));
    MendChecksum(map);
    EXPECT_EQ(Read(map), "line 0 SYSTEM | (5000 7000) (5020 7020)\n");
    Put(map, 96, I32(0x1F));
    MendChecksum(map);
    EXPECT_EQ(Read(map), "line 0 SYSTEM | (10 20) (30 40)\n") << "real ones stand as they are";
}

TEST_F(SxfReading, KnowsTheFrameOfTheWritersBehindAllObjects)
{
    CRecord frame;
    frame.code = 91000000;
    frame.vertices = 5;
    frame.metric = F64s({0, 0, 9, 0, 9, 5, 0, 5, 0, 0});
    CRecord sheet = frame;
    sheet.metric = F64s({0, 0, 9, 1, 9, 5, 0, 5, 0, 0});
    EXPECT_EQ(Read(File(frame.Bytes() + frame.Bytes(), 2)),
              "line 91000000 SYSTEM | (0 0) (9 0) (9 5) (0 5) (0 0)\nframe\n");
    EXPECT_EQ(Read(File(sheet)), "line 91000000 SYSTEM | (0 0) (9 1) (9 5) (0 5) (0 0)\n");
}

TEST_F(SxfReading, TellsWhatTheReaderSaysOfAFault)
{
    EXPECT_EQ(Read(File(Text(TextBlock(31)).Bytes(), 2)),
              "text 92172000 SYSTEM 'Ab' 31 | (1 2) (1 8)\nНекорректный формат файла");
    EXPECT_EQ(Read(File(I32(0x7FFF7FFF) + I32(40), 1)), "the map ends inside a record");
}

// ---- Maps in text form ---------------------------------------------------------------------------

TEST_F(SxfReading, GivesATextOfTheTextFormItsAlignmentAndParts)
{
    EXPECT_EQ(
        Read(QByteArray(kTextStart)
             + "2\n.OBJ 7 MIX\n.ALG LEFT TOP 0\n.ALG CENTER BOTTOM 1\n.MET 1\n2\n1 2\n1 8\n>a>b\n"
               "2\n1 2\n1 8\n>c\n.OBJ 8 TIT\n1\n1 2\n>d\n.END\n"),
        "text 7 SYSTEM 'a>b' 29 'c' 28 | (1 2) (1 8)\ntext 8 SYSTEM 'd' 20 | (1 2)\n");
}

TEST_F(SxfReading, GivesAPointOfTheTextFormItsMark)
{
    QByteArray rows;
    for (int row = 0; row < 32; ++row) {
        for (int bit = 0; bit < 32; ++bit) {
            rows += bit == row ? " 1" : " 0";
        }
        rows += '\n';
    }
    const QByteArray mark =
        ".IMG 1\n_MARK 5\nSIZE 3000\nPOSV 1\nPOSH 2\nCOLOR 77\nBITS 32\n" + rows;
    EXPECT_EQ(Read(kTextStart + QByteArray("2\n.OBJ 0 DOT\n1\n1 2\n") + mark
                   + ".OBJ 0 DOT\n1\n3 4\n.END\n"),
              "point 0 SYSTEM color 77 size 3000 bits 8000000040000000 | (1 2)\n"
              "point 0 SYSTEM color 0 size 8000 bits 6000000090000000 | (3 4)\n");
}

TEST_F(SxfReading, KnowsTheFrameOfTheTextFormAheadOfAllObjects)
{
    const QByteArray frame = ".OBJ 91000000 LIN\n.KEY 2\n5\n0 0\n9 0\n9 5\n0 5\n0 0\n";
    EXPECT_EQ(Read(kTextStart + QByteArray("2\n") + frame + frame + ".END\n"),
              "frame\nline 91000000 SYSTEM | (0 0) (9 0) (9 5) (0 5) (0 0)\n");
}

TEST_F(SxfReading, TakesTheLayerOfTheTextFormFromItsAttribute)
{
    EXPECT_EQ(
        Read(kTextStart + QByteArray("1\n.OBJ 7 DOT\n.SEG a_b\n1\n1 2\n.SEM 1\n32810 a b\n.END\n")),
        "point 7 a b | (1 2) ; 32810:-1=a b\n");
}

TEST_F(SxfReading, ReadsATextWithAByteOrderMarkByWhatTheLibraryDelivers)
{
    EXPECT_EQ(Read("\xEF\xBB\xBF" + QByteArray(kTextStart)
                   + "1\n.OBJ 7 TIT\n.ALG RIGHT 0\n1\n1 2\n>\xD0\x96\n>b\n.END\n"),
              "text 7 SYSTEM 'Ж' 20 'b' 20 | (1 2)\n");
}

// ---- Headers -----------------------------------------------------------------------------------

TEST_F(SxfReading, TellsNameAndSheetOfABinaryMap)
{
    QByteArray map = File(Text(TextBlock(31)));
    Put(map, 28, "N-37-1");
    Put(map, 64, "\xCB\xE5\xF1");
    const SSxfHeader header = ReadSxfHeader(Write(map));
    EXPECT_EQ(header.name.toStdString(), "Лес");
    EXPECT_EQ(header.sheet.toStdString(), "N-37-1");
    EXPECT_FALSE(header.isUserMap);
    Put(map, 64, QByteArray(3, '\0'));
    EXPECT_EQ(ReadSxfHeader(Write(map)).name.toStdString(), "N-37-1");
    EXPECT_EQ(ReadSxfHeader(Write(map)).sheet.toStdString(), "");
}

TEST_F(SxfReading, TellsNameScaleAndKindOfATextMap)
{
    const SSxfHeader header = ReadSxfHeader(Write(QByteArray(kTextStart) + "0\n"));
    EXPECT_EQ(header.name.toStdString(), "Map");
    EXPECT_EQ(header.sheet.toStdString(), "N-37");
    EXPECT_EQ(header.scale, 2000);
    EXPECT_FALSE(header.isUserMap);
    EXPECT_TRUE(ReadSxfHeader(Write(".SIT 4.0\nP000 a b\nP001 a b\n.DAT 0\n")).isUserMap);
    EXPECT_EQ(ReadSxfHeader(Write(".SIT 4.0\nP000 a b\nP001 a b\n.DAT 0\n")).name.toStdString(),
              "a b");
}

} // namespace velorx::test

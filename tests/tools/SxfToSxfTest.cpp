// SPDX-License-Identifier: MIT
// Maps written again in the other form or the same.
#include "tests/tools/SxfToSxf.h"
#include "tests/support/SxfBuilder.h"

namespace velorx::test {

namespace {

using namespace SxfBuilder;

// Objects of each kind as the text form has them, with codes and with drawings of their own.
constexpr char kObjects[] =
    ".OBJ 0 LIN\n.SEG a\n.MET 1\n2\n1 2\n3 4\n2\n5 6\n7 8\n.SEM 1\n9 x y\n"
    ".IMG 1\n_LINE 2\nCOLOR 5\nTHICK 250\n"
    ".OBJ 7 LIN\n2\n1 2 9\n3 4 8\n"
    ".OBJ 0 SQR\n.SEG b\n.MET 1\n4\n0 0\n0 9\n9 9\n0 0\n4\n1 1\n1 2\n2 2\n1 1\n"
    ".IMG 1\n_SQUARE 1\nCOLOR 6\n"
    ".OBJ 7 SQR\n3\n0 0\n0 9\n9 9\n"
    ".OBJ 7 DOT\n1\n1 2\n"
    ".OBJ 7 VEC\n2\n1 2\n1 3\n"
    ".OBJ 0 TIT\n.SEG c\n.ALG RIGHT TOP 0\n2\n1 2\n1 8\n>t\n.IMG 1\n_TEXT 13\n"
    "COLOR 3\nHEIGHT 2500\nNAME Times New\n"
    ".OBJ 7 TIT\n.ALG CENTER 0\n2\n1 2\n1 8\n>t\n";

constexpr char kLogInText[] =
    "line 0 a color 5 thickness 250 | (1 2) (3 4) | (5 6) (7 8) ; 9:-1=x y\n"
    "line 7 SYSTEM | (1 2 9) (3 4 8)\n"
    "area 0 b color 6 | (0 0) (0 9) (9 9) (0 0) | (1 1) (1 2) (2 2) (1 1)\n"
    "area 7 SYSTEM | (0 0) (0 9) (9 9)\n"
    "point 7 SYSTEM | (1 2)\n"
    "point 7 SYSTEM | (1 2) (1 3)\n"
    "text 0 c 't' 30 color 3 height 2500 font Times New | (1 2) (1 8)\n"
    "text 7 SYSTEM 't' 22 | (1 2) (1 8)\n";

constexpr char kLogInBinary[] =
    "line 0 a color 5 thickness 250 | (1 2) (3 4) | (5 6) (7 8) ; 32810:126=a ; 9:126=x y\n"
    "line 7 SYSTEM | (1 2 9) (3 4 8)\n"
    "area 0 b color 6 | (0 0) (0 9) (9 9) (0 0) | (1 1) (1 2) (2 2) (1 1) ; 32810:126=b\n"
    "area 7 SYSTEM | (0 0) (0 9) (9 9)\n"
    "point 7 SYSTEM | (1 2)\n"
    "point 7 SYSTEM | (1 2) (1 3)\n"
    "text 0 c 't' 30 color 3 height 2500 font Times New | (1 2) (1 8) ; 32810:126=c\n"
    "text 7 SYSTEM 't' 22 | (1 2) (1 8)\n";

CRecord Line(const QByteArray& semantics)
{
    CRecord line;
    line.flags = kLine | kDouble | SxfBuilder::kSemantics;
    line.vertices = 2;
    line.metric = F64s({1, 2, 3, 4});
    line.semantics = semantics;
    return line;
}

} // namespace

TEST_F(SxfToSxf, TextFormBecomesTheBinaryOneAndComesBack)
{
    const SConverted binary = Convert(TextMap(kObjects), false);
    EXPECT_EQ(binary.log, std::string(kLogInBinary) + "frame\n");
    EXPECT_EQ(Losses(binary.report), "");
    const SConverted text = Convert(binary.bytes, true);
    EXPECT_EQ(Losses(text.report), "1 frames around everything are made anew\n");
    EXPECT_EQ(Convert(text.bytes, false).bytes, binary.bytes);
}

TEST_F(SxfToSxf, TextFormStaysWhatItIs)
{
    const SConverted once = Convert(TextMap(kObjects), true);
    EXPECT_EQ(once.log, std::string("frame\n") + kLogInText);
    EXPECT_EQ(Convert(once.bytes, true).bytes, once.bytes);
}

TEST_F(SxfToSxf, KeepsNameScaleAndKindOfTheMap)
{
    const SConverted text = Convert(TextMap(kObjects), true);
    EXPECT_TRUE(text.bytes.startsWith(".SIT 4.0\n\nP000 Map\n\nP001 Map\n")) << text.bytes.data();
    EXPECT_TRUE(text.bytes.contains("P207 2000\n"));
    const SConverted binary = Convert(TextMap(kObjects), false);
    EXPECT_EQ(binary.bytes.mid(28, 4), QByteArray("Map\0", 4));
    EXPECT_EQ(binary.bytes.mid(60, 4), I32(2000));
    EXPECT_TRUE(Convert(binary.bytes, true).bytes.startsWith(".SXF 4.0\n\nP000 Map\n"));
}

TEST_F(SxfToSxf, TellsWhatWasReadAndWritten)
{
    const CConversionReport report = Convert(TextMap(kObjects), false).report;
    ASSERT_EQ(report.kinds.size(), 4U);
    EXPECT_EQ(report.kinds[0].name, "Line");
    EXPECT_EQ(report.kinds[0].writtenAs, "Line");
    for (const SConvertedKind& kind : report.kinds) {
        EXPECT_EQ(kind.inDrawing, 2);
        EXPECT_EQ(kind.written, 2);
    }
    EXPECT_TRUE(report.log.contains(QStringLiteral("  map.out\n"))) << report.log.toStdString();
}

// ---- Attributes ----------------------------------------------------------------------------------

TEST_F(SxfToSxf, NumbersKeepTheirTypesInTheBinaryForm)
{
    const QByteArray numbers = Semantic(1, 1, 0, I8(-5)) + Semantic(2, 2, 0, I16(300))
        + Semantic(3, 4, 0, I32(70000)) + Semantic(4, 8, 0, F64(0.5));
    const SConverted result = Convert(File(Line(numbers)), false);
    EXPECT_EQ(result.log,
              "line 0 SYSTEM | (1 2) (3 4) ; 1:1=-5 ; 2:2=300 ; 3:4=70000 ; 4:8=0.5\nframe\n");
    EXPECT_EQ(Losses(result.report), "");
}

TEST_F(SxfToSxf, ScaledNumbersBecomeRealOnes)
{
    const SConverted result =
        Convert(File(Line(Semantic(2, 2, -2, I16(125)) + Semantic(4, 8, 1, F64(0.5)))), false);
    EXPECT_EQ(result.log, "line 0 SYSTEM | (1 2) (3 4) ; 2:8=1.25 ; 4:8=5\nframe\n");
}

TEST_F(SxfToSxf, TextsOfEveryTypeBecomeLocalText)
{
    const QByteArray texts = Semantic(1, 0, 2, QByteArray("ab\0", 3))
        + Semantic(2, 127, 4, I16(0x416) + I16(0x417) + I16(0))
        + Semantic(3, 126, 1, QByteArray("\xC6\0", 2));
    EXPECT_EQ(Convert(File(Line(texts)), false).log,
              "line 0 SYSTEM | (1 2) (3 4) ; 1:126=ab ; 2:126=ЖЗ ; 3:126=Ж\nframe\n");
}

TEST_F(SxfToSxf, ListsNumbersThatBecomeText)
{
    const SConverted result =
        Convert(File(Line(Semantic(1, 1, 0, I8(-5)) + Semantic(4, 8, 0, F64(0.5)))), true);
    EXPECT_EQ(result.log, "frame\nline 0 SYSTEM | (1 2) (3 4) ; 1:-1=-5 ; 4:-1=0.5\n");
    EXPECT_EQ(Losses(result.report), "2 attributes that are numbers became text\n");
}

TEST_F(SxfToSxf, ListsWhatNoFormHolds)
{
    const QByteArray semantics = Semantic(1, 127, 2, I16(0x65E5) + I16(0))
        + Semantic(2, 8, 0, F64(qQNaN())) + Semantic(3, 126, 3, QByteArray("a\nb\0", 4));
    const SConverted result = Convert(File(Line(semantics)), false);
    EXPECT_EQ(result.log, "line 0 SYSTEM | (1 2) (3 4) ; 1:126=? ; 3:126=a b\nframe\n");
    EXPECT_EQ(Losses(result.report),
              "1 attributes that are not finite numbers\n"
              "1 texts and attributes with letters that the code page lacks, \"?\" in the result\n"
              "1 attributes with line breaks or words of the format, written otherwise\n");
}

TEST_F(SxfToSxf, LongTextsOfAttributesAreCutWhereTheirLengthHasNoPlace)
{
    const QByteArray objects = ".OBJ 7 DOT\n1\n1 2\n.SEM 1\n9 " + QByteArray(300, 'x') + "\n";
    const SConverted result = Convert(TextMap(objects), false);
    EXPECT_EQ(result.log, "point 7 SYSTEM | (1 2) ; 9:126=" + std::string(254, 'x') + "\nframe\n");
    EXPECT_EQ(Losses(result.report), "1 attributes were cut to 254 characters\n");
}

// ---- Layers --------------------------------------------------------------------------------------

TEST_F(SxfToSxf, LayerOfAnObjectWithACodeGoesIntoAnAttributeOfTheTextForm)
{
    const SConverted result =
        Convert(TextMap(".OBJ 7 DOT\n.SEG a\n1\n1 2\n.OBJ 0 DOT\n.SEG a\n1\n1 2\n"), true);
    EXPECT_EQ(result.log,
              "frame\npoint 7 a | (1 2) ; 32810:-1=a\n"
              "point 0 a color 0 size 8000 bits 6000000090000000 | (1 2)\n");
}

TEST_F(SxfToSxf, LayerWithBlanksComesWholeThroughTheTextForm)
{
    CRecord line = Line(Semantic(0x802A, 126, 3, QByteArray("a b\0", 4)));
    line.flags |= kDrawing;
    line.metric += SxfBuilder::Drawing(0x80, I32(1) + I32(0));
    const SConverted result = Convert(File(line), true);
    EXPECT_EQ(result.log, "frame\nline 0 a b color 1 thickness 0 | (1 2) (3 4) ; 32810:-1=a b\n");
    EXPECT_TRUE(result.bytes.contains(".SEG a_b\n"));
}

// ---- Shapes --------------------------------------------------------------------------------------

TEST_F(SxfToSxf, ObjectsWithoutAVertexAreListed)
{
    CRecord empty;
    empty.vertices = 0;
    CRecord half = Line(QByteArray());
    half.subContours = 1;
    half.metric += I16(0) + I16(0);
    const SConverted result = Convert(File(empty.Bytes() + half.Bytes(), 2), true);
    EXPECT_EQ(result.log, "frame\nline 0 SYSTEM | (1 2) (3 4)\n");
    EXPECT_EQ(Losses(result.report), "1 objects without a vertex\n");
}

TEST_F(SxfToSxf, ObjectsThatAreNotFiniteAreListed)
{
    CRecord odd = Line(QByteArray());
    odd.metric = F64s({1, 2, qInf(), 4});
    const SConverted result = Convert(File(odd.Bytes() + Line(QByteArray()).Bytes(), 2), false);
    EXPECT_EQ(result.log, "line 0 SYSTEM | (1 2) (3 4)\nframe\n");
    EXPECT_EQ(Losses(result.report), "1 objects with coordinates that are not finite\n");
}

TEST_F(SxfToSxf, LongLinesAreDividedInTheBinaryForm)
{
    QByteArray vertices;
    for (int i = 0; i < 40000; ++i) {
        vertices += QByteArray::number(i) + " 0\n";
    }
    const QByteArray map =
        TextMap(".OBJ 7 LIN\n40000\n" + vertices + ".OBJ 7 SQR\n40000\n" + vertices);
    const SConverted result = Convert(map, false);
    EXPECT_EQ(Losses(result.report),
              "1 lines of more than 32767 vertices were divided\n"
              "1 areas with more than 32767 vertices in a contour\n");
    EXPECT_NE(result.log.find("(32766 0)\nline 7 SYSTEM | (32766 0) (32767 0)"), std::string::npos);
    EXPECT_EQ(Losses(Convert(map, true).report), "");
}

// ---- Whole maps ----------------------------------------------------------------------------------

TEST_F(SxfToSxf, TellsThatCoordinatesMovedAndTheSheetHasNoPlace)
{
    QByteArray map = File(Line(QByteArray()));
    Put(map, 28, "N-37-1");
    Put(map, 64, "Map");
    Put(map, 96, I32(7));
    Put(map, 104, F64s({5000, 7000}));
    Put(map, 316, I32(10) + I32(20));
    MendChecksum(map);
    const SConverted result = Convert(map, true);
    ASSERT_EQ(result.report.remarks.size(), 2U);
    EXPECT_EQ(result.report.remarks[0].toStdString(),
              "The number of the sheet, N-37-1, has no place beside the name of the map.");
    EXPECT_EQ(result.report.remarks[1].toStdString(),
              "Coordinates no longer count from the corner of the sheet.");
    EXPECT_EQ(result.log, "frame\nline 0 SYSTEM | (4991 6982) (4993 6984)\n");
}

TEST_F(SxfToSxf, MapWithoutAnObjectIsAProblem)
{
    EXPECT_EQ(Convert(TextMap(""), false).problem.toStdString(),
              "there is nothing in it that a map could hold");
    EXPECT_EQ(Convert(TextMap(""), true).problem.toStdString(),
              "there is nothing in it that a map could hold");
}

TEST_F(SxfToSxf, FaultOfTheSourceIsAProblem)
{
    EXPECT_EQ(Convert(TextMap(".OBJ 7 ODD\n1\n1 2\n"), false).problem.toStdString(),
              "Некорректный формат файла");
}

} // namespace velorx::test

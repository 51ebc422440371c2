// SPDX-License-Identifier: MIT
// What a conversion carries over of texts, inserts and attributes.
#include "tests/tools/convert/DxfConversion.h"

#include <gtest/gtest.h>

#include <array>

namespace velorx::test {

namespace {

std::string Entity(const std::string& groups, const char* operation)
{
    return ResultOf(WithEntities(groups), operation);
}

bool Has(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

} // namespace

TEST(DxfReplayTexts, TextKeepsPlaceHeightAndAngle)
{
    EXPECT_EQ(Entity("0 TEXT\n8 A\n62 1\n10 5\n20 6\n40 2.5\n50 90\n1 words\n", "Text "),
              "Text text=\"words\" layer=\"A\" at=(5 6) height=2.5 rotation=1.5707963267948966 "
              "color=#0000FF style.height=1\n");
}

TEST(DxfReplayTexts, TextKeepsWidthAndSlant)
{
    const auto record =
        RecordsOf(WithEntities("0 TEXT\n8 A\n40 2\n41 0.8\n51 15\n1 words\n"), "TEXT");
    EXPECT_TRUE(Has(record, "41 0.800000\n51 15.000000\n")) << record;
}

TEST(DxfReplayTexts, TextWhosePositionIsItsAnchorKeepsItsAlignment)
{
    const std::string place = "10 5\n20 6\n11 5\n21 6\n40 2\n1 words\n";
    const auto records =
        RecordsOf(WithEntities("0 TEXT\n8 A\n72 1\n" + place + "0 TEXT\n8 A\n72 2\n" + place
                               + "0 TEXT\n8 A\n72 4\n" + place),
                  "TEXT");
    EXPECT_TRUE(Has(records, "72 1\n11 5.000000\n")) << records;
    EXPECT_TRUE(Has(records, "72 2\n11 5.000000\n")) << records;
    EXPECT_TRUE(Has(records, "73 2\n")) << records; // the middle of the letters
}

TEST(DxfReplayTexts, LettersThatTheCodePageLacksAreWrittenByNumber)
{
    const QByteArray drawing =
        Drawing(Section("HEADER", "9 $ACADVER\n1 AC1021\n")
                + Section("ENTITIES", "0 TEXT\n8 A\n40 1\n1 \xE2\x8C\x80 5\n"));
    EXPECT_TRUE(Has(RecordsOf(drawing, "TEXT"), "1 \\U+2300 5\n"));
}

TEST(DxfReplayTexts, CyrillicStaysCyrillic)
{
    EXPECT_TRUE(
        Has(Entity("0 TEXT\n8 \xC4\xEE\xF0\xEE\xE3\xE8\n40 1\n1 \xD3\xEB\xE8\xF6\xE0\n", "Text "),
            "text=\"Улица\" layer=\"Дороги\""));
}

TEST(DxfReplayTexts, MTextKeepsWidthAndDirection)
{
    EXPECT_EQ(
        Entity("0 MTEXT\n8 A\n10 5\n20 6\n40 2.5\n41 100\n71 1\n11 0\n21 1\n1 \\fArial;words\n",
               "MText "),
        "MText text=\"\\fArial;words\" layer=\"A\" at=(5 6) height=2.5 "
        "rotation=1.5707963267948966 align=1 rectWidth=100\n");
}

TEST(DxfReplayTexts, EveryAttachmentOfAnMTextComesOutAsItself)
{
    for (int attachment = 1; attachment <= 9; ++attachment) {
        const auto text = RecordsOf(
            WithEntities("0 MTEXT\n8 A\n40 1\n1 x\n71 " + std::to_string(attachment) + '\n'),
            "MTEXT");
        EXPECT_TRUE(Has(text, "71 " + std::to_string(attachment) + '\n')) << text;
    }
}

TEST(DxfReplayTexts, LongMTextInUsualPiecesLosesItsSeams)
{
    const std::string first(250, 'a');
    const std::string second(250, 'b');
    const auto record = RecordsOf(
        WithEntities("0 MTEXT\n8 A\n40 1\n3 " + first + "\n3 " + second + "\n1 end;\n"), "MTEXT");
    EXPECT_TRUE(Has(record, "3 " + first + "\n3 " + second + "\n1 end;\n")) << record;
}

TEST(DxfReplayTexts, TextStyleKeepsAllItsFields)
{
    const auto styles = RecordsOf(
        WithTables(
            "0 STYLE\n2 Plan\n3 arial.ttf\n70 0\n40 2.5\n41 0.9\n50 15\n1001 ACAD\n1000 Arial\n"
            "1071 50331682\n"),
        "STYLE");
    EXPECT_TRUE(Has(styles,
                    "2 Plan\n70 0\n40 2.500000\n41 0.900000\n50 15.000000\n71 0\n42 2.500000\n"
                    "3 arial.ttf\n4 \n1001 ACAD\n1000 Arial\n1071 50331648\n"))
        << styles;
}

TEST(DxfReplayTexts, StandardStyleKeepsItsFontUnderAnotherName)
{
    const QByteArray drawing =
        WithTables("0 STYLE\n2 Standard\n3 isocpeur.ttf\n", "0 TEXT\n8 A\n40 1\n1 x\n");
    EXPECT_TRUE(Has(RecordsOf(drawing, "STYLE"), "2 Standard_1\n"));
    EXPECT_TRUE(Has(RecordsOf(drawing, "TEXT"), "7 Standard_1\n"));
}

TEST(DxfReplayTexts, StyleThatTheTableLacksIsMadeUpFor)
{
    const QByteArray drawing = WithEntities("0 TEXT\n8 A\n40 1\n1 x\n7 Nowhere\n");
    EXPECT_TRUE(Has(RecordsOf(drawing, "STYLE"), "2 Nowhere\n"));
    EXPECT_TRUE(Has(RecordsOf(drawing, "TEXT"), "7 Nowhere\n"));
}

// ---- Inserts -----------------------------------------------------------------------------------

TEST(DxfReplayTexts, InsertKeepsPlaceScaleAndAngle)
{
    EXPECT_EQ(
        ResultOf(WithBlock("", "0 INSERT\n8 A\n62 1\n2 B\n10 5\n20 6\n30 7\n41 2\n42 -3\n50 30\n"),
                 "Insert "),
        "Insert name=\"B\" layer=\"A\" point=(5 6 7) rotation=30 scaleX=2 scaleY=-3 "
        "color=#0000FF\n");
}

TEST(DxfReplayTexts, InsertIsMovedByTheBasePointOfItsBlock)
{
    EXPECT_EQ(ResultOf(WithBlock("10 1\n20 0\n30 2\n",
                                 "0 INSERT\n8 A\n62 1\n2 b\n10 5\n20 6\n41 2\n42 2\n50 90\n"),
                       "Insert "),
              "Insert name=\"B\" layer=\"A\" point=(5 4 -2) rotation=90 scaleX=2 scaleY=2 "
              "color=#0000FF\n");
}

TEST(DxfReplayTexts, InsertKeepsItsAttributes)
{
    EXPECT_EQ(
        ResultOf(
            WithBlock("",
                      "0 INSERT\n8 A\n62 1\n2 B\n66 1\n0 ATTRIB\n8 C\n62 3\n10 1\n20 2\n40 2.5\n"
                      "1 12.5\n2 HEIGHT\n0 ATTRIB\n8 C\n40 1\n1\n2 EMPTY\n0 SEQEND\n"),
            "Insert "),
        "Insert name=\"B\" layer=\"A\" color=#0000FF attributes=[{Attrib text=\"12.5\" layer=\"C\" "
        "at=(1 2) height=2.5 color=#00FF00 style.height=2.5 tag=\"HEIGHT\"} {Attrib layer=\"C\" "
        "height=1 style.height=1 tag=\"EMPTY\"}]\n");
}

TEST(DxfReplayTexts, HiddenAttributeStaysHidden)
{
    const auto record = RecordsOf(
        WithBlock("", "0 INSERT\n8 A\n2 B\n66 1\n0 ATTRIB\n8 A\n1 x\n2 T\n40 1\n70 1\n0 SEQEND\n"),
        "ATTRIB");
    EXPECT_TRUE(Has(record, "2 T\n70 1\n")) << record;
}

TEST(DxfReplayTexts, AttributeDefinitionKeepsAllThatTheWriterKnows)
{
    const auto record = RecordsOf(
        WithBlock(
            "0 ATTDEF\n8 0\n62 1\n10 1\n20 2\n40 2.5\n1 0.00\n2 HEIGHT\n3 HEIGHT\n50 90\n51 10\n"
            "41 0.8\n7 Plan\n72 2\n11 5\n21 6\n70 1\n"),
        "ATTDEF");
    EXPECT_TRUE(
        Has(record,
            "10 5.000000\n20 6.000000\n30 0.000000\n40 2.500000\n1 0.00\n50 90.000000\n72 2\n"
            "11 5.000000\n21 6.000000\n31 0.000000\n41 0.800000\n51 10.000000\n7 Plan\n"
            "100 AcDbAttributeDefinition\n2 HEIGHT\n3 HEIGHT\n70 1\n"))
        << record;
}

TEST(DxfReplayTexts, AttributeDefinitionsOfTwoBlocksStayApart)
{
    const std::string blocks = "0 BLOCK\n2 B\n0 ATTDEF\n8 0\n40 1\n1 x\n2 T\n0 ENDBLK\n"
                               "0 BLOCK\n2 C\n0 ATTDEF\n8 0\n40 2\n1 y\n2 T\n0 ENDBLK\n";
    const auto records = RecordsOf(Drawing(Section("BLOCKS", blocks)), "ATTDEF");
    EXPECT_TRUE(Has(records, "40 1.000000\n1 x\n")) << records;
    EXPECT_TRUE(Has(records, "40 2.000000\n1 y\n")) << records;
}

// ---- Blocks, layers and line types -------------------------------------------------------------

TEST(DxfReplayTexts, BlockStaysABlock)
{
    const auto drawing =
        Converted(WithBlock("0 LINE\n8 0\n62 1\n10 1\n20 2\n11 3\n21 4\n")).drawing;
    const int block = drawing.indexOf("AcDbBlockBegin\r\n2\r\nB\r\n");
    const int line = drawing.indexOf("\r\nLINE\r\n");
    EXPECT_GT(block, 0);
    EXPECT_GT(line, block);
    EXPECT_GT(drawing.indexOf("\r\nENDBLK\r\n", line), line);
}

TEST(DxfReplayTexts, BlockOfAFileKeepsItsReference)
{
    const auto records = RecordsOf(WithBlock("70 4\n1 maps/base.dwg\n"), "BLOCK");
    EXPECT_TRUE(
        Has(records, "2 B\n70 38\n10 0.000000\n20 0.000000\n30 0.000000\n3 B\n1 maps/base.dwg\n"))
        << records;
}

TEST(DxfReplayTexts, UndefinedBlocksComeInOrderOfTheirNames)
{
    const QByteArray drawing = WithEntities("0 INSERT\n8 A\n2 Zoo\n0 INSERT\n8 A\n2 Ape\n"
                                            "0 INSERT\n8 A\n2 Fox\n");
    const auto records = RecordsOf(drawing, "BLOCK");
    EXPECT_LT(records.find("2 Ape\n"), records.find("2 Fox\n"));
    EXPECT_LT(records.find("2 Fox\n"), records.find("2 Zoo\n"));
}

TEST(DxfReplayTexts, InsertOfABlockWithAForbiddenNameFindsIt)
{
    const QByteArray drawing = Drawing(Section("BLOCKS", "0 BLOCK\n2 *U1\n0 ENDBLK\n")
                                       + Section("ENTITIES", "0 INSERT\n8 A\n2 *u1\n"));
    EXPECT_TRUE(Has(RecordsOf(drawing, "BLOCK"), "2 _U1\n"));
    EXPECT_TRUE(Has(RecordsOf(drawing, "INSERT"), "2 _U1\n"));
}

TEST(DxfReplayTexts, Layer0KeepsItsName)
{
    EXPECT_EQ(ResultOf(WithTables("0 LAYER\n2 0\n62 7\n", "0 POINT\n8 0\n0 POINT\n"), "Layer "),
              "Layer name=\"0\"\n");
}

TEST(DxfReplayTexts, LayersKeepTheirState)
{
    EXPECT_EQ(
        ResultOf(
            WithTables("0 LAYER\n2 Hidden\n70 1\n0 LAYER\n2 Locked\n70 4\n0 LAYER\n2 Off\n62 -7\n"),
            "Layer "),
        "Layer name=\"0\"\nLayer name=\"Hidden\" visible=false\nLayer name=\"Locked\" "
        "unlocked=false\nLayer name=\"Off\" visible=false\n");
}

TEST(DxfReplayTexts, LayerThatIsNotPlottedGetsTheWritersName)
{
    EXPECT_EQ(ResultOf(WithTables("0 LAYER\n2 DEFPOINTS\n", "0 POINT\n8 Defpoints\n"), "Point "),
              "Point layer=\"Defpoints_1\"\n");
}

TEST(DxfReplayTexts, LineTypeKeepsItsDashes)
{
    EXPECT_TRUE(
        Has(RecordsOf(WithTables("0 LTYPE\n2 DASHDOT\n3 Dash dot __ .\n72 65\n73 4\n40 2\n49 1\n"
                                 "74 0\n49 -0.5\n74 0\n49 0\n74 0\n49 -0.5\n74 0\n"),
                      "LTYPE"),
            "2 DASHDOT\n70 0\n3 Dash dot __ .\n72 65\n73 4\n40 2.000000\n49 1.000000\n74 0\n"
            "49 -0.500000\n74 0\n49 0.000000\n74 0\n49 -0.500000\n74 0\n"));
}

TEST(DxfReplayTexts, LineTypeKeepsItsLettersWithTheirStyle)
{
    const auto drawing = WithTables(
        "0 LTYPE\n2 GAS\n3 Gas\n73 2\n40 2\n49 1\n74 3\n75 0\n340 2a\n46 0.5\n50 90\n44 -0.1\n"
        "45 -0.2\n9 G\n49 -1\n74 0\n0 STYLE\n5 2A\n2 Plan\n3 arial.ttf\n");
    EXPECT_TRUE(Has(RecordsOf(drawing, "LTYPE"),
                    "49 1.000000\n74 3\n75 0\n340 d0\n46 0.500000\n50 90.000000\n44 -0.100000\n"
                    "45 -0.200000\n9 G\n49 -1.000000\n74 0\n"))
        << RecordsOf(drawing, "LTYPE");
    EXPECT_TRUE(Has(RecordsOf(drawing, "STYLE"), "2 Plan\n70 0\n")) << RecordsOf(drawing, "STYLE");
    EXPECT_TRUE(Has(RecordsOf(drawing, "STYLE"), "3 arial.ttf\n"));
}

TEST(DxfReplayTexts, LineTypeKeepsItsShapesWithTheirFile)
{
    const auto drawing =
        WithTables("0 LTYPE\n2 FENCE\n73 2\n40 2\n49 1\n74 4\n75 131\n340 2A\n46 0.1\n50 0\n"
                   "44 0\n45 0\n49 -1\n74 0\n0 STYLE\n5 2A\n70 1\n3 ltypeshp.shx\n");
    EXPECT_TRUE(Has(RecordsOf(drawing, "LTYPE"), "49 1.000000\n74 4\n75 131\n340 "));
    EXPECT_TRUE(Has(RecordsOf(drawing, "STYLE"), "2 \n70 1\n"));
    EXPECT_TRUE(Has(RecordsOf(drawing, "STYLE"), "3 ltypeshp.shx\n"));
}

TEST(DxfReplayTexts, DashesTakeUpTheScaleOfTheDrawing)
{
    const QByteArray drawing = Drawing(Section("HEADER", "9 $LTSCALE\n40 2.5\n")
                                       + Section("TABLES", "0 LTYPE\n2 DASHED\n49 1\n49 -2\n"));
    EXPECT_TRUE(Has(RecordsOf(drawing, "LTYPE"), "49 2.500000\n74 0\n49 -5.000000\n"));
}

} // namespace velorx::test

// SPDX-License-Identifier: MIT
#include "tests/support/TextFile.h"
#include "tests/tools/DxfStream.h"
#include "tools/velorx/features/DxfFeatureReader.h"
#include "tools/velorx/formats/DxfSurvey.h"
#include "tools/velorx/formats/DxfTally.h"
#include "VelorExchange/dxf/records/Block.h"
#include "VelorExchange/dxf/records/Insert.h"

#include <gtest/gtest.h>

#include <QTemporaryFile>

#include <cmath>

namespace velorx::test {

using namespace VelorExchange::dxf;
using VelorExchange::CPoint3D;

namespace {

std::string AttributesOf(const SFeature& feature)
{
    std::string text;
    for (const SFeatureAttribute& attribute :
         feature.attributes != nullptr ? *feature.attributes : std::vector<SFeatureAttribute>())
    {
        text += (attribute.name + '=' + attribute.value.toString() + ' ').toStdString();
    }
    return text;
}

double TopOf(const CFeatureLine& line)
{
    double top = -1e300;
    for (const CPoint3D& p : line) {
        top = std::max(top, p.y);
    }
    return top;
}

} // namespace

TEST(DxfFeatureBlocks, InsertDrawsWhatItsBlockHolds)
{
    CDxfStream stream;
    stream.Block("Tree", "0 LINE, 8 Crown, 10 0, 20 0, 11 1, 21 0", 0.5, 0);
    const auto& read =
        stream.Entities("0 INSERT, 2 TREE, 8 Trees, 10 10, 20 20, 30 5, 41 2, 42 2, 50 90").Read();
    ASSERT_EQ(read.lines.size(), 1U) << stream.Losses();
    EXPECT_EQ(PointsOf(read.lines[0].points), "(10 19 5) (10 21 5)");
    EXPECT_EQ(read.lines[0].layer, "Crown");
    EXPECT_TRUE(read.lines[0].isInBlock);
    EXPECT_EQ(stream.Met("LINE"), "0+1");
    EXPECT_EQ(stream.Met("INSERT"), "1+0");
    EXPECT_EQ(stream.Lost("block references, written as what their blocks hold"), "1: Trees 1");
}

TEST(DxfFeatureBlocks, WhatIsOnLayer0GoesToTheLayerOfTheInsert)
{
    CDxfStream stream;
    stream.Table("0 LAYER, 2 0, 62 7").Table("0 LAYER, 2 Trees, 62 3, 370 50, 6 DOT");
    stream.Table("0 LTYPE, 2 DOT, 73 2, 49 0, 49 -1");
    stream.Block("Tree", "0 LINE, 8 0, 11 1, 21 0, 0 LINE, 8 0, 62 1, 11 1, 21 0");
    const auto& read = stream.Entities("0 INSERT, 2 Tree, 8 Trees").Read();
    ASSERT_EQ(read.lines.size(), 2U);
    EXPECT_EQ(read.lines[0].layer, "Trees");
    EXPECT_EQ(read.lines[0].stroke.color, 0xFF00U);
    EXPECT_EQ(read.lines[0].stroke.width, 0.5);
    ASSERT_NE(read.lines[0].stroke.lineType, nullptr);
    EXPECT_EQ(read.lines[0].stroke.lineType->name, "DOT");
    EXPECT_EQ(read.lines[1].stroke.color, 0xFFU);
}

TEST(DxfFeatureBlocks, WhatIsBlackOnLayer0AmongBlackByLayerStaysBlack)
{
    CDxfStream stream;
    stream.Table("0 LAYER, 2 0, 62 7").Table("0 LAYER, 2 Trees, 62 3");
    stream.Block("Tree", "0 LINE, 8 0, 11 1, 21 0, 0 LINE, 8 0, 62 7, 11 1, 21 0");
    const auto& read = stream.Entities("0 INSERT, 2 Tree, 8 Trees").Read();
    EXPECT_EQ(read.lines.at(0).stroke.color, 0U);
    EXPECT_EQ(stream.Lost("elements of blocks in the colour of their insert's layer, black among "
                          "other black ones"),
              "1: ");
}

TEST(DxfFeatureBlocks, WhatIsByBlockLooksLikeTheInsert)
{
    CDxfStream stream;
    stream.Table("0 LTYPE, 2 DOT, 73 2, 49 0, 49 -1");
    stream.Block("Inner", "0 LINE, 8 A, 62 0, 6 BYBLOCK, 11 1, 0 ELLIPSE, 8 A, 62 0, 11 1, 40 1");
    stream.Block("Outer", "0 INSERT, 2 Inner, 8 A, 62 0, 6 BYBLOCK");
    const auto& read = stream.Entities("0 INSERT, 2 Outer, 8 A, 62 5, 6 DOT").Read();
    EXPECT_EQ(read.lines.at(0).stroke.color, 0xFF0000U);
    ASSERT_NE(read.lines.at(0).stroke.lineType, nullptr);
    EXPECT_EQ(read.areas.at(0).stroke.color, 0xFF0000U);
}

TEST(DxfFeatureBlocks, BlocksInBlocksGoTogether)
{
    CDxfStream stream;
    stream.Block("Inner", "0 LINE, 8 A, 10 1, 20 0, 11 2, 21 0");
    stream.Block("Outer", "0 INSERT, 2 Inner, 8 A, 10 10, 20 0, 50 90");
    const auto& read = stream.Entities("0 INSERT, 2 Outer, 8 A, 10 100, 20 0, 42 3").Read();
    ASSERT_EQ(read.lines.size(), 1U);
    EXPECT_EQ(PointsOf(read.lines[0].points), "(110 3) (110 6)");
    EXPECT_EQ(stream.Met("INSERT"), "1+1");
}

TEST(DxfFeatureBlocks, MirroredArcsTurnOverExactly)
{
    CDxfStream stream;
    stream.Block("B",
                 "0 ARC, 8 A, 10 0, 20 0, 40 10, 50 0, 51 90, "
                 "0 LWPOLYLINE, 8 A, 90 2, 10 0, 20 0, 42 1, 10 10, 20 0, 42 0");
    const auto& read = stream.Entities("0 INSERT, 2 B, 8 A, 42 -1").Read(0.001);
    ASSERT_EQ(read.lines.size(), 2U);
    EXPECT_EQ(PointsOf({read.lines[0].points.front(), read.lines[0].points.back()}),
              "(10 0) (0 -10)");
    EXPECT_NEAR(TopOf(read.lines[1].points), 5, 0.001); // it hangs below in the block
}

TEST(DxfFeatureBlocks, StretchedCirclesAreEllipses)
{
    CDxfStream stream;
    stream.Block("B", "0 CIRCLE, 8 A, 10 0, 20 0, 40 1");
    const auto& read = stream.Entities("0 INSERT, 2 B, 8 A, 41 10, 42 20").Read(0.01);
    ASSERT_EQ(read.areas.size(), 1U);
    for (const CPoint3D& p : read.areas[0].rings.at(0)) {
        EXPECT_NEAR(std::hypot(p.x / 10, p.y / 20), 1, 1e-9);
    }
    EXPECT_NEAR(TopOf(read.areas[0].rings[0]), 20, 0.01);
}

TEST(DxfFeatureBlocks, ChordsKeepTheToleranceInTheDrawing)
{
    CDxfStream stream;
    stream.Block("B", "0 CIRCLE, 8 A, 10 0, 20 0, 40 1");
    const auto& read = stream.Entities("0 INSERT, 2 B, 8 A, 41 1000, 42 1000").Read(0.01);
    const CFeatureLine& ring = read.areas.at(0).rings.at(0);
    const double gap = 1000 - std::hypot(ring[0].x + ring[1].x, ring[0].y + ring[1].y) / 2;
    EXPECT_LE(gap, 0.01);
    EXPECT_GT(gap, 0.005);
}

TEST(DxfFeatureBlocks, HatchesWithEllipsesAreDrawnInTheirOrder)
{
    CDxfStream stream;
    stream.Block("B",
                 "0 LINE, 8 A, 11 1, 21 1, "
                 "0 HATCH, 8 A, 62 0, 2 SOLID, 70 1, 91 1, 92 1, 93 1, 72 3, 10 0, 20 0, 11 4, "
                 "21 0, 40 0.5, 50 0, 51 360, 73 1, 97 0, 75 0, 76 1, "
                 "0 LINE, 8 B, 11 1, 21 1");
    const auto& read = stream.Entities("0 INSERT, 2 B, 8 A, 62 1, 10 10, 20 0").Read();
    EXPECT_EQ(read.lines.size(), 2U);
    ASSERT_EQ(read.areas.size(), 1U) << stream.Losses();
    EXPECT_EQ(read.areas[0].fill.color, 0xFFU);
    EXPECT_NEAR(TopOf(read.areas[0].rings.at(0)), 2, 0.01);
}

TEST(DxfFeatureBlocks, WidthsAndTextsGrowWithTheInsert)
{
    CDxfStream stream;
    stream.Block("B",
                 "0 LWPOLYLINE, 8 A, 43 0.5, 90 2, 10 0, 20 0, 10 1, 20 0, "
                 "0 MTEXT, 8 A, 10 1, 20 0, 40 2, 41 10, 1 x");
    const auto& read = stream.Entities("0 INSERT, 2 B, 8 A, 41 3, 42 3, 50 30").Read();
    EXPECT_DOUBLE_EQ(read.lines.at(0).stroke.planWidth, 1.5);
    EXPECT_DOUBLE_EQ(read.texts.at(0).height, 6);
    EXPECT_DOUBLE_EQ(read.texts.at(0).columnWidth, 30);
    EXPECT_NEAR(read.texts.at(0).rotation, M_PI / 6, 1e-12);
}

TEST(DxfFeatureBlocks, StretchedTextsGetWider)
{
    CDxfStream stream;
    stream.Block("B", "0 TEXT, 8 A, 10 1, 20 0, 40 2, 1 x");
    const auto& text = stream.Entities("0 INSERT, 2 B, 8 A, 41 3, 42 1").Read().texts.at(0);
    EXPECT_DOUBLE_EQ(text.height, 2);
    EXPECT_DOUBLE_EQ(text.widthFactor, 3);
}

TEST(DxfFeatureBlocks, MirroredTextsCanBeReadInTheSamePlace)
{
    CDxfStream stream;
    stream.Block("B", "0 TEXT, 8 A, 10 1, 20 0, 40 2, 1 x");
    const auto& text = stream.Entities("0 INSERT, 2 B, 8 A, 41 -1").Read().texts.at(0);
    EXPECT_EQ(text.position.x, -1);
    EXPECT_EQ(text.align, EFeatureAlign::Right);
    EXPECT_EQ(text.rotation, 0);
    EXPECT_EQ(stream.Lost("texts mirrored by their insert, written to be read"), "1: A 1");
}

TEST(DxfFeatureBlocks, AttributesGoToAllThatComesOfAnInsert)
{
    CDxfStream stream;
    stream.Block("Well", "0 CIRCLE, 8 0, 40 1, 0 LINE, 8 0, 11 1");
    const auto& read = stream
                           .Entities("0 INSERT, 2 Well, 8 A, 66 1, 10 10, 20 0, "
                                     "0 ATTRIB, 8 B, 10 12, 20 0, 40 2, 41 0.5, 2 NO, 1 %%c7, "
                                     "0 ATTRIB, 8 B, 10 12, 20 3, 40 2, 2 DEPTH, 1 12.5, 0 SEQEND, "
                                     "0 POINT, 8 A")
                           .Read();
    EXPECT_EQ(AttributesOf(read.areas.at(0)), "NO=Ø7 DEPTH=12.5 ");
    EXPECT_EQ(read.areas[0].attributes, read.lines.at(0).attributes);
    ASSERT_EQ(read.texts.size(), 2U);
    EXPECT_EQ(read.texts[0].text, "Ø7");
    EXPECT_EQ(read.texts[0].position.x, 12);
    EXPECT_EQ(read.texts[0].widthFactor, 0.5);
    EXPECT_EQ(read.texts[0].layer, "B");
    EXPECT_STREQ(read.texts[0].kind, "ATTRIB");
    EXPECT_FALSE(read.texts[0].isInBlock);
    EXPECT_EQ(read.texts[0].attributes, read.lines[0].attributes);
    EXPECT_EQ(read.points.at(0).attributes, nullptr);
    EXPECT_EQ(stream.Met("ATTRIB"), "2+0");
}

TEST(DxfFeatureBlocks, HiddenAttributesAreNoTexts)
{
    CDxfStream stream;
    stream.Block("Well", "0 POINT, 8 A");
    const auto& read =
        stream
            .Entities("0 INSERT, 2 Well, 8 A, 66 1, 0 ATTRIB, 8 A, 40 1, 2 NO, 70 1, 1 7, "
                      "0 ATTRIB, 8 A, 40 1, 2 NAME, 70 0, 1 x, 0 SEQEND, "
                      "0 INSERT, 2 WELL, 8 A, 66 1, 0 ATTRIB, 8 A, 40 1, 2 NO, 70 1, 1 8, "
                      "0 ATTRIB, 8 A, 40 1, 2 NAME, 70 1, 1 y, 0 SEQEND")
            .Read();
    EXPECT_EQ(AttributesOf(read.points.at(0)), "NO=7 NAME=x ");
    ASSERT_EQ(read.texts.size(), 2U); // of a tag that shows somewhere all show
    EXPECT_EQ(read.texts[0].text, "x");
    EXPECT_EQ(stream.Lost("attributes that are hidden, which show in the result"), "1: ");
    EXPECT_EQ(stream.Met("ATTRIB"), "4+0");
}

TEST(DxfFeatureBlocks, NestedInsertsAddTheirAttributes)
{
    CDxfStream stream;
    stream.Block("Inner", "0 POINT, 8 A");
    stream.Block("Outer",
                 "0 INSERT, 2 Inner, 8 A, 66 1, 10 5, 20 0, 0 ATTRIB, 8 0, 10 5, 20 1, "
                 "40 1, 2 NO, 1 inner, 0 SEQEND, 0 LINE, 8 A, 11 1");
    const auto& read =
        stream
            .Entities("0 INSERT, 2 Outer, 8 A, 66 1, 10 100, 20 0, 0 ATTRIB, 8 A, 40 1, "
                      "2 NO, 1 outer, 0 ATTRIB, 8 A, 40 1, 2 NAME, 1 x, 0 SEQEND")
            .Read();
    EXPECT_EQ(AttributesOf(read.points.at(0)), "NAME=x NO=inner ");
    EXPECT_EQ(AttributesOf(read.lines.at(0)), "NO=outer NAME=x ");
    ASSERT_EQ(read.texts.size(), 3U);
    EXPECT_EQ(read.texts[0].position.x,
              105); // of the inner insert, and only moved by the outer one
    EXPECT_TRUE(read.texts[0].isInBlock);
}

TEST(DxfFeatureBlocks, InsertOfAnEmptyBlockIsAPoint)
{
    CDxfStream stream;
    stream.Block("Mark", "");
    const auto& read =
        stream
            .Entities("0 INSERT, 2 Mark, 8 A, 62 1, 66 1, 10 10, 20 0, 0 ATTRIB, 8 A, "
                      "40 1, 2 NO, 1 7, 0 SEQEND, 0 INSERT, 2 Nowhere, 8 A")
            .Read();
    ASSERT_EQ(read.points.size(), 2U);
    EXPECT_STREQ(read.points[0].kind, "INSERT");
    EXPECT_EQ(read.points[0].position.x, 10);
    EXPECT_EQ(AttributesOf(read.points[0]), "NO=7 ");
    EXPECT_EQ(read.points[0].symbol.color, 0xFFU);
    EXPECT_FALSE(read.points[0].isInBlock);
    EXPECT_EQ(read.texts.size(), 1U);
    EXPECT_EQ(stream.Lost("block references without anything to draw, written as points"),
              "2: A 2");
}

TEST(DxfFeatureBlocks, BlockWithinItselfEnds)
{
    CDxfStream stream;
    stream.Block("A", "0 LINE, 8 L, 11 1, 0 INSERT, 2 B, 8 L");
    stream.Block("B", "0 INSERT, 2 A, 8 L");
    const auto& read = stream.Entities("0 INSERT, 2 A, 8 L").Read();
    EXPECT_EQ(read.lines.size(), 1U);
    EXPECT_EQ(stream.Lost("INSERT, of a block within itself: left out"), "1: L 1");
}

TEST(DxfFeatureBlocks, BlocksTooDeepEnd)
{
    CDxfStream stream;
    for (int i = 0; i < 150; ++i) {
        const std::string next = "0 INSERT, 8 L, 2 B" + std::to_string(i + 1) + ", 0 POINT, 8 L";
        stream.Block(("B" + std::to_string(i)).c_str(), next.c_str());
    }
    EXPECT_EQ(stream.Entities("0 INSERT, 2 B0, 8 L").Read().points.size(), 100U);
    EXPECT_EQ(stream.Lost("INSERT, of a block within a hundred others: left out"), "1: L 1");
}

TEST(DxfFeatureBlocks, BlocksThatBlowUpEnd)
{
    CFeatureRecorder recorder;
    CFeatureTally tally;
    CDxfTally counts;
    const CDxfSurvey survey(counts);
    CDxfFeatureReader reader(recorder, tally, survey, counts, SReadingOptions());
    reader.LimitDrawn(1000);
    CInsertDXF insert;
    for (int i = 0; i < 40; ++i) {
        CBlockDXF block;
        block.name = QString::number(i);
        insert.name = QString::number(i + 1);
        block.entities = {insert, insert, CPointDXF()};
        reader.OnBlock(block);
    }
    insert.name = "0";
    reader.OnInsert(insert);
    reader.Finish();
    EXPECT_LE(recorder.points.size(), 1000U);
    CConversionReport report;
    tally.FillReport(report);
    EXPECT_TRUE(report.ToText().contains("elements of blocks beyond the first five million"));
}

TEST(DxfFeatureBlocks, BlocksThatNoInsertDrawsAreListed)
{
    CDxfStream stream;
    stream.Block("A", "0 LINE, 8 L, 11 1").Block("B", "").Block("*Model_Space", "0 POINT, 8 0");
    stream.Block("a", "0 LINE, 8 L, 11 1").Block("C", "0 ATTDEF, 8 L, 2 NO, 1 x").Read();
    EXPECT_EQ(stream.Lost("blocks that no insert draws, left out"), "2: ");
    EXPECT_EQ(stream.Lost("elements of layout blocks, left out"), "1: ");
    EXPECT_EQ(stream.Lost("blocks defined once more under the same name, left out"), "1: ");
    EXPECT_EQ(stream.Lost("attribute definitions, left out"), "1: ");
}

TEST(DxfFeatureBlocks, InsertOnAPlaneSeenFromBehindIsMirrored)
{
    CDxfStream stream;
    stream.Block("B", "0 LINE, 8 A, 10 1, 20 0, 11 2, 21 1");
    const auto& read =
        stream.Entities("0 INSERT, 2 B, 8 A, 10 10, 20 0, 50 90, 210 0, 220 0, 230 -1").Read();
    ASSERT_EQ(read.lines.size(), 1U);
    EXPECT_EQ(PointsOf(read.lines[0].points), "(-10 1) (-9 2)");
    EXPECT_EQ(stream.Lost("elements drawn on a plane seen from behind, mirrored in part"), "");
}

TEST(DxfFeatureBlocks, DimensionIsDrawnByItsBlock)
{
    CDxfStream stream;
    stream.Table("0 LAYER, 2 Dims, 62 3");
    stream.Block("*D1", "0 LINE, 8 0, 62 0, 10 5, 20 6, 11 8, 21 6, 0 MTEXT, 8 0, 40 2, 1 3.00");
    const auto& read = stream
                           .Entities("0 DIMENSION, 8 Dims, 2 *D1, 10 1, 20 1, 70 1, "
                                     "0 DIMENSION, 8 Dims, 2 *D1, 62 1, 67 0, 0 POINT, 8 A")
                           .Read();
    ASSERT_EQ(read.lines.size(), 2U);
    EXPECT_EQ(PointsOf(read.lines[0].points), "(5 6) (8 6)");
    EXPECT_EQ(read.lines[0].stroke.color, 0xFF00U);
    EXPECT_EQ(read.lines[0].layer, "Dims");
    EXPECT_EQ(read.lines[1].stroke.color, 0xFFU);
    EXPECT_EQ(read.texts.size(), 2U);
    EXPECT_EQ(stream.Met("DIMENSION"), "2+0");
    EXPECT_EQ(stream.Lost("dimensions and tables, written as what is drawn of them"), "2: Dims 2");
    EXPECT_EQ(stream.Lost("DIMENSION, not read: left out"), "");
}

TEST(DxfFeatureBlocks, CopiedDimensionDrawsItsBlockWhereItStands)
{
    CDxfStream stream;
    stream.Block("*D1", "0 POINT, 8 A, 10 1, 20 0");
    const auto& read =
        stream
            .Entities("0 DIMENSION, 8 A, 2 *D1, 12 100, 22 50, 32 0, 0 ARC_DIMENSION, 8 A, 2 *D1, "
                      "0 LARGE_RADIAL_DIMENSION, 8 A, 2 *D1")
            .Read();
    ASSERT_EQ(read.points.size(), 3U) << stream.Losses();
    EXPECT_EQ(PointsOf({read.points[0].position}), "(101 50)");
    EXPECT_EQ(stream.Lost("dimensions and tables, written as what is drawn of them"), "3: A 3");
}

TEST(DxfFeatureBlocks, PointsThatDimensionsHangOnAreLeftOut)
{
    CDxfStream stream;
    stream.Block("*D1", "0 POINT, 8 Defpoints, 0 POINT, 8 A, 10 1, 20 0");
    const auto& read =
        stream.Entities("0 DIMENSION, 8 A, 2 *D1, 0 POINT, 8 Defpoints, 10 2, 20 0").Read();
    ASSERT_EQ(read.points.size(), 2U);
    EXPECT_EQ(read.points[0].position.x + read.points[1].position.x, 3);
    EXPECT_EQ(stream.Lost("POINT, that a dimension hangs on: left out"), "1: Defpoints 1");
}

TEST(DxfFeatureBlocks, DimensionOfABlockWithoutANameIsNotDrawn)
{
    CDxfStream stream;
    stream.Block("*D1", "0 POINT, 8 A").Block("", "0 DIMENSION, 8 A, 2 *D1");
    EXPECT_EQ(stream.Read().points.size(), 0U);
}

TEST(DxfFeatureBlocks, DimensionsThatBlowUpEnd)
{
    CDxfTally counts;
    CDxfSurvey survey(counts);
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    file.write("0\nSECTION\n2\nENTITIES\n");
    for (int i = 0; i < 100; ++i) {
        file.write("0\nDIMENSION\n2\n*D1\n");
    }
    ASSERT_TRUE(file.flush() && survey.Read(file.fileName()));
    CFeatureRecorder recorder;
    CFeatureTally tally;
    CDxfFeatureReader reader(recorder, tally, survey, counts, SReadingOptions());
    reader.LimitDrawn(99);
    CBlockDXF block;
    block.name = "*D1";
    block.entities = {CPointDXF()};
    reader.OnBlock(block);
    reader.Finish();
    EXPECT_EQ(recorder.points.size(), 0U);
    CConversionReport report;
    tally.FillReport(report);
    EXPECT_TRUE(report.ToText().contains("100  elements of blocks beyond the first five million"));
}

TEST(DxfFeatureBlocks, DimensionWithoutABlockIsListed)
{
    CDxfStream stream;
    stream.Entities("0 DIMENSION, 8 Dims, 10 1, 20 1, 0 DIMENSION, 8 Dims, 67 1, 2 *D1").Read();
    EXPECT_EQ(stream.Lost("DIMENSION, not read: left out"), "1: Dims 1");
    EXPECT_EQ(stream.Lost("elements of paper space, left out"), "1: Dims 1");
}

TEST(DxfFeatureBlocks, TableIsDrawnByItsBlockAtItsPlace)
{
    CDxfStream stream;
    stream.Block("*T1", "0 LINE, 8 A, 10 1, 20 0, 11 2, 21 0");
    const auto& read =
        stream.Entities("0 ACAD_TABLE, 8 A, 2 *T1, 10 100, 20 50, 11 0, 21 1").Read();
    ASSERT_EQ(read.lines.size(), 1U);
    EXPECT_EQ(PointsOf(read.lines[0].points), "(100 51) (100 52)");
}

TEST(DxfFeatureBlocks, DimensionOfABlockGoesWithIt)
{
    CDxfStream stream;
    stream.Block("*D1", "0 POINT, 8 A, 10 1, 20 0").Block("Part", "0 DIMENSION, 8 A, 2 *D1");
    const auto& read = stream.Entities("0 INSERT, 2 Part, 8 A, 10 10, 20 0, 41 2").Read();
    ASSERT_EQ(read.points.size(), 1U) << stream.Losses();
    EXPECT_EQ(read.points[0].position.x, 12);
    EXPECT_EQ(stream.Met("DIMENSION"), "0+1");
}

TEST(DxfFeatureBlocks, DataBlockGivesItsAttributesToTheElementThatFollows)
{
    CDxfStream stream;
    stream.Block("VELORX_DATA", "").Block("B", "0 POINT, 8 A, 0 LINE, 8 A, 11 1");
    const auto& read =
        stream
            .Entities("0 INSERT, 2 Velorx_Data, 8 A, 66 1, 0 ATTRIB, 8 A, 40 1, 2 CODE, "
                      "1 71111000, 0 ATTRIB, 8 A, 40 1, 2 NAME, 1 Main St, 0 SEQEND, "
                      "0 INSERT, 2 B, 8 A, 0 LINE, 8 A, 11 1")
            .Read();
    EXPECT_EQ(read.points.size(), 1U);
    EXPECT_EQ(AttributesOf(read.points.at(0)), "NAME=Main St ");
    EXPECT_EQ(read.points[0].code, 71111000);
    EXPECT_EQ(AttributesOf(read.lines.at(0)), "NAME=Main St ");
    EXPECT_EQ(AttributesOf(read.lines.at(1)), "");
    EXPECT_EQ(read.lines[1].code, 0);
    EXPECT_EQ(stream.Met("INSERT"), "1+0");
}

TEST(DxfFeatureBlocks, DataWithoutAnElementIsListed)
{
    CDxfStream stream;
    stream.Entities("0 INSERT, 2 VELORX_DATA, 8 A, 0 INSERT, 2 VELORX_DATA, 8 A").Read();
    EXPECT_EQ(stream.Lost("attributes that no object follows, left out"), "2: ");
}

} // namespace velorx::test

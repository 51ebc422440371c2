// SPDX-License-Identifier: MIT
#include "tests/support/DxfDrawing.h"
#include "VelorExchange/foundation/ExportLog.h"

using namespace VelorExchange;
using namespace VelorExchange::dxf;
using namespace VelorExchange::test;

namespace {

// The colour groups of a line, one a line.
std::string ColourGroups(quint32 color, int version = 1018)
{
    CDrawing drawing(version);
    CLineDXF line;
    line.color = color;
    drawing->AddLine(line);
    CTags tags;
    for (const CTag& tag : drawing.EntityTags()) {
        if (tag.code == 62 || tag.code == 420) {
            tags.push_back(tag);
        }
    }
    return AsText(tags);
}

// Group 370 of a line, or "none".
std::string WeightGroup(double weight, IDXFWriter::IContext* context = nullptr)
{
    CDrawing drawing(1018, context);
    CLineDXF line;
    line.lineWeight = weight;
    EXPECT_TRUE(drawing->AddLine(line));
    const std::vector<std::string> values = ValuesOf(drawing.EntityTags(), 370);
    return values.empty() ? "none" : values.front();
}

} // namespace

TEST(EntityHead, GroupsStandInTheirOrder)
{
    CDrawing drawing;
    CLineDXF line;
    line.layer = QStringLiteral(" a/b ");
    line.color = 0x0000FF;
    line.lineWeight = 0.25;
    line.lineStyle.name = QStringLiteral("dash");
    line.lineStyle.pattern = {1.0};
    drawing->AddLine(line);
    EXPECT_EQ(drawing.Entities().substr(0, drawing.Entities().find("10 ")),
              "0 LINE\n5 d2\n100 AcDbEntity\n8 a_b\n6 dash\n62 1\n420 16711680\n370 25\n"
              "100 AcDbLine\n");
}

TEST(EntityHead, LayerAndLineStyleAreRegisteredInThisOrder)
{
    CDrawing drawing;
    CLineDXF line;
    line.layer = QStringLiteral("a");
    line.lineStyle.name = QStringLiteral("dash");
    drawing->AddLine(line);
    EXPECT_EQ(ValuesOf(TableOf(ParseTags(drawing.Bytes()), "LAYER"), 5).back(), "d0");
    EXPECT_EQ(ValuesOf(TableOf(ParseTags(drawing.Bytes()), "LTYPE"), 5).back(), "d1");
}

TEST(EntityHead, LineStyleWithoutANameIsLeftOut)
{
    CDrawing drawing;
    CLineDXF line;
    line.lineStyle.name.clear();
    drawing->AddLine(line);
    EXPECT_TRUE(ValuesOf(drawing.EntityTags(), 6).empty());
}

TEST(EntityHead, BlankLineStyleNameIsWrittenAsAnEmptyOne)
{
    CDrawing drawing;
    CLineDXF line;
    line.lineStyle.name = QStringLiteral(" ");
    drawing->AddLine(line);
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 6), std::vector<std::string>{""});
}

TEST(EntityHead, ElementsRegisterVisibleUnlockedLayers)
{
    CDrawing drawing;
    CLineDXF line;
    line.layer = QStringLiteral("a");
    drawing->AddLine(line);
    EXPECT_EQ(ValuesOf(TableOf(ParseTags(drawing.Bytes()), "LAYER"), 70).back(), "0");
}

TEST(EntityHead, ColourOf1018HasIndexAndTrueColour)
{
    EXPECT_EQ(ColourGroups(0x0000FF), "62 1\n420 16711680\n");
    EXPECT_EQ(ColourGroups(0x123456),
              "62 " + ColourGroups(0x123456, 1015).substr(3) + "420 5649426\n");
}

TEST(EntityHead, ColourOf1015HasTheIndexAlone)
{
    EXPECT_EQ(ColourGroups(0x0000FF, 1015), "62 1\n");
    EXPECT_EQ(ColourGroups(0xFFFFFF, 1015), "62 7\n");
}

TEST(EntityHead, BlackIsDarkGreyAsATrueColourToo)
{
    EXPECT_EQ(ColourGroups(0), "62 250\n420 3355443\n");
}

TEST(EntityHead, ByLayerHasNoTrueColour)
{
    EXPECT_EQ(ColourGroups(256), "62 256\n");
}

TEST(EntityHead, ColourBeyondByLayerKeepsItsTrueColour)
{
    EXPECT_EQ(ColourGroups(257), "62 257\n420 65792\n");
}

TEST(EntityHead, ByBlockIsIndexZeroAlone)
{
    EXPECT_EQ(ColourGroups(0xFFFFFFFF), "62 0\n");
}

TEST(EntityHead, BitsAboveTheColourAreDropped)
{
    EXPECT_EQ(ColourGroups(0xAB0000FF), "62 1\n420 16711680\n");
    EXPECT_EQ(ColourGroups(0x01000000), "62 18\n420 0\n");
}

TEST(EntityHead, ColoursThatShareAPlaceInTheMemoAreKeptApart)
{
    CDrawing drawing(1015);
    CPointDXF point;
    std::vector<std::string> expected;
    for (quint32 i = 0; i < 2000; ++i) {
        point.color = i % 2 == 0 ? i * 0x3017 & 0xFFFFFF : 0x0000FF;
        drawing->AddPoint(point);
        expected.push_back(ColourGroups(point.color, 1015).substr(3));
        expected.back().pop_back();
        if (i > 60) {
            i += 97;
        }
    }
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 62), expected);
}

TEST(EntityHead, EveryPermittedWeightComesOutAsItself)
{
    constexpr double kWeights[] = {0,   0.05, 0.09, 0.13, 0.15, 0.18, 0.2, 0.25,
                                   0.3, 0.35, 0.4,  0.5,  0.53, 0.6,  0.7, 0.8,
                                   0.9, 1,    1.06, 1.2,  1.4,  1.58, 2,   2.11};
    constexpr int kGroups[] = {0,  5,  9,  13, 15, 18,  20,  25,  30,  35,  40,  50,
                               53, 60, 70, 80, 90, 100, 106, 120, 140, 158, 200, 211};
    for (std::size_t i = 0; i < std::size(kWeights); ++i) {
        EXPECT_EQ(WeightGroup(kWeights[i]), std::to_string(kGroups[i]));
    }
}

TEST(EntityHead, WeightBetweenTwoTakesTheHeavier)
{
    EXPECT_EQ(WeightGroup(0.06), "9");
    EXPECT_EQ(WeightGroup(0.051), "9");
    EXPECT_EQ(WeightGroup(0.001), "5");
    EXPECT_EQ(WeightGroup(2.1), "211");
}

TEST(EntityHead, WeightAboveAllHasNoGroup)
{
    EXPECT_EQ(WeightGroup(3.0), "none");
    EXPECT_EQ(WeightGroup(2.1100001), "none");
}

TEST(EntityHead, NegativeWeightTakesTheLeast)
{
    EXPECT_EQ(WeightGroup(-3), "0");
}

TEST(EntityHead, WeightTakesTheContextsScale)
{
    CTestContext context;
    context.scale = 10;
    EXPECT_EQ(WeightGroup(0.02, &context), "20");
    EXPECT_EQ(WeightGroup(0.3, &context), "none");
}

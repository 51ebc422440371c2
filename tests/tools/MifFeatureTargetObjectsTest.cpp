// SPDX-License-Identifier: MIT
#include "tests/tools/MifTargetFixture.h"

#include <cmath>

namespace velorx::test {

namespace {

using MifFeatureTargetObjects = CMifTargetTest;

} // namespace

// ---- Objects ------------------------------------------------------------------------------------

TEST_F(MifFeatureTargetObjects, PlainPointIsASmallCircleOfItsColour)
{
    auto point = Point("out");
    point.symbol.color = 0x0000FF;
    EXPECT_STREQ(MakePair().Take(point), "Point");
    target->Finish();
    EXPECT_TRUE(Holds("out.mif", "POINT 1.00 2.00\nSYMBOL (34, 16711680, 4)\n"));
}

TEST_F(MifFeatureTargetObjects, SymbolsKeepNumberFontSizeAndAngle)
{
    auto point = Point("out");
    point.symbol = {0x0000FF, 65, "MapInfo Symbols", 18, 1.5707963267948966};
    MakePair().Take(point);
    point.symbol.font.clear();
    point.symbol.size = 1000;
    target->Take(point);
    target->Finish();
    EXPECT_TRUE(Holds("out.mif", "SYMBOL (65, 16711680, 18, \"MapInfo Symbols\", 0, 90.00)\n"));
    EXPECT_TRUE(Holds("out.mif", "SYMBOL (65, 16711680, 240)\n"));
    EXPECT_TRUE(Reports("1  symbols of the standard set lost their angle"));
    EXPECT_TRUE(Reports("1  symbols were too large"));
}

TEST_F(MifFeatureTargetObjects, LinesKeepTheirStrokes)
{
    auto line = InLayer<SLineFeature>("out");
    line.points = {{1, 2, 0}, {3, 4, 0}};
    line.stroke.color = 0x0000FF;
    line.stroke.width = 25.4 / 72;
    EXPECT_STREQ(MakePair().Take(line), "Pline");
    target->Finish();
    EXPECT_TRUE(Holds("out.mif", "PLINE\n2\n1.00 2.00\n3.00 4.00\nPEN (20, 2, 16711680)\n"));
    EXPECT_TRUE(Reports("Nothing was lost or changed"));
}

TEST_F(MifFeatureTargetObjects, WhatLinesLoseIsListed)
{
    auto line = InLayer<SLineFeature>("out");
    line.points = {{1, 2, 0}};
    EXPECT_EQ(MakePair().Take(line), nullptr);
    line.points = {{1, 2, 3}, {3, 4, 5}};
    line.is3D = true;
    line.stroke.width = 100;
    line.stroke.planWidth = 2;
    auto type = std::make_shared<SFeatureLineType>();
    type->dashes = {1, -1};
    line.stroke.lineType = type;
    target->Take(line);
    target->Finish();
    EXPECT_TRUE(Reports("1  lines of a single vertex or none (layers: out 1)")) << Report();
    EXPECT_TRUE(Reports("1  objects lost their heights"));
    EXPECT_TRUE(Reports("1  lines are wider than any pen"));
    EXPECT_TRUE(Reports("1  widths of wide polylines"));
    EXPECT_TRUE(Reports("1  line types became the nearest pattern"));
}

TEST_F(MifFeatureTargetObjects, AreaIsARegion)
{
    auto area = InLayer<SAreaFeature>("out");
    area.rings = {Square(0, 0, 10)};
    area.stroke.isVisible = false;
    area.fill.kind = EFeatureFill::Solid;
    area.fill.color = 0x0000FF;
    EXPECT_STREQ(MakePair().Take(area), "Region");
    target->Finish();
    EXPECT_TRUE(Holds("out.mif",
                      "REGION 1\n4\n0.00 0.00\n10.00 0.00\n10.00 10.00\n0.00 10.00\n"
                      "PEN (1, 1, 0)\nBRUSH (2, 16711680, 16777215)\n"));
    EXPECT_TRUE(Reports("Nothing was lost or changed"));
}

TEST_F(MifFeatureTargetObjects, OutlineOfAnAreaHasItsPen)
{
    auto area = InLayer<SAreaFeature>("out");
    area.rings = {Square(0, 0, 10)};
    area.stroke.color = 0x0000FF;
    area.stroke.width = 25.4 / 72;
    MakePair().Take(area);
    target->Finish();
    EXPECT_TRUE(Holds("out.mif", "PEN (20, 2, 16711680)\nBRUSH (1, 0, 16777215)\n"));
    const CFeatureRecorder& back = ReadBack();
    EXPECT_TRUE(back.areas.at(0).stroke.isVisible);
    EXPECT_EQ(back.areas[0].stroke.color, 0x0000FFU);
    EXPECT_EQ(back.areas[0].fill.kind, EFeatureFill::None);
    EXPECT_TRUE(Reports("Nothing was lost or changed"));
}

TEST_F(MifFeatureTargetObjects, HolesAndPartsAreRingsOfOneRegion)
{
    auto area = InLayer<SAreaFeature>("out");
    area.rings = {Square(0, 0, 10), Square(20, 0, 5), Square(2, 2, 6), Square(4, 4, 1)};
    area.fill.kind = EFeatureFill::Solid;
    area.stroke.isVisible = false;
    area.attributes = Attributes({{"A", 7}});
    MakePair().Take(area);
    target->Take(Point("out"));
    target->Finish();
    EXPECT_TRUE(Holds("out.mif", "REGION 4\n4\n0.00 0.00\n"));
    EXPECT_TRUE(Holds("out.mif", "\n4\n20.00 0.00\n"));
    EXPECT_EQ(File("out.mid"), "7\n\n");
    const CFeatureRecorder& back = ReadBack();
    ASSERT_EQ(back.areas.size(), 1U);
    EXPECT_EQ(back.areas[0].rings.size(), 4U);
    EXPECT_EQ(back.points.size(), 1U);
    EXPECT_TRUE(Reports("Nothing was lost or changed")) << Report();
}

TEST_F(MifFeatureTargetObjects, DetailsGoToTheObjectsOfTheirTable)
{
    MakeFolder();
    for (const char* layer : {"A", "B", "A"}) {
        auto area = InLayer<SAreaFeature>(layer);
        area.rings = {Square(0, 0, 10)};
        area.stroke.color = layer[0] == 'A' ? 0x0000FF : 0x00FF00;
        target->Take(Point(layer));
        target->Take(area);
    }
    target->Finish();
    EXPECT_EQ(ReadBack("tables/A.mif").areas.at(0).stroke.color, 0x0000FFU);
    EXPECT_EQ(ReadBack("tables/A.mif").areas.at(1).stroke.color, 0x0000FFU);
    EXPECT_EQ(ReadBack("tables/B.mif").areas.at(0).stroke.color, 0x00FF00U);
}

TEST_F(MifFeatureTargetObjects, WhatAreasLoseIsListed)
{
    auto area = InLayer<SAreaFeature>("out");
    area.rings = {{{0, 0, 0}, {1, 1, 0}}};
    EXPECT_EQ(MakePair().Take(area), nullptr);
    area.rings = {Square(0, 0, 10)};
    area.fill.kind = EFeatureFill::Pattern;
    area.stroke.planWidth = 1;
    target->Take(area);
    target->Finish();
    EXPECT_TRUE(Reports("1  areas of fewer than three vertices")) << Report();
    EXPECT_TRUE(Reports("1  hatch patterns became the nearest pattern"));
    EXPECT_TRUE(Reports("1  widths of wide polylines"));
}

TEST_F(MifFeatureTargetObjects, TextsKeepPlaceSizeAndFont)
{
    auto text = InLayer<STextFeature>("out");
    text.text = QString::fromUtf8("две\nстроки");
    text.position = {10, 20, 0};
    text.height = 2;
    text.rotation = 0.5;
    text.vertical = EFeatureVertical::Bottom;
    text.font = "Courier New";
    text.isBold = true;
    text.color = 0x0000FF;
    EXPECT_STREQ(MakePair().Take(text), "Text");
    target->Finish();
    EXPECT_TRUE(Holds("out.mif", "\\n"));
    EXPECT_TRUE(Holds("out.mif", "FONT (\"Courier New\", 1, 0, 16711680)\nAngle 28.65\n"));
    const CFeatureRecorder& back = ReadBack();
    ASSERT_EQ(back.texts.size(), 1U);
    EXPECT_EQ(back.texts[0].text, text.text);
    EXPECT_NEAR(back.texts[0].height, 2, 0.01);
    EXPECT_TRUE(Reports("Nothing was lost or changed"));
}

TEST_F(MifFeatureTargetObjects, TextsKeepTheirAlignment)
{
    auto text = InLayer<STextFeature>("out");
    text.text = "Map";
    text.position = {10, 20, 0};
    text.height = 2;
    text.align = EFeatureAlign::Right;
    MakePair().Take(text);
    text.align = EFeatureAlign::Centre;
    target->Take(text);
    target->Finish();
    EXPECT_TRUE(Holds("out.mif", "FONT (\"Arial\", 0, 0, 0)\nJustify Right\n"));
    const CFeatureRecorder& back = ReadBack();
    EXPECT_EQ(back.texts.at(0).align, EFeatureAlign::Right);
    EXPECT_NEAR(back.texts[0].position.x, 10, 0.01);
    EXPECT_EQ(back.texts.at(1).align, EFeatureAlign::Centre);
    EXPECT_NEAR(back.texts[1].position.x, 10, 0.01);
    EXPECT_TRUE(Reports("Nothing was lost or changed"));
}

TEST_F(MifFeatureTargetObjects, WhatTextsLoseIsListed)
{
    auto text = InLayer<STextFeature>("out");
    text.height = 1;
    EXPECT_EQ(MakePair().Take(text), nullptr);
    text.text = QString::fromUtf8("C:\\new 街");
    text.slant = 0.1;
    text.columnWidth = 1;
    target->Take(text);
    text.rotation = std::nan("");
    EXPECT_EQ(target->Take(text), nullptr);
    target->Finish();
    for (const char* loss :
         {"1  texts without letters", "1  widths and slants", "1  texts that are broken",
          "1  texts with the characters \\n", "1  texts have letters that the code page lacks",
          "1  texts with an angle"})
    {
        EXPECT_TRUE(Reports(loss)) << loss << Report();
    }
}

TEST_F(MifFeatureTargetObjects, ImagesAreListed)
{
    EXPECT_EQ(MakePair().Take(InLayer<SImageFeature>("Air")), nullptr);
    EXPECT_TRUE(Reports("1  images (layers: Air 1)"));
}

TEST_F(MifFeatureTargetObjects, CoordinatesBeyondAllMapsAreListedAndLeftOut)
{
    MakePair().Take(Point("out"));
    for (const double x : {std::nan(""), HUGE_VAL, 1e300}) {
        EXPECT_EQ(target->Take(Point("out", x)), nullptr);
        auto line = InLayer<SLineFeature>("out");
        line.points = {{1, 2, 0}, {x, 4, 0}};
        EXPECT_EQ(target->Take(line), nullptr);
        auto area = InLayer<SAreaFeature>("out");
        area.rings = {{{1, 2, 0}, {x, 4, 0}, {2, 2, 0}}};
        EXPECT_EQ(target->Take(area), nullptr);
        auto text = InLayer<STextFeature>("out");
        text.text = "x";
        text.position.x = x;
        EXPECT_EQ(target->Take(text), nullptr);
    }
    EXPECT_EQ(target->Finish(), "");
    EXPECT_TRUE(Reports("12  objects with coordinates that are no numbers")) << Report();
    EXPECT_EQ(ReadBack().points.size(), 1U);
}

TEST_F(MifFeatureTargetObjects, OtherCodePageThanTheHeadersIsTold)
{
    SetCodePage("UTF-8");
    MakePair().Take(Point("Дома"));
    target->Finish();
    EXPECT_TRUE(Holds("out.mid", "\"Дома\"\n"));
    EXPECT_TRUE(Reports("The text of the tables is in UTF-8")) << Report();
}

} // namespace velorx::test

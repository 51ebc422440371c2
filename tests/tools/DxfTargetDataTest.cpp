// SPDX-License-Identifier: MIT
#include "tests/tools/DxfWritten.h"
#include "tests/tools/SomeFeatures.h"

#include <QDate>

#include <gtest/gtest.h>

#include <algorithm>

namespace velorx::test {

TEST(DxfTargetData, AttributesComeBackAsTexts)
{
    CDxfWritten drawing;
    auto point = On<SPointFeature>("Wells");
    point.position = {1, 2, 3};
    point.code = 51133100;
    point.attributes = Attributes({{"NAME", QStringLiteral(" Скважина  №7 %%c\n2 ")},
                                   {"DEPTH", 12.5},
                                   {"COUNT", 7},
                                   {"DATE", QDate(2024, 5, 6)},
                                   {"EMPTY", QString()}});
    drawing.Take(point);
    drawing.Take(On<SPointFeature>("Wells"));
    const auto& read = drawing.ReadBack();
    ASSERT_EQ(read.points.size(), 2U);
    EXPECT_EQ(read.points[0].code, 51133100);
    ASSERT_NE(read.points[0].attributes, nullptr);
    const auto& attributes = *read.points[0].attributes;
    ASSERT_EQ(attributes.size(), 5U);
    EXPECT_EQ(attributes[0].name, "NAME");
    EXPECT_EQ(attributes[0].value.toString(), QStringLiteral(" Скважина  №7 %%c\n2 "));
    EXPECT_EQ(attributes[1].value.toString(), "12.5");
    EXPECT_EQ(attributes[2].value.toString(), "7");
    EXPECT_EQ(attributes[3].value.toString(), "2024-05-06");
    EXPECT_EQ(attributes[4].value.toString(), "");
    EXPECT_EQ(read.points[1].attributes, nullptr);
    EXPECT_EQ(read.points[1].code, 0);
    EXPECT_EQ(drawing.Lost("attributes that are no texts, written as texts"), "3: Wells 3");
}

TEST(DxfTargetData, AttributesAreHiddenAndStandAtTheObject)
{
    CDxfWritten drawing;
    SLineFeature line = Line({{7, 8, 0}, {5, 0, 0}});
    line.attributes = Attributes({{"NAME", QStringLiteral("x")}});
    drawing.Take(line);
    const std::string entities = drawing.Entities();
    EXPECT_TRUE(Has(entities, "2 VELORX_DATA\n10 7.000000\n20 8.000000\n"));
    EXPECT_TRUE(Has(entities, "100 AcDbAttribute\n2 NAME\n70 1\n"));
}

TEST(DxfTargetData, NamesOfAttributesAreMadeLegal)
{
    CDxfWritten drawing;
    auto point = On<SPointFeature>("Wells");
    point.attributes = Attributes({{"two words", 1},
                                   {"CODE", 2},
                                   {"a", 3},
                                   {"A", 4},
                                   {"", 5},
                                   {QStringLiteral("Имя"), 6},
                                   {QStringLiteral("日"), 7}});
    drawing.Take(point);
    const auto& read = drawing.ReadBack();
    ASSERT_NE(read.points.at(0).attributes, nullptr);
    QString names;
    for (const SFeatureAttribute& attribute : *read.points[0].attributes) {
        names += attribute.name + ' ';
    }
    EXPECT_EQ(names, QStringLiteral("two_words CODE_1 a A_1 _ Имя __1 "));
    EXPECT_EQ(read.points[0].code, 0);
    EXPECT_EQ(drawing.Lost("names of attributes changed, so that programs take them"),
              "5: Wells 5");
}

TEST(DxfTargetData, DataOfARefusedObjectDoesNotReachTheNext)
{
    CDxfWritten drawing;
    SAreaFeature area = Area({Square(0, 1e-9)}); // too small for a hatch
    area.fill.kind = EFeatureFill::Solid;
    area.attributes = Attributes({{"NAME", QStringLiteral("x")}});
    EXPECT_EQ(drawing.Take(area), "null");
    drawing.Take(On<SPointFeature>("Wells"));
    EXPECT_EQ(drawing.ReadBack().points.at(0).attributes, nullptr);
}

TEST(DxfTargetData, LongValuesAreCutAndListed)
{
    CDxfWritten drawing;
    auto point = On<SPointFeature>("Wells");
    point.attributes = Attributes({{"NAME", QString(300, 'x')}});
    drawing.Take(point);
    EXPECT_EQ(drawing.ReadBack().points.at(0).attributes->at(0).value.toString(),
              QString(255, 'x'));
    EXPECT_EQ(drawing.Lost("attributes of more than 255 characters, cut"), "1: Wells 1");
}

TEST(DxfTargetData, LayersKeepWhetherTheyShow)
{
    CDxfWritten drawing;
    (*drawing).TakeHead({"map", 500});
    (*drawing).TakeLayer({"Hidden", false, true});
    auto point = On<SPointFeature>("Hidden");
    drawing.Take(point);
    const auto& read = drawing.ReadBack();
    const auto layer =
        std::find_if(read.layers.begin(), read.layers.end(),
                     [](const SFeatureLayer& known) { return known.name == "Hidden"; });
    ASSERT_NE(layer, read.layers.end());
    EXPECT_FALSE(layer->isVisible);
    EXPECT_TRUE(layer->isLocked);
    EXPECT_EQ(drawing.Lost("scale of the map, dropped"), "1: ");
}

TEST(DxfTargetData, NamesOfLayersAreMadeSafe)
{
    CDxfWritten drawing;
    drawing.Take(On<SPointFeature>("a/b"));
    drawing.Take(On<SPointFeature>("Defpoints"));
    const auto& read = drawing.ReadBack();
    EXPECT_EQ(read.points.at(0).layer, "a_b");
    EXPECT_EQ(read.points.at(1).layer, "Defpoints_1");
    EXPECT_EQ(drawing.Lost("names changed, so that programs take them"), "2: ");
}

TEST(DxfTargetData, BothVersionsAreWritten)
{
    for (const int version : {1015, 1018}) {
        CDxfWritten drawing(version);
        drawing.Take(On<SPointFeature>("Wells"));
        EXPECT_TRUE(drawing.Bytes().contains("AC" + QByteArray::number(version)));
        EXPECT_EQ(drawing.ReadBack().points.size(), 1U);
    }
}

TEST(DxfTargetData, LogCountsWhatWasWritten)
{
    CDxfWritten drawing;
    drawing.Take(On<SPointFeature>("Wells"));
    drawing.Bytes();
    EXPECT_TRUE(Has(drawing.Log(), "drawing.dxf")) << drawing.Log();
    EXPECT_TRUE(Has(drawing.Log(), "точки")) << drawing.Log();
}

} // namespace velorx::test

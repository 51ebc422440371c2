// SPDX-License-Identifier: MIT
#include "tools/velorx/features/MifText.h"

#include <gtest/gtest.h>

namespace velorx::test {

using VelorExchange::mif::CTextMIF;

namespace {

constexpr double kPi = 3.141592653589793;

CTextMIF Text(const char* text)
{
    CTextMIF record;
    record.text = QString::fromUtf8(text);
    record.corner1 = {10, 20};
    record.corner2 = {40, 30};
    record.font.backColor = 0xFFFFFF;
    return record;
}

STextFeature Read(const CTextMIF& record)
{
    STextFeature feature;
    FillFromMifText(record, feature);
    return feature;
}

STextFeature Feature(const char* text)
{
    STextFeature feature;
    feature.text = QString::fromUtf8(text);
    feature.position = {10, 20, 0};
    feature.height = 2.0;
    return feature;
}

CTextMIF Write(const STextFeature& feature)
{
    SMifTextLosses losses;
    return MifTextOf(feature, losses);
}

} // namespace

TEST(MifText, StandsAtTheLowerLeftCornerOfItsRectangle)
{
    const STextFeature text = Read(Text("Map"));
    EXPECT_EQ(text.position.x, 10);
    EXPECT_EQ(text.position.y, 20);
    EXPECT_EQ(text.align, EFeatureAlign::Left);
    EXPECT_EQ(text.vertical, EFeatureVertical::Baseline);
    CTextMIF turned = Text("Map");
    std::swap(turned.corner1.y, turned.corner2.y);
    EXPECT_EQ(Read(turned).position.y, 20);
}

TEST(MifText, HeightIsThatOfCapitals)
{
    EXPECT_DOUBLE_EQ(Read(Text("Map")).height, 6.9);
}

TEST(MifText, LinesShareTheRectangle)
{
    const STextFeature text = Read(Text("two\\nlines"));
    EXPECT_EQ(text.text, "two\nlines");
    EXPECT_DOUBLE_EQ(text.height, 3.45);
    EXPECT_EQ(text.vertical, EFeatureVertical::Bottom);
}

TEST(MifText, SpacingMakesLinesLower)
{
    CTextMIF record = Text("two\\nlines");
    record.spacing = 1.5;
    EXPECT_DOUBLE_EQ(Read(record).height, 0.69 * 10 / 2.5);
}

TEST(MifText, JustifiedTextStandsInTheMiddleOrAtTheEnd)
{
    CTextMIF record = Text("Map");
    record.justify = 1;
    EXPECT_EQ(Read(record).align, EFeatureAlign::Centre);
    EXPECT_EQ(Read(record).position.x, 25);
    record.justify = 2;
    record.angle = kPi / 2;
    EXPECT_EQ(Read(record).align, EFeatureAlign::Right);
    EXPECT_NEAR(Read(record).position.x, 10, 1e-12);
    EXPECT_NEAR(Read(record).position.y, 50, 1e-12);
}

TEST(MifText, FontsHaveTheirBlanksAgain)
{
    CTextMIF record = Text("Map");
    record.font.name = "TimesNewRoman";
    record.font.style = 7;
    record.font.color = 255;
    const STextFeature text = Read(record);
    EXPECT_EQ(text.font, "Times New Roman");
    EXPECT_TRUE(text.isBold);
    EXPECT_TRUE(text.isItalic);
    EXPECT_TRUE(text.isUnderlined);
    EXPECT_EQ(text.color, 255U);
    record.font.name = "Unheard";
    EXPECT_EQ(Read(record).font, "Unheard");
}

TEST(MifText, TellsWhatTheStreamDoesNotCarry)
{
    STextFeature feature;
    SMifTextExtras extras = FillFromMifText(Text("Map"), feature);
    EXPECT_FALSE(extras.hasEffects || extras.hasBackground || extras.hasLabelLine
                 || extras.hasNoSize);
    CTextMIF record = Text("Map");
    record.font.style = 256;
    record.font.backColor = 255;
    record.labelPoint = {1, 1};
    record.corner2 = record.corner1;
    extras = FillFromMifText(record, feature);
    EXPECT_TRUE(extras.hasEffects && extras.hasBackground && extras.hasLabelLine
                && extras.hasNoSize);
    EXPECT_EQ(feature.height, 1.0);
}

TEST(MifText, PositionOfATextIsTheCornerOfItsRectangle)
{
    const CTextMIF text = Write(Feature("Map"));
    EXPECT_EQ(text.corner1.x, 10);
    EXPECT_EQ(text.corner1.y, 20);
    EXPECT_GT(text.corner2.x, 10);
    EXPECT_DOUBLE_EQ(text.corner2.y, 20 + 2.0 / 0.69);
}

TEST(MifText, WhatIsWrittenIsReadBack)
{
    for (const char* words : {"Map", "two\nlines", "three\n\nlines"}) {
        STextFeature feature = Feature(words);
        feature.rotation = 0.5;
        feature.font = "Courier New";
        feature.isItalic = true;
        feature.vertical =
            feature.text.contains('\n') ? EFeatureVertical::Bottom : EFeatureVertical::Baseline;
        const STextFeature back = Read(Write(feature));
        EXPECT_EQ(back.text, feature.text);
        EXPECT_NEAR(back.position.x, 10, 1e-9);
        EXPECT_NEAR(back.position.y, 20, 1e-9);
        EXPECT_NEAR(back.height, 2.0, 1e-9);
        EXPECT_EQ(back.rotation, 0.5);
        EXPECT_EQ(back.font, feature.font);
        EXPECT_EQ(back.vertical, feature.vertical);
        EXPECT_TRUE(back.isItalic);
        EXPECT_FALSE(back.isBold);
    }
}

TEST(MifText, AlignedTextsComeBackInTheirPlace)
{
    for (const EFeatureAlign align : {EFeatureAlign::Centre, EFeatureAlign::Right}) {
        STextFeature feature = Feature("Map");
        feature.rotation = 0.5;
        feature.align = align;
        const STextFeature back = Read(Write(feature));
        EXPECT_EQ(back.align, align);
        EXPECT_NEAR(back.position.x, 10, 1e-9);
        EXPECT_NEAR(back.position.y, 20, 1e-9);
    }
}

TEST(MifText, OtherAlignmentsMoveTheRectangle)
{
    STextFeature feature = Feature("four");
    const CTextMIF left = Write(feature);
    const double width = left.corner2.x - left.corner1.x;
    const double height = left.corner2.y - left.corner1.y;
    feature.align = EFeatureAlign::Right;
    feature.vertical = EFeatureVertical::Top;
    CTextMIF moved = Write(feature);
    EXPECT_NEAR(moved.corner1.x, 10 - width, 1e-9);
    EXPECT_NEAR(moved.corner1.y, 20 - height, 1e-9);
    feature.align = EFeatureAlign::Centre;
    feature.vertical = EFeatureVertical::Middle;
    feature.rotation = kPi / 2;
    moved = Write(feature);
    EXPECT_NEAR(moved.corner1.x, 10 + height / 2, 1e-9);
    EXPECT_NEAR(moved.corner1.y, 20 - width / 2, 1e-9);
}

TEST(MifText, BaselineIsThatOfTheFirstLine)
{
    const CTextMIF text = Write(Feature("two\nlines"));
    EXPECT_NEAR(text.corner1.y, 20 - 2.0 / 0.69, 1e-9);
}

TEST(MifText, TellsWhatATableCannotHold)
{
    SMifTextLosses losses;
    MifTextOf(Feature("Map"), losses);
    EXPECT_FALSE(losses.hasShape || losses.hasColumn || losses.hasBackslashN);
    STextFeature feature = Feature("C:\\new");
    feature.slant = 0.2;
    feature.columnWidth = 5.0;
    MifTextOf(feature, losses);
    EXPECT_TRUE(losses.hasShape && losses.hasColumn && losses.hasBackslashN);
}

} // namespace velorx::test

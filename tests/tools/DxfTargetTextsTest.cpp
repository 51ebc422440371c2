// SPDX-License-Identifier: MIT
#include "tests/tools/DxfWritten.h"
#include "tests/tools/SomeFeatures.h"

#include <gtest/gtest.h>

#include <cmath>

namespace velorx::test {

TEST(DxfTargetTexts, TextComesBackWithItsLooks)
{
    CDxfWritten drawing;
    STextFeature text = Text(QStringLiteral("Улица 5 %%c日"));
    text.rotation = 0.5;
    text.align = EFeatureAlign::Right;
    text.color = 0x0000FF;
    text.font = "Times New Roman";
    text.isBold = true;
    text.isItalic = true;
    text.isUnderlined = true;
    text.widthFactor = 0.75;
    text.slant = 0.25;
    EXPECT_EQ(drawing.Take(text), "TEXT");
    const auto& read = drawing.ReadBack();
    ASSERT_EQ(read.texts.size(), 1U);
    EXPECT_EQ(read.texts[0].text, text.text);
    EXPECT_EQ(read.texts[0].position.x, 10);
    EXPECT_EQ(read.texts[0].height, 2.5);
    EXPECT_NEAR(read.texts[0].rotation, 0.5, 1e-6);
    EXPECT_EQ(read.texts[0].align, EFeatureAlign::Right);
    EXPECT_EQ(read.texts[0].vertical, EFeatureVertical::Baseline);
    EXPECT_EQ(read.texts[0].color, 0x0000FFU);
    EXPECT_EQ(read.texts[0].font, "Times New Roman");
    EXPECT_TRUE(read.texts[0].isBold && read.texts[0].isItalic && read.texts[0].isUnderlined);
    EXPECT_EQ(read.texts[0].widthFactor, 0.75);
    EXPECT_NEAR(read.texts[0].slant, 0.25, 1e-6);
    EXPECT_EQ(drawing.Losses() + drawing.LossesOfReading(), "");
}

TEST(DxfTargetTexts, LongTextComesBackWithItsLooks)
{
    CDxfWritten drawing;
    STextFeature text = Text(QStringLiteral("one {1}\n日本 \\P"));
    text.rotation = 1;
    text.align = EFeatureAlign::Centre;
    text.vertical = EFeatureVertical::Middle;
    text.font = "Isocpeur";
    text.isBold = true;
    text.isUnderlined = true;
    text.widthFactor = 0.75;
    text.slant = 0.25;
    text.columnWidth = 40;
    EXPECT_EQ(drawing.Take(text), "MTEXT");
    const auto& read = drawing.ReadBack();
    ASSERT_EQ(read.texts.size(), 1U);
    EXPECT_EQ(read.texts[0].text, text.text);
    EXPECT_NEAR(read.texts[0].rotation, 1, 1e-6);
    EXPECT_EQ(read.texts[0].align, EFeatureAlign::Centre);
    EXPECT_EQ(read.texts[0].vertical, EFeatureVertical::Middle);
    EXPECT_EQ(read.texts[0].font, "Isocpeur");
    EXPECT_TRUE(read.texts[0].isBold && read.texts[0].isUnderlined);
    EXPECT_FALSE(read.texts[0].isItalic);
    EXPECT_EQ(read.texts[0].widthFactor, 0.75);
    EXPECT_NEAR(read.texts[0].slant, 0.25, 1e-6);
    EXPECT_EQ(read.texts[0].columnWidth, 40);
    EXPECT_EQ(drawing.Losses() + drawing.LossesOfReading(), "");
}

TEST(DxfTargetTexts, AllPlacesOfATextComeBack)
{
    CDxfWritten drawing;
    for (int align = 0; align < 3; ++align) {
        for (int vertical = 0; vertical < 4; ++vertical) {
            STextFeature text = Text("x");
            text.align = static_cast<EFeatureAlign>(align);
            text.vertical = static_cast<EFeatureVertical>(vertical);
            drawing.Take(text);
        }
    }
    const auto& read = drawing.ReadBack();
    ASSERT_EQ(read.texts.size(), 12U);
    for (std::size_t i = 0; i < 12; ++i) {
        EXPECT_EQ(static_cast<std::size_t>(read.texts[i].align), i / 4);
        EXPECT_EQ(static_cast<std::size_t>(read.texts[i].vertical), i % 4);
    }
}

TEST(DxfTargetTexts, LinesByTheirBaseLineHangFromTheTopOfTheirLetters)
{
    CDxfWritten drawing;
    STextFeature text = Text("a\nb");
    text.rotation = M_PI / 2;
    drawing.Take(text);
    const auto& read = drawing.ReadBack();
    EXPECT_NEAR(read.texts.at(0).position.x, 7.5, 1e-6);
    EXPECT_NEAR(read.texts.at(0).position.y, 20, 1e-6);
    EXPECT_EQ(read.texts[0].vertical, EFeatureVertical::Top);
}

TEST(DxfTargetTexts, WhatATextLosesIsListed)
{
    CDxfWritten drawing;
    STextFeature text = Text(QString(300, 'x'));
    text.position.z = 5;
    drawing.Take(text);
    drawing.Take(Text(QString::fromUtf8("\xF0\x9F\x98\x80")));
    EXPECT_EQ(drawing.Lost("texts of more than 255 characters, cut"), "1: Names 1");
    EXPECT_EQ(drawing.Lost("texts above height 0, written at 0"), "1: Names 1");
    EXPECT_EQ(
        drawing.Lost("texts with letters that have no place in the file, \"?\" in the result"),
        "1: Names 1");
}

} // namespace velorx::test

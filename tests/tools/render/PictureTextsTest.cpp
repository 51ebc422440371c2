// SPDX-License-Identifier: MIT
// Texts as they show in a picture.
#include "tests/tools/render/Canvas.h"

#include <gtest/gtest.h>

#include <cmath>

namespace velorx::test {

namespace {

constexpr double kQuarter = M_PI / 2;

SPlanBox InkOf(const STextFeature& text)
{
    CCanvas canvas;
    canvas.Sink().Take(text);
    return canvas.Ink();
}

} // namespace

TEST(PictureTexts, CapitalsStandOnTheBaselineAndAreAsHighAsTheTextSays)
{
    const SPlanBox ink = InkOf(Text("HE", 10, 30));
    EXPECT_NEAR(ink.bottom, 30, 1);
    EXPECT_NEAR(ink.top, 50, 1);
    EXPECT_NEAR(ink.left, 12, 3);
}

TEST(PictureTexts, CyrillicCapitalsAreLetters)
{
    const SPlanBox ink = InkOf(Text("Н", 10, 30)); // a Cyrillic letter that looks like H
    EXPECT_NEAR(ink.bottom, 30, 1);
    EXPECT_NEAR(ink.top, 50, 1);
    CCanvas box;
    box.Sink().Take(Text("\xF4\x8F\xBF\xBD", 10, 30)); // a character that no font has
    CCanvas letter;
    letter.Sink().Take(Text("Н", 10, 30));
    EXPECT_NE(box.CountInk(), letter.CountInk());
}

TEST(PictureTexts, RotationTurnsCounterClockwise)
{
    STextFeature text = Text("HE", 50, 20);
    text.rotation = kQuarter;
    const SPlanBox ink = InkOf(text);
    EXPECT_NEAR(ink.right, 50, 1);
    EXPECT_NEAR(ink.left, 30, 1);
    EXPECT_NEAR(ink.bottom, 22, 3);
    EXPECT_GT(ink.top, 40);
}

TEST(PictureTexts, RightAlignedTextEndsAtItsPlace)
{
    STextFeature text = Text("HE", 80, 30);
    text.align = EFeatureAlign::Right;
    const SPlanBox ink = InkOf(text);
    EXPECT_NEAR(ink.right, 79, 2);
    EXPECT_LT(ink.left, 60);
}

TEST(PictureTexts, CentredTextHasItsPlaceInTheMiddle)
{
    STextFeature text = Text("H", 48, 30);
    text.align = EFeatureAlign::Centre;
    const SPlanBox ink = InkOf(text);
    EXPECT_NEAR((ink.left + ink.right) / 2, 48, 1);
}

TEST(PictureTexts, TopOfCapitalsLiesAtTheAnchorOfATextAlignedAtItsTop)
{
    STextFeature text = Text("H", 30, 60);
    text.vertical = EFeatureVertical::Top;
    EXPECT_NEAR(InkOf(text).top, 60, 1);
    EXPECT_NEAR(InkOf(text).bottom, 40, 1);
}

TEST(PictureTexts, MiddleOfCapitalsLiesAtTheAnchorOfATextAlignedAtItsMiddle)
{
    STextFeature text = Text("H", 30, 60);
    text.vertical = EFeatureVertical::Middle;
    EXPECT_NEAR(InkOf(text).top, 70, 1);
    EXPECT_NEAR(InkOf(text).bottom, 50, 1);
}

TEST(PictureTexts, DescendersStandOnTheAnchorOfATextAlignedAtItsBottom)
{
    STextFeature text = Text("H", 30, 30);
    text.vertical = EFeatureVertical::Bottom;
    EXPECT_NEAR(InkOf(text).bottom, 30 + 20 / 3.0, 1);
}

TEST(PictureTexts, LinesFollowEachOtherDownwards)
{
    STextFeature text = Text("H\nH", 10, 70);
    text.height = 12;
    CCanvas canvas;
    canvas.Sink().Take(text);
    EXPECT_NEAR(canvas.Ink().top, 82, 1);
    EXPECT_NEAR(canvas.Ink().bottom, 50, 1); // five thirds of the height below
    EXPECT_EQ(canvas.CountInk(0, 63, 96, 69), 0);
}

TEST(PictureTexts, WidthFactorStretchesLetters)
{
    STextFeature text = Text("HH", 10, 30);
    const SPlanBox plain = InkOf(text);
    text.widthFactor = 0.5;
    const SPlanBox narrow = InkOf(text);
    EXPECT_NEAR(narrow.Width(), plain.Width() / 2, 2);
    EXPECT_NEAR(narrow.Height(), plain.Height(), 1);
}

TEST(PictureTexts, SlantLeansToTheRight)
{
    STextFeature text = Text("I", 30, 30);
    text.slant = M_PI / 4;
    CCanvas canvas;
    canvas.Sink().Take(text);
    const SPlanBox ink = canvas.Ink();
    EXPECT_GT(ink.Width(), 18);
    EXPECT_GT(canvas.CountInk(ink.right - 5, 44, ink.right, 50), 0);
    EXPECT_EQ(canvas.CountInk(ink.right - 5, 30, ink.right, 36), 0);
}

TEST(PictureTexts, UnderlineLiesBelowTheBaseline)
{
    STextFeature text = Text("HH", 10, 30);
    CCanvas plain;
    plain.Sink().Take(text);
    EXPECT_EQ(plain.CountInk(0, 20, 96, 29), 0);
    text.isUnderlined = true;
    CCanvas underlined;
    underlined.Sink().Take(text);
    EXPECT_GT(underlined.CountInk(15, 24, 30, 29), 10);
}

TEST(PictureTexts, TextKeptAsTextLooksTheSame)
{
    SPictureStyle style;
    style.keepsText = true;
    CCanvas kept(style);
    kept.Sink().Take(Text("HE", 10, 30));
    const SPlanBox outlined = InkOf(Text("HE", 10, 30));
    EXPECT_NEAR(kept.Ink().left, outlined.left, 1);
    EXPECT_NEAR(kept.Ink().right, outlined.right, 1);
    EXPECT_NEAR(kept.Ink().top, outlined.top, 1);
    EXPECT_NEAR(kept.Ink().bottom, outlined.bottom, 1);
}

TEST(PictureTexts, TextOfBlanksIsALoss)
{
    CCanvas canvas;
    EXPECT_EQ(canvas.Sink().Take(Text(" \n ", 10, 30)), nullptr);
    EXPECT_EQ(canvas.Losses(), QStringList(QStringLiteral("1 texts have nothing to show")));
}

TEST(PictureTexts, TextWithoutSizeIsALoss)
{
    CCanvas canvas;
    STextFeature text = Text("H", 10, 30);
    for (const double height : {0.0, -1.0, std::nan("")}) {
        text.height = height;
        EXPECT_EQ(canvas.Sink().Take(text), nullptr) << height;
    }
    EXPECT_EQ(canvas.CountInk(), 0);
}

} // namespace velorx::test

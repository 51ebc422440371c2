// SPDX-License-Identifier: MIT
#include "tests/tools/DxfStream.h"

#include <gtest/gtest.h>

#include <cmath>

namespace velorx::test {

namespace {

constexpr char kAnchors[] =
    "texts set by their middle or right end, set by the left one at the same place";
constexpr char kStretched[] =
    "texts stretched between two points, set by the left one in their own width";

} // namespace

TEST(DxfFeatureTexts, TextKeepsItsLooks)
{
    CDxfStream stream;
    stream.Table("0 STYLE, 2 Bold, 3 ARIALBD.TTF");
    const auto& read =
        stream
            .Entities("0 TEXT, 8 A, 62 1, 7 BOLD, 10 1, 20 2, 40 2.5, 41 0.8, 50 90, "
                      "51 15, 1 %%uDN 50%%d")
            .Read();
    ASSERT_EQ(read.texts.size(), 1U);
    const STextFeature& text = read.texts[0];
    EXPECT_EQ(text.text, QStringLiteral("DN 50°"));
    EXPECT_EQ(text.position.y, 2);
    EXPECT_EQ(text.height, 2.5);
    EXPECT_NEAR(text.rotation, M_PI / 2, 1e-12);
    EXPECT_EQ(text.widthFactor, 0.8);
    EXPECT_NEAR(text.slant, M_PI / 12, 1e-12);
    EXPECT_EQ(text.color, 0xFFU);
    EXPECT_EQ(text.font, "Arial");
    EXPECT_TRUE(text.isBold);
    EXPECT_TRUE(text.isUnderlined);
    EXPECT_EQ(text.align, EFeatureAlign::Left);
    EXPECT_EQ(text.vertical, EFeatureVertical::Baseline);
    EXPECT_EQ(stream.Losses(), "");
}

TEST(DxfFeatureTexts, StyleWithASystemTypefaceGivesIt)
{
    CDxfStream stream;
    stream.Table("0 STYLE, 2 Gost, 3 gost.ttf, 1001 ACAD, 1000 GOST type A, 1071 16777216");
    const auto& read = stream.Entities("0 TEXT, 8 A, 7 Gost, 40 2, 1 x").Read();
    EXPECT_EQ(read.texts.at(0).font, "GOST type A");
    EXPECT_TRUE(read.texts[0].isItalic);
    EXPECT_FALSE(read.texts[0].isBold);
}

TEST(DxfFeatureTexts, TextWithoutAWidthHasThatOfTheFont)
{
    CDxfStream stream;
    EXPECT_EQ(stream.Entities("0 TEXT, 8 A, 40 1, 1 x").Read().texts.at(0).widthFactor, 1);
}

// A program works out the left end of such a text; the reader tells that end alone.
TEST(DxfFeatureTexts, TextSetByItsRightEndIsSetByItsLeft)
{
    CDxfStream stream;
    const auto& read =
        stream.Entities("0 TEXT, 8 A, 10 1, 20 2, 11 9, 21 2, 40 2, 72 2, 1 x").Read();
    EXPECT_EQ(read.texts.at(0).position.x, 1);
    EXPECT_EQ(read.texts.at(0).align, EFeatureAlign::Left);
    EXPECT_EQ(stream.Lost(kAnchors), "1: A 1");
}

TEST(DxfFeatureTexts, TextsBetweenTwoPointsAreListed)
{
    CDxfStream stream;
    const auto& read =
        stream
            .Entities("0 TEXT, 8 A, 10 1, 20 2, 11 9, 21 2, 40 2, 41 0.7, 72 3, 1 x, "
                      "0 TEXT, 8 B, 10 1, 20 2, 11 9, 21 2, 40 2, 72 5, 1 x")
            .Read();
    EXPECT_EQ(read.texts.at(0).position.x, 1);
    EXPECT_EQ(read.texts[0].widthFactor, 0.7);
    EXPECT_EQ(stream.Lost(kStretched), "2: A 1, B 1");
    EXPECT_EQ(stream.Lost(kAnchors), "");
}

TEST(DxfFeatureTexts, TextsOfADrawingThatTellsTheirAnchorsKeepThem)
{
    CDxfStream stream;
    const auto& read = stream
                           .Entities("0 TEXT, 8 A, 10 1, 20 2, 11 1, 21 2, 40 2, 72 1, 1 x, "
                                     "0 TEXT, 8 A, 10 1, 20 2, 11 1, 21 2, 40 2, 72 2, 1 x, "
                                     "0 TEXT, 8 A, 10 1, 20 2, 11 1, 21 2, 40 2, 72 4, 1 x")
                           .Read();
    EXPECT_EQ(read.texts.at(0).align, EFeatureAlign::Centre);
    EXPECT_EQ(read.texts.at(1).align, EFeatureAlign::Right);
    EXPECT_EQ(read.texts.at(2).align, EFeatureAlign::Centre);
    EXPECT_EQ(read.texts.at(2).vertical, EFeatureVertical::Middle);
    EXPECT_EQ(stream.Lost(kAnchors), "");
}

TEST(DxfFeatureTexts, LongTextIsPlain)
{
    CDxfStream stream;
    const auto& read = stream
                           .Entities("0 MTEXT, 8 A, 62 1, 10 1, 20 2, 40 2, 41 30, 71 6, "
                                     "1 {\\fTimes New Roman|b1|i1;\\H0.5x;\\C3;\\Lone\\Ptwo}")
                           .Read();
    ASSERT_EQ(read.texts.size(), 1U);
    const STextFeature& text = read.texts[0];
    EXPECT_EQ(text.text, "one\ntwo");
    EXPECT_EQ(text.height, 1);
    EXPECT_EQ(text.columnWidth, 30);
    EXPECT_EQ(text.align, EFeatureAlign::Right);
    EXPECT_EQ(text.vertical, EFeatureVertical::Middle);
    EXPECT_EQ(text.font, "Times New Roman");
    EXPECT_TRUE(text.isBold && text.isItalic && text.isUnderlined);
    EXPECT_EQ(text.color, 0xFF00U);
    EXPECT_EQ(stream.Losses(), "");
}

TEST(DxfFeatureTexts, LongTextWithAnObjectInItKeepsItsPlace)
{
    CDxfStream stream;
    const auto& read =
        stream
            .Entities("0 MTEXT, 8 A, 10 5, 20 6, 40 2, 41 9, 71 5, 1 x, 101 Embedded Object, "
                      "70 1, 10 1, 20 0, 11 0, 21 0, 40 7, 41 0, 71 2, 0 POINT, 8 A")
            .Read();
    ASSERT_EQ(read.texts.size(), 1U);
    EXPECT_EQ(read.texts[0].position.x, 5);
    EXPECT_EQ(read.texts[0].height, 2);
    EXPECT_EQ(read.texts[0].align, EFeatureAlign::Centre);
    EXPECT_EQ(read.points.size(), 1U);
}

TEST(DxfFeatureTexts, AngleOfALongTextTurnsItWhereItHasNoDirection)
{
    CDxfStream stream;
    const auto& read = stream
                           .Entities("0 MTEXT, 8 A, 40 2, 1 x, 50 90, "
                                     "0 MTEXT, 8 A, 40 2, 1 x, 50 90, 11 -1, 21 0")
                           .Read();
    EXPECT_NEAR(read.texts.at(0).rotation, M_PI / 2, 1e-12);
    EXPECT_NEAR(read.texts.at(1).rotation, M_PI, 1e-12);
    EXPECT_EQ(stream.Losses(), "");
}

TEST(DxfFeatureTexts, TurnedTextThatStandsAtItsTopHangsFromIt)
{
    CDxfStream stream;
    const auto& text =
        stream.Entities("0 TEXT, 8 A, 10 5, 20 6, 40 2, 50 90, 1 x, 72 1, 11 5, 21 6, 73 3")
            .Read()
            .texts.at(0);
    EXPECT_NEAR(text.position.x, 7, 1e-12);
    EXPECT_NEAR(text.position.y, 6, 1e-12);
    EXPECT_EQ(text.align, EFeatureAlign::Centre);
    EXPECT_EQ(text.vertical, EFeatureVertical::Baseline);
}

TEST(DxfFeatureTexts, LongTextSeenFromBehindCanBeReadInItsPlace)
{
    CDxfStream stream;
    const auto& read =
        stream.Entities("0 MTEXT, 8 A, 10 5, 20 6, 40 2, 1 x, 71 1, 11 -1, 21 0, 230 -1").Read();
    ASSERT_EQ(read.texts.size(), 1U);
    EXPECT_EQ(read.texts[0].position.x, 5);
    EXPECT_EQ(read.texts[0].align, EFeatureAlign::Right);
    EXPECT_EQ(read.texts[0].vertical, EFeatureVertical::Top);
    EXPECT_NEAR(read.texts[0].rotation, 0, 1e-12);
}

TEST(DxfFeatureTexts, PlacesOfALongTextAreTheNineOfItsFrame)
{
    for (int place = 1; place <= 9; ++place) {
        CDxfStream stream;
        const std::string groups = "0 MTEXT, 8 A, 40 2, 1 x, 71 " + std::to_string(place);
        const auto& text = stream.Entities(groups.c_str()).Read().texts.at(0);
        EXPECT_EQ(static_cast<int>(text.align), (place - 1) % 3);
        EXPECT_EQ(static_cast<int>(text.vertical),
                  static_cast<int>(EFeatureVertical::Top) - (place - 1) / 3);
    }
}

TEST(DxfFeatureTexts, PiecesOfALongTextAreJoined)
{
    CDxfStream stream;
    const std::string piece(250, 'a');
    const std::string groups = "0 MTEXT, 8 A, 40 2, 3 " + piece + ", 3 " + piece + ", 1 b";
    EXPECT_EQ(stream.Entities(groups.c_str()).Read().texts.at(0).text.toStdString(),
              piece + piece + 'b');
    EXPECT_EQ(stream.Losses(), "");
}

TEST(DxfFeatureTexts, FormattingWithinALongTextIsListed)
{
    CDxfStream stream;
    stream.Entities("0 MTEXT, 8 A, 40 2, 1 one {\\C1;two}").Read();
    EXPECT_EQ(stream.Lost("texts with formatting that is dropped"), "1: A 1");
}

TEST(DxfFeatureTexts, TextWithoutALetterIsListed)
{
    CDxfStream stream;
    stream.Entities("0 TEXT, 8 A, 40 2, 1 %%u, 0 MTEXT, 8 B, 40 2, 1 {\\fArial; }").Read();
    EXPECT_EQ(stream.Lost("TEXT, without a letter: left out"), "1: A 1");
    EXPECT_EQ(stream.Lost("MTEXT, without a letter: left out"), "1: B 1");
}

TEST(DxfFeatureTexts, TextWithoutAHeightGetsOne)
{
    CDxfStream stream;
    EXPECT_EQ(stream.Entities("0 TEXT, 8 A, 1 x").Read().texts.at(0).height, 2.5);
    EXPECT_EQ(stream.Lost("texts without a height, written 2.5 units high"), "1: A 1");
}

} // namespace velorx::test

// SPDX-License-Identifier: MIT
#include "tools/velorx/render/TextLayout.h"

#include "tests/tools/render/Canvas.h"
#include "tools/velorx/render/Typeface.h"

#include <gtest/gtest.h>

#include <cmath>

#include <QFontDatabase>

namespace velorx::test {

namespace {

QStringList LinesOf(const STextFeature& text)
{
    const CTextLayout layout(text);
    QStringList lines;
    for (const CTextLayout::SLine& line : layout.Lines()) {
        lines.append(line.text);
    }
    return lines;
}

} // namespace

TEST(TextLayout, BreaksLinesAtLineFeeds)
{
    EXPECT_EQ(LinesOf(Text("one\n\nthree", 0, 0)).join('|'), "one||three");
}

TEST(TextLayout, BreaksLinesAtSpacesWhereTheColumnEnds)
{
    STextFeature text = Text("HHHH HHHH HHHH", 0, 0);
    text.columnWidth = CTextLayout(Text("HHHH HHHHH", 0, 0)).Box().Width();
    EXPECT_EQ(LinesOf(text).join('|'), "HHHH HHHH|HHHH");
}

TEST(TextLayout, WordWiderThanTheColumnStaysWhole)
{
    STextFeature text = Text("HHHHHHHH H", 0, 0);
    text.columnWidth = 10;
    EXPECT_EQ(LinesOf(text).join('|'), "HHHHHHHH|H");
}

TEST(TextLayout, ControlCharactersBecomeBlanks)
{
    EXPECT_EQ(LinesOf(Text("a\tb\rc", 0, 0)).join('|'), "a b c");
}

TEST(TextLayout, BoxTurnsWithTheText)
{
    STextFeature text = Text("HHHHHH", 0, 0);
    const SPlanBox level = CTextLayout(text).Box();
    text.rotation = M_PI / 2;
    const SPlanBox upright = CTextLayout(text).Box();
    EXPECT_NEAR(upright.Height(), level.Width(), 1e-9);
    EXPECT_NEAR(upright.Width(), level.Height(), 1e-9);
    EXPECT_NEAR(upright.left, -20, 1e-9);
}

TEST(TextLayout, MirroredTextTakesUpTheSamePlace)
{
    STextFeature text = Text("HI", 0, 0);
    const SPlanBox plain = CTextLayout(text).Box();
    text.widthFactor = -1;
    EXPECT_NEAR(CTextLayout(text).Box().Width(), plain.Width(), 1e-9);
    CCanvas canvas;
    canvas.Sink().Take(text);
    EXPECT_GE(canvas.Ink().left, plain.left - 1);
    EXPECT_LE(canvas.Ink().right, plain.right + 1);
}

TEST(TextLayout, WrongNumbersAreLeftAside)
{
    STextFeature text = Text("H", 0, 0);
    text.widthFactor = std::nan("");
    text.slant = HUGE_VAL;
    text.columnWidth = std::nan("");
    EXPECT_NEAR(CTextLayout(text).Box().Width(), CTextLayout(Text("H", 0, 0)).Box().Width(), 1e-9);
}

TEST(Typeface, UnknownNameGetsOneWithCyrillicLetters)
{
    const QString picked = PickTypeface(QStringLiteral("no-such-font.shx"));
    EXPECT_EQ(picked, PickTypeface(QString()));
    EXPECT_TRUE(QFontDatabase().families(QFontDatabase::Cyrillic).contains(picked));
}

TEST(Typeface, KnownNameIsKept)
{
    const QString known = QFontDatabase().families().value(0);
    ASSERT_FALSE(known.isEmpty());
    EXPECT_EQ(PickTypeface(known), known);
    EXPECT_EQ(PickTypeface(known + QStringLiteral(".ttf")), known);
}

} // namespace velorx::test

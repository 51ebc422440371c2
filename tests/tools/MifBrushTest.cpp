// SPDX-License-Identifier: MIT
#include "tools/velorx/features/MifBrush.h"

#include <gtest/gtest.h>

#include <cmath>

namespace velorx::test {

namespace {

constexpr double kPi = 3.141592653589793;

SFeatureFill PatternFill(const char* name, double degrees = 0.0, bool isDouble = false)
{
    SFeatureFill fill;
    fill.kind = EFeatureFill::Pattern;
    fill.pattern = QLatin1String(name);
    fill.angle = degrees * kPi / 180.0;
    fill.isDouble = isDouble;
    return fill;
}

int PatternOf(const SFeatureFill& fill)
{
    return BrushOfFill(fill).brush.pattern;
}

} // namespace

TEST(MifBrush, FirstPatternIsNoFillAndTheSecondSolid)
{
    EXPECT_EQ(FillOfBrush({1, 0xFFFFFF, 0}).kind, EFeatureFill::None);
    EXPECT_EQ(FillOfBrush({0, 0xFFFFFF, 0}).kind, EFeatureFill::None);
    EXPECT_EQ(FillOfBrush({2, 0xFFFFFF, 7}).kind, EFeatureFill::Solid);
    EXPECT_EQ(FillOfBrush({2, 0xFFFFFF, 7}).color, 7U);
}

TEST(MifBrush, EveryBrushComesBackAsItWas)
{
    for (int pattern = 1; pattern <= 180; ++pattern) {
        const VelorExchange::mif::CBrushMIF brush = {pattern, pattern < 3 ? 0xFFFFFFU : 0x0000FFU,
                                                     0x123456};
        const SMifBrush back = BrushOfFill(FillOfBrush(brush));
        EXPECT_EQ(back.brush.pattern, brush.pattern);
        EXPECT_EQ(back.brush.foreColor, brush.foreColor);
        EXPECT_EQ(back.brush.backColor, brush.backColor);
        EXPECT_FALSE(back.isNearPattern);
    }
}

TEST(MifBrush, PatternsOfLinesTellThem)
{
    const double angles[][2] = {{0, -1}, {90, -1}, {45, -1}, {135, -1}, {0, 90}, {45, 135}};
    for (int pattern = 3; pattern <= 8; ++pattern) {
        const SFeatureFill fill = FillOfBrush({pattern, 0xFFFFFF, 0});
        const auto& expected = angles[pattern - 3];
        ASSERT_EQ(fill.lines.size(), expected[1] < 0 ? 1U : 2U) << pattern;
        for (std::size_t i = 0; i < fill.lines.size(); ++i) {
            EXPECT_EQ(fill.lines[i].angle, expected[i]);
            EXPECT_NEAR(std::hypot(fill.lines[i].offsetX, fill.lines[i].offsetY), 8 * 25.4 / 96,
                        1e-12);
        }
        EXPECT_FALSE(HasDots({pattern, 0, 0}));
    }
    EXPECT_TRUE(HasDots({12, 0, 0}));
    EXPECT_TRUE(FillOfBrush({12, 0, 0}).lines.empty());
}

TEST(MifBrush, WhiteBehindAPatternIsNoBackground)
{
    EXPECT_FALSE(FillOfBrush({5, 0xFFFFFF, 0}).hasBackground);
    EXPECT_TRUE(FillOfBrush({5, 0x00FF00, 0}).hasBackground);
    EXPECT_EQ(FillOfBrush({5, 0x00FF00, 0}).background, 0x00FF00U);
}

TEST(MifBrush, PatternsOfDrawingsBecomeTheNearest)
{
    EXPECT_EQ(PatternOf(PatternFill("ANSI31")), 5);
    EXPECT_EQ(PatternOf(PatternFill("ANSI31", 45)), 4);
    EXPECT_EQ(PatternOf(PatternFill("ANSI31", 90)), 6);
    EXPECT_EQ(PatternOf(PatternFill("ANSI31", -45)), 3);
    EXPECT_EQ(PatternOf(PatternFill("ANSI31", 0, true)), 8);
    EXPECT_EQ(PatternOf(PatternFill("ANSI37")), 8);
    EXPECT_EQ(PatternOf(PatternFill("net")), 7);
    EXPECT_EQ(PatternOf(PatternFill("LINE", 180)), 3);
    EXPECT_TRUE(BrushOfFill(PatternFill("ANSI31")).isNearPattern);
}

TEST(MifBrush, LinesOfAPatternTellMoreThanItsName)
{
    SFeatureFill fill = PatternFill("ANSI31");
    fill.lines.resize(2);
    fill.lines[1].angle = 90.0;
    EXPECT_EQ(PatternOf(fill), 7);
    fill.lines.pop_back();
    EXPECT_EQ(PatternOf(fill), 3);
}

TEST(MifBrush, AnglesThatAreNoNumbersDoNoHarm)
{
    SFeatureFill fill = PatternFill("LINE");
    fill.angle = std::nan("");
    EXPECT_EQ(PatternOf(fill), 3);
    fill.lines.resize(1);
    fill.lines[0].angle = HUGE_VAL;
    EXPECT_EQ(PatternOf(fill), 3);
}

} // namespace velorx::test

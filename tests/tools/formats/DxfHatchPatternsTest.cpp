// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfHatchPatterns.h"

#include <gtest/gtest.h>

namespace velorx::test {

namespace {

using VelorExchange::dxf::CHatchLineDXF;

const std::string kHatch = "HATCH";

// A hatch at `angle` with one line for each base, all of them running along it.
void TakeHatch(CDxfHatchPatterns& patterns, CDxfTally& tally, double angle, double offsetX,
               double offsetY, const std::vector<std::pair<double, double>>& bases)
{
    CDxfGroups groups;
    groups.Add(52, std::to_string(angle));
    groups.Add(41, "2");
    patterns.Begin();
    patterns.Take(43, 99); // of the boundaries
    patterns.Take(78, static_cast<double>(bases.size()));
    for (const auto& [x, y] : bases) {
        patterns.Take(53, angle);
        patterns.Take(43, x);
        patterns.Take(44, y);
        patterns.Take(45, offsetX);
        patterns.Take(46, offsetY);
        patterns.Take(79, 2);
        patterns.Take(49, 1.5);
        patterns.Take(49, -0.5);
    }
    patterns.Take(98, 1);
    patterns.Take(49, 99); // of something behind the pattern
    patterns.Finish({kHatch, groups, QStringLiteral("A"), QString(), false},
                    QStringLiteral("Brick"), tally);
}

qint64 LossesOf(const CDxfTally& tally)
{
    CConversionReport report;
    tally.FillReport(report);
    return report.losses.empty() ? 0 : report.losses[0].count;
}

} // namespace

TEST(DxfHatchPatterns, KeepsLinesFromTheFirstOne)
{
    CDxfHatchPatterns patterns;
    CDxfTally tally;
    TakeHatch(patterns, tally, 0, 3, 4, {{10, 20}, {11, 22}});
    const auto* pattern = patterns.Find("BRICK");
    ASSERT_NE(pattern, nullptr);
    EXPECT_EQ(pattern->scale, 2);
    ASSERT_EQ(pattern->lines.size(), 2U);
    EXPECT_EQ(pattern->lines[0].baseX, 0);
    EXPECT_EQ(pattern->lines[1].baseX, 1);
    EXPECT_EQ(pattern->lines[1].baseY, 2);
    EXPECT_EQ(pattern->lines[1].offsetX, 3);
    EXPECT_EQ(pattern->lines[1].dashes, (std::vector<double>{1.5, -0.5}));
}

TEST(DxfHatchPatterns, TurnsLinesToTheAngleOfAHatch)
{
    CDxfHatchPatterns patterns;
    CDxfTally tally;
    TakeHatch(patterns, tally, 0, 0, 2, {{0, 0}, {1, 0}});
    const std::vector<CHatchLineDXF> lines =
        CDxfHatchPatterns::LinesAt(*patterns.Find("Brick"), 90);
    EXPECT_EQ(lines[1].angle, 90);
    EXPECT_NEAR(lines[1].baseX, 0, 1e-12);
    EXPECT_NEAR(lines[1].baseY, 1, 1e-12);
    EXPECT_NEAR(lines[1].offsetX, -2, 1e-12);
    EXPECT_NEAR(lines[1].offsetY, 0, 1e-12);
}

TEST(DxfHatchPatterns, TurnedHatchOfAPatternIsTheSamePattern)
{
    CDxfHatchPatterns patterns;
    CDxfTally tally;
    TakeHatch(patterns, tally, 0, 0, 2, {{0, 0}});
    TakeHatch(patterns, tally, 90, -2, 0, {{50, 60}});
    EXPECT_EQ(LossesOf(tally), 0);
}

TEST(DxfHatchPatterns, LargerHatchOfAPatternIsCounted)
{
    CDxfHatchPatterns patterns;
    CDxfTally tally;
    TakeHatch(patterns, tally, 0, 0, 2, {{0, 0}});
    TakeHatch(patterns, tally, 0, 0, 3, {{0, 0}});
    EXPECT_EQ(LossesOf(tally), 1);
    EXPECT_EQ(patterns.Find("Brick")->lines[0].offsetY, 2);
}

TEST(DxfHatchPatterns, HatchWithoutLinesTellsNoPattern)
{
    CDxfHatchPatterns patterns;
    CDxfTally tally;
    TakeHatch(patterns, tally, 0, 0, 2, {});
    EXPECT_EQ(patterns.Find("Brick"), nullptr);
}

} // namespace velorx::test

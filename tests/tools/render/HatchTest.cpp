// SPDX-License-Identifier: MIT
// Which lines a hatch has, and how they are cut.
#include "tools/velorx/render/HatchFamily.h"
#include "tools/velorx/render/HatchFill.h"
#include "tools/velorx/render/StandardPatterns.h"

#include <gtest/gtest.h>

#include <cmath>

namespace velorx::test {

namespace {

const CPixelLine kSquare = {{0, 0}, {100, 0}, {100, 100}, {0, 100}};

CPictureView UnitView()
{
    SPlanBox box;
    box.Add(0, 0);
    box.Add(96, 96);
    return {box, QSize(100, 100)};
}

SHatchFamily Level(double gap)
{
    return {{0, gap / 2}, {1, 0}, {0, gap}, CDashes()};
}

double LengthOf(const std::vector<CPixelLine>& rings, const SHatchFamily& family)
{
    double length = 0.0;
    SPieceBudget budget;
    EXPECT_TRUE(CutHatch(rings, family, budget,
                         [&length](const QLineF& piece) { length += piece.length(); }));
    return length;
}

} // namespace

TEST(HatchFill, LinesRunFromEdgeToEdge)
{
    EXPECT_DOUBLE_EQ(LengthOf({kSquare}, Level(10)), 10 * 100);
}

TEST(HatchFill, SlantedLinesCoverTheirShareOfTheArea)
{
    const double root = std::sqrt(0.5);
    const SHatchFamily family = {{3, 4}, {root, root}, {-root * 2, root * 2}, CDashes()};
    EXPECT_NEAR(LengthOf({kSquare}, family), 100 * 100 / 2, 100);
}

TEST(HatchFill, HoleIsLeftOut)
{
    const CPixelLine hole = {{20, 20}, {60, 20}, {60, 60}, {20, 60}};
    EXPECT_DOUBLE_EQ(LengthOf({kSquare, hole}, Level(10)), 10 * 100 - 4 * 40);
}

TEST(HatchFill, LineThroughAVertexIsCutOnce)
{
    const CPixelLine diamond = {{50, 0}, {100, 50}, {50, 100}, {0, 50}};
    const SHatchFamily family = {{0, 50}, {1, 0}, {0, 1000}, CDashes()};
    EXPECT_DOUBLE_EQ(LengthOf({diamond}, family), 100);
}

TEST(HatchFill, DashesBeginAtEachLinesOwnZero)
{
    SHatchFamily family = {{0, 25}, {1, 0}, {10, 50}, CDashes({10, -10}, 1)};
    QStringList starts;
    SPieceBudget budget;
    CutHatch({kSquare}, family, budget, [&starts](const QLineF& piece) {
        starts.append(QStringLiteral("%1,%2").arg(piece.x1()).arg(piece.y1()));
    });
    EXPECT_EQ(starts.filter(QStringLiteral(",25")).join(' '), "0,25 20,25 40,25 60,25 80,25");
    EXPECT_EQ(starts.filter(QStringLiteral(",75")).join(' '), "10,75 30,75 50,75 70,75 90,75");
}

TEST(HatchFill, FamilyThatDoesNotAdvanceDrawsNothing)
{
    EXPECT_EQ(LengthOf({kSquare}, {{0, 0}, {1, 0}, {5, 0}, CDashes()}), 0);
}

TEST(HatchFill, EndsWithTheBudget)
{
    SPieceBudget budget;
    budget.left = 5;
    EXPECT_FALSE(CutHatch({kSquare}, Level(10), budget, [](const QLineF& /*piece*/) { FAIL(); }));
    EXPECT_TRUE(budget.isExceeded);
}

TEST(HatchFill, TooManyLinesAreThinnedOut)
{
    SPieceBudget budget;
    double length = 0.0;
    EXPECT_TRUE(CutHatch({kSquare}, Level(1e-5), budget,
                         [&length](const QLineF& piece) { length += piece.length(); }));
    EXPECT_GT(length, 0);
    EXPECT_LE(length, 1e6 * 100);
}

TEST(HatchFamilies, LinesOfTheSourceAreTurnedWithThePlan)
{
    SFeatureFill fill;
    VelorExchange::dxf::CHatchLineDXF line;
    line.angle = 90;
    line.baseX = 10;
    line.baseY = 20;
    line.offsetX = -12;
    fill.lines = {line};
    const std::vector<SHatchFamily> families = HatchFamilies(fill, UnitView(), 100);
    ASSERT_EQ(families.size(), 1U);
    EXPECT_EQ(families[0].base, QPointF(12, 78));
    EXPECT_NEAR(families[0].along.y(), -1, 1e-12);
    EXPECT_NEAR(std::abs(families[0].Gap()), 12, 1e-9);
}

TEST(HatchFamilies, DenseLinesOfOnePatternAreSpreadAlike)
{
    SFeatureFill fill;
    VelorExchange::dxf::CHatchLineDXF line;
    line.offsetY = 0.1;
    fill.lines = {line, line};
    fill.lines[1].offsetY = 0.2;
    const std::vector<SHatchFamily> families = HatchFamilies(fill, UnitView(), 100);
    ASSERT_EQ(families.size(), 2U);
    EXPECT_GT(std::abs(families[0].Gap()), 2);
    EXPECT_NEAR(families[1].Gap(), families[0].Gap() * 2, 1e-9);
}

TEST(HatchFamilies, LinesThatAreNoNumbersAreLeftOut)
{
    SFeatureFill fill;
    VelorExchange::dxf::CHatchLineDXF line;
    line.offsetY = std::nan("");
    fill.lines = {line};
    EXPECT_TRUE(HatchFamilies(fill, UnitView(), 100).empty());
}

TEST(HatchFamilies, PatternByNameTurnsWithTheFill)
{
    SFeatureFill fill;
    fill.pattern = QStringLiteral("LINE");
    fill.angle = M_PI / 2;
    const std::vector<SHatchFamily> families = HatchFamilies(fill, UnitView(), 100);
    ASSERT_EQ(families.size(), 1U);
    EXPECT_NEAR(families[0].along.x(), 0, 1e-12);
    EXPECT_NEAR(families[0].along.y(), -1, 1e-12);
    EXPECT_NEAR(std::abs(families[0].Gap()), 8, 1e-9);
}

TEST(HatchFamilies, BrushIsMeasuredOnPaper)
{
    SFeatureFill fill;
    fill.pattern = QStringLiteral("MIF 3");
    VelorExchange::dxf::CHatchLineDXF line;
    line.offsetY = 1000;
    fill.lines = {line};
    const std::vector<SHatchFamily> families = HatchFamilies(fill, UnitView(), 100);
    ASSERT_EQ(families.size(), 1U);
    EXPECT_NEAR(std::abs(families[0].Gap()), 8, 1e-9);
}

TEST(HatchFamilies, SmallAreaGetsAFinerPattern)
{
    SFeatureFill fill;
    fill.pattern = QStringLiteral("LINE");
    EXPECT_NEAR(std::abs(HatchFamilies(fill, UnitView(), 5)[0].Gap()), 4, 1e-9);
}

TEST(HatchFamilies, DoublePatternHasLinesAcross)
{
    SFeatureFill fill;
    fill.pattern = QStringLiteral("LINE");
    fill.isDouble = true;
    const std::vector<SHatchFamily> families = HatchFamilies(fill, UnitView(), 100);
    ASSERT_EQ(families.size(), 2U);
    EXPECT_NEAR(QPointF::dotProduct(families[0].along, families[1].along), 0, 1e-12);
}

TEST(StandardPatterns, NameIsKnownInAnyCase)
{
    EXPECT_EQ(StandardPattern(QStringLiteral("ansi37")).size(), 2U);
    EXPECT_EQ(StandardPattern(QStringLiteral("ANSI37")).size(), 2U);
}

TEST(StandardPatterns, DotsHaveDotsAndGaps)
{
    const auto lines = StandardPattern(QStringLiteral("DOTS"));
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0].dashes.size(), 2U);
    EXPECT_LT(lines[0].dashes[1], 0);
}

TEST(StandardPatterns, UnknownNameStandsForSlantedLines)
{
    const auto lines = StandardPattern(QStringLiteral("NOBODY-KNOWS"));
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0].angle, 45);
}

TEST(StandardPatterns, BrushesHaveTheDirectionOfTheirKind)
{
    const std::pair<const char*, double> angles[] = {
        {"MIF 3", 0}, {"MIF 4", 90}, {"MIF 5", 45}, {"MIF 6", 135}, {"MIF 26", 90}};
    for (const auto& [name, angle] : angles) {
        const auto lines = StandardPattern(QLatin1String(name));
        ASSERT_EQ(lines.size(), 1U) << name;
        EXPECT_EQ(lines[0].angle, angle) << name;
    }
    EXPECT_EQ(StandardPattern(QStringLiteral("MIF 7")).size(), 2U);
}

TEST(StandardPatterns, FinerBrushesHaveSmallerGaps)
{
    double last = HUGE_VAL;
    for (int number = 19; number <= 23; ++number) {
        const auto lines = StandardPattern(QStringLiteral("MIF %1").arg(number));
        ASSERT_EQ(lines.size(), 1U) << number;
        EXPECT_LT(lines[0].offsetY, last) << number;
        EXPECT_GE(lines[0].offsetY, 3) << number;
        last = lines[0].offsetY;
    }
}

} // namespace velorx::test

// SPDX-License-Identifier: MIT
#include "tools/velorx/features/MifShapes.h"

#include "tools/velorx/features/RingNesting.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace velorx::test {

using namespace VelorExchange::mif;

namespace {

constexpr double kPi = 3.141592653589793;

CFeatureLine ArcLine(const CArcMIF& arc, double chord)
{
    CChords chords(chord);
    return MifArcLine(arc, chords);
}

CFeatureLine EllipseRing(const CRectMIF& ellipse, double chord)
{
    CChords chords(chord);
    return MifEllipseRing(ellipse, chords);
}

CFeatureLine RoundRectRing(const CRoundRectMIF& rect, double chord)
{
    CChords chords(chord);
    return MifRoundRectRing(rect, chords);
}

double AreaOf(const CFeatureLine& ring)
{
    return SignedArea(ring) / 2.0;
}

// How far the middle of a chord is from a circle at most.
double WorstSag(const CFeatureLine& line, double x, double y, double radius)
{
    double worst = 0.0;
    for (std::size_t i = 1; i < line.size(); ++i) {
        const double middle =
            std::hypot((line[i - 1].x + line[i].x) / 2 - x, (line[i - 1].y + line[i].y) / 2 - y);
        worst = std::max(worst, radius - middle);
    }
    return worst;
}

CArcMIF Arc(double start, double end)
{
    CArcMIF arc;
    arc.corner1 = {-10, -10};
    arc.corner2 = {10, 10};
    arc.startAngle = start;
    arc.endAngle = end;
    return arc;
}

} // namespace

TEST(MifShapes, ArcRunsCounterClockwiseFromItsStartToItsEnd)
{
    const CFeatureLine line = ArcLine(Arc(0, kPi / 2), 0.01);
    EXPECT_NEAR(line.front().x, 10, 1e-12);
    EXPECT_NEAR(line.front().y, 0, 1e-12);
    EXPECT_NEAR(line.back().x, 0, 1e-12);
    EXPECT_NEAR(line.back().y, 10, 1e-12);
    EXPECT_NEAR(line[line.size() / 2].x, 10 * std::sqrt(0.5), 1.0);
}

TEST(MifShapes, ArcRunsOnThroughZero)
{
    const CFeatureLine line = ArcLine(Arc(1.5 * kPi, 0.5 * kPi), 0.01);
    EXPECT_NEAR(line.front().y, -10, 1e-12);
    EXPECT_NEAR(line.back().y, 10, 1e-12);
    EXPECT_GT(line[line.size() / 2].x, 9);
}

TEST(MifShapes, ArcOfEqualAnglesIsAWholeTurn)
{
    const CFeatureLine line = ArcLine(Arc(1, 1), 0.01);
    EXPECT_GT(line.size(), 20U);
    EXPECT_NEAR(line.front().x, line.back().x, 1e-9);
}

TEST(MifShapes, ChordsKeepToTheTolerance)
{
    for (const double chord : {1.0, 0.1, 0.01, 0.0001}) {
        const double worst = WorstSag(ArcLine(Arc(0, 5), chord), 0, 0, 10);
        EXPECT_LE(worst, chord * (1 + 1e-9));
        EXPECT_GT(worst, chord / 4);
    }
}

TEST(MifShapes, LargeToleranceStillLeavesAnOctagon)
{
    CRectMIF circle;
    circle.corner2 = {2, 2};
    EXPECT_EQ(EllipseRing(circle, 1e9).size(), 8U);
}

TEST(MifShapes, EllipseHasTheAreaOfOne)
{
    CRectMIF ellipse;
    ellipse.corner1 = {10, 20};
    ellipse.corner2 = {0, 0};
    const CFeatureLine ring = EllipseRing(ellipse, 0.0001);
    EXPECT_NEAR(AreaOf(ring), kPi * 5 * 10, 0.01);
    EXPECT_GT(std::hypot(ring.front().x - ring.back().x, ring.front().y - ring.back().y), 0.01);
}

TEST(MifShapes, CurvesOfEndlessSizeHaveNoVertices)
{
    constexpr double kEndless = std::numeric_limits<double>::infinity();
    CRectMIF ellipse;
    ellipse.corner1 = {-1, kEndless};
    EXPECT_TRUE(EllipseRing(ellipse, 0.1).empty());
    CRoundRectMIF rect;
    rect.corner2 = {kEndless, kEndless};
    rect.radius = kEndless;
    EXPECT_TRUE(RoundRectRing(rect, 0.1).empty());
    EXPECT_TRUE(ArcLine(Arc(0, kEndless), 0.1).empty());
}

TEST(MifShapes, RectangleRunsCounterClockwise)
{
    EXPECT_EQ(AreaOf(MifRectRing({10, 20}, {0, 0})), 200);
}

TEST(MifShapes, RoundingIsTheDiameterThatTheFileTells)
{
    CRoundRectMIF rect;
    rect.corner2 = {10, 20};
    rect.radius = 4 * kPi / 180; // what the library makes of a 4
    EXPECT_NEAR(AreaOf(RoundRectRing(rect, 0.00001)), 200 - (4 - kPi) * 2 * 2, 0.001);
}

TEST(MifShapes, RoundingIsNoMoreThanTheSidesAllow)
{
    CRoundRectMIF rect;
    rect.corner2 = {10, 10};
    rect.radius = 1000;
    EXPECT_NEAR(AreaOf(RoundRectRing(rect, 0.00001)), kPi * 25, 0.001);
    rect.radius = 0;
    EXPECT_EQ(RoundRectRing(rect, 0.1).size(), 4U);
}

TEST(MifShapes, NumbersThatAreNoneDoNoHarm)
{
    CArcMIF arc = Arc(std::nan(""), 1);
    EXPECT_TRUE(ArcLine(arc, 0.01).empty());
    arc = Arc(0, 1);
    arc.corner1.x = -HUGE_VAL;
    EXPECT_LE(ArcLine(arc, 0.01).size(), 10'001U);
    CRoundRectMIF rect;
    rect.corner2 = {std::nan(""), 1};
    rect.radius = 1;
    EXPECT_LE(RoundRectRing(rect, 0.01).size(), 40'004U);
}

} // namespace velorx::test

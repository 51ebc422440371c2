// SPDX-License-Identifier: MIT
#include "tools/velorx/features/Chords.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace velorx::test {

using VelorExchange::CPoint3D;

namespace {

constexpr double kPi = 3.141592653589793;
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

CPoint3D Middle(const CPoint3D& a, const CPoint3D& b)
{
    return {(a.x + b.x) / 2, (a.y + b.y) / 2, (a.z + b.z) / 2};
}

// How far the chords of a circle around `center` leave it.
double LargestGap(const CFeatureLine& line, const CPoint3D& center, double radius)
{
    double gap = 0.0;
    for (std::size_t i = 1; i < line.size(); ++i) {
        const CPoint3D middle = Middle(line[i - 1], line[i]);
        gap = std::max(gap, radius - std::hypot(middle.x - center.x, middle.y - center.y));
    }
    return gap;
}

double DistanceTo(const CPoint3D& a, const CPoint3D& b, const CPoint3D& p)
{
    const double length = std::hypot(b.x - a.x, b.y - a.y);
    return std::fabs((b.x - a.x) * (p.y - a.y) - (b.y - a.y) * (p.x - a.x)) / length;
}

} // namespace

TEST(Chords, StayWithinTheToleranceAndUseMostOfIt)
{
    for (const double tolerance : {1.0, 0.1, 0.01, 0.001}) {
        CChords chords(tolerance);
        const CFeatureLine line = chords.Arc({5, 6, 0}, 100, 0.3, 2);
        const double gap = LargestGap(line, {5, 6, 0}, 100);
        EXPECT_LE(gap, tolerance * (1 + 1e-9));
        EXPECT_GT(gap, tolerance / 2);
    }
}

TEST(Chords, OfAnArcStartAndEndOnIt)
{
    CChords chords(0.01);
    const CFeatureLine line = chords.Arc({1, 2, 7}, 10, 0, kPi / 2);
    EXPECT_EQ(line.front().x, 11);
    EXPECT_NEAR(line.back().y, 12, 1e-12);
    EXPECT_EQ(line.back().z, 7);
}

TEST(Chords, OfAWholeTurnEndExactlyWhereTheyStart)
{
    CChords chords(0.01);
    const CFeatureLine line = chords.Arc({1e6, 5e6, 0}, 3, 0.7, 2 * kPi);
    EXPECT_EQ(line.front().x, line.back().x);
    EXPECT_EQ(line.front().y, line.back().y);
}

TEST(Chords, OfAWholeTurnAreEightAtLeast)
{
    CChords chords(1000);
    EXPECT_EQ(chords.Arc({}, 1, 0, 2 * kPi).size(), 9U);
}

TEST(Chords, AreNoMoreThanTheLimitForOneCurve)
{
    CChords chords(1e-12);
    EXPECT_EQ(chords.Arc({}, 1e9, 0, 2 * kPi).size(), CChords::kMostChords + 1U);
    EXPECT_EQ(chords.Coarse(), 1);
}

TEST(Chords, TakeTheUsualToleranceInsteadOfOneThatMakesNoSense)
{
    for (const double tolerance : {0.0, -1.0, kNan}) {
        EXPECT_EQ(CChords(tolerance).Tolerance(), CChords::kUsualTolerance);
    }
}

TEST(Chords, AreNotMadeOfAnglesThatAreNoNumbers)
{
    CChords chords(0.01);
    EXPECT_TRUE(chords.Arc({}, 1, kNan, 1).empty());
    EXPECT_TRUE(chords.Arc({}, kNan, 0, 1).empty());
    EXPECT_TRUE(chords.Arc({}, 1, 0, std::numeric_limits<double>::infinity()).empty());
}

TEST(Chords, OfAnEllipseStayWithinTheTolerance)
{
    CChords chords(0.01);
    const CFeatureLine line = chords.EllipseArc({{}, {0, 20, 0}, {-5, 0, 0}}, 0, 2 * kPi);
    for (std::size_t i = 1; i < line.size(); ++i) {
        const double at =
            2 * kPi * (static_cast<double>(i) - 0.5) / static_cast<double>(line.size() - 1);
        const CPoint3D onCurve{-5 * std::sin(at), 20 * std::cos(at), 0};
        EXPECT_LE(DistanceTo(line[i - 1], line[i], onCurve), 0.01);
    }
}

TEST(Chords, OfABulgeBendToItsSide)
{
    CChords chords(0.001);
    CFeatureLine line = {{0, 0, 0}};
    chords.AppendBulge(line, {10, 0, 4}, 1); // half a turn, counter-clockwise
    EXPECT_LE(LargestGap(line, {5, 0, 0}, 5), 0.001 * (1 + 1e-9));
    EXPECT_NEAR(line[line.size() / 2].y, -5, 0.01);
    EXPECT_NEAR(line[line.size() / 2].z, 2, 0.1);
    EXPECT_EQ(line.back().x, 10);
    EXPECT_EQ(line.back().z, 4);
}

TEST(Chords, OfAClockwiseBulgeBendToTheOther)
{
    CChords chords(0.001);
    CFeatureLine line = {{0, 0, 0}};
    chords.AppendBulge(line, {10, 0, 0}, -0.5);
    const auto highest = std::max_element(
        line.begin(), line.end(), [](const CPoint3D& a, const CPoint3D& b) { return a.y < b.y; });
    EXPECT_NEAR(highest->y, 2.5, 0.001); // bulge times half the chord
}

TEST(Chords, OfABulgeThatIsNoneAreOne)
{
    CChords chords(0.01);
    for (const double bulge : {0.0, 1e-12, kNan, std::numeric_limits<double>::infinity()}) {
        CFeatureLine line = {{0, 0, 0}};
        chords.AppendBulge(line, {10, 0, 0}, bulge);
        EXPECT_EQ(line.size(), 2U);
    }
}

TEST(Chords, OfABulgeBetweenEqualPointsAreOne)
{
    CChords chords(0.01);
    CFeatureLine line = {{3, 4, 0}};
    chords.AppendBulge(line, {3, 4, 0}, 1);
    EXPECT_EQ(line.size(), 2U);
}

TEST(Chords, OfABezierCurveStayWithinTheTolerance)
{
    CChords chords(0.01);
    CFeatureLine line = {{0, 0, 0}};
    chords.AppendBezier(line, {{0, 0, 0}, {10, 20, 0}, {20, 0, 0}});
    EXPECT_GT(line.size(), 10U);
    for (std::size_t i = 1; i < line.size(); ++i) {
        const double t = (static_cast<double>(i) - 0.5) / static_cast<double>(line.size() - 1);
        EXPECT_LE(DistanceTo(line[i - 1], line[i], {20 * t, 40 * t * (1 - t), 0}), 0.01);
    }
}

TEST(Chords, OfAStraightBezierCurveAreOne)
{
    CChords chords(0.01);
    CFeatureLine line = {{0, 0, 0}};
    chords.AppendBezier(line, {{0, 0, 0}, {1, 1, 1}, {2, 2, 2}, {3, 3, 3}});
    EXPECT_EQ(line.size(), 2U);
}

} // namespace velorx::test

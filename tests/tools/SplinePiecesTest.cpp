// SPDX-License-Identifier: MIT
#include "tools/velorx/features/SplinePieces.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace velorx::test {

using VelorExchange::CPoint3D;
using VelorExchange::dxf::CSplineDXF;

namespace {

CSplineDXF Spline(std::vector<double> knots, std::vector<CPoint3D> points)
{
    CSplineDXF spline;
    spline.knots = std::move(knots);
    spline.controlPoints = std::move(points);
    return spline;
}

} // namespace

TEST(SplinePieces, OfASplineWithoutInnerKnotsAreItsOwnPoints)
{
    const auto pieces = PiecesOf(Spline({0, 0, 0, 1, 1, 1}, {{0, 0, 1}, {1, 2, 2}, {2, 0, 3}}));
    ASSERT_EQ(pieces.size(), 1U);
    ASSERT_EQ(pieces[0].size(), 3U);
    EXPECT_EQ(pieces[0][1].y, 2);
    EXPECT_EQ(pieces[0][2].z, 3);
}

TEST(SplinePieces, MeetAtTheInnerKnots)
{
    // uniform cubic: the known start is (a + 4 b + c) / 6, the next point (2 b + c) / 3
    const auto pieces = PiecesOf(Spline({0, 1, 2, 3, 4, 5, 6, 7, 8},
                                        {{0, 0, 0}, {6, 0, 0}, {6, 6, 0}, {0, 6, 0}, {0, 0, 0}}));
    ASSERT_EQ(pieces.size(), 2U);
    EXPECT_NEAR(pieces[0][0].x, 5, 1e-12);
    EXPECT_NEAR(pieces[0][0].y, 1, 1e-12);
    EXPECT_NEAR(pieces[0][1].y, 2, 1e-12);
    EXPECT_NEAR(pieces[0][3].x, pieces[1][0].x, 1e-12);
    EXPECT_NEAR(pieces[0][3].y, pieces[1][0].y, 1e-12);
}

TEST(SplinePieces, OfTheFirstDegreeAreItsSegments)
{
    const auto pieces = PiecesOf(Spline({0, 0, 1, 2, 2}, {{0, 0, 0}, {5, 5, 0}, {9, 0, 0}}));
    ASSERT_EQ(pieces.size(), 2U);
    EXPECT_EQ(pieces[1].size(), 2U);
    EXPECT_EQ(pieces[1][0].x, 5);
}

TEST(SplinePieces, AreCubicWhereTheKnotsMakeNoSense)
{
    const std::vector<CPoint3D> points = {{0, 0, 0}, {1, 2, 0}, {2, 0, 0}, {3, 2, 0}, {4, 0, 0}};
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const std::vector<double>& knots : {std::vector<double>(),
                                             {1, 2, 3},
                                             std::vector<double>(9, 0.0),
                                             std::vector<double>(9, nan),
                                             {9, 8, 7, 6, 5, 4, 3, 2, 1}})
    {
        const auto pieces = PiecesOf(Spline(knots, points));
        ASSERT_EQ(pieces.size(), 2U);
        EXPECT_EQ(pieces[0].size(), 4U);
        EXPECT_EQ(pieces[0][0].x, 0);
        EXPECT_EQ(pieces[1][3].x, 4);
    }
}

TEST(SplinePieces, OfFewPointsAreOfALowerDegree)
{
    const auto pieces = PiecesOf(Spline({}, {{0, 0, 0}, {1, 2, 0}}));
    ASSERT_EQ(pieces.size(), 1U);
    EXPECT_EQ(pieces[0].size(), 2U);
}

TEST(SplinePieces, OfTooHighADegreeAreCubic)
{
    std::vector<double> knots(100, 0.0);
    knots.insert(knots.end(), 100, 1.0);
    const auto pieces = PiecesOf(Spline(knots, std::vector<CPoint3D>(100)));
    EXPECT_EQ(pieces.size(), 97U);
}

TEST(SplinePieces, OfOnePointAreNone)
{
    EXPECT_TRUE(PiecesOf(Spline({}, {{0, 0, 0}})).empty());
    EXPECT_TRUE(PiecesOf(CSplineDXF()).empty());
}

} // namespace velorx::test

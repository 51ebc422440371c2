// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfCurves.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace velorx::test {

namespace {

using namespace VelorExchange::dxf;
using VelorExchange::CPoint3D;

constexpr double kPi = 3.141592653589793;

// A point of the chain of Bezier curves: `at` from 0 to the number of its pieces.
CPoint3D PointOfChain(const std::vector<CPoint3D>& chain, double at)
{
    const auto pieces = static_cast<double>((chain.size() - 1) / 3);
    const double piece = std::min(std::floor(at), pieces - 1);
    const double t = at - piece;
    const CPoint3D* p = &chain[3 * static_cast<std::size_t>(piece)];
    const double s = 1 - t;
    const double b[] = {s * s * s, 3 * s * s * t, 3 * s * t * t, t * t * t};
    return {b[0] * p[0].x + b[1] * p[1].x + b[2] * p[2].x + b[3] * p[3].x,
            b[0] * p[0].y + b[1] * p[1].y + b[2] * p[2].y + b[3] * p[3].y,
            b[0] * p[0].z + b[1] * p[1].z + b[2] * p[2].z + b[3] * p[3].z};
}

// The definition of a spline itself, slow and plain.
double Basis(const std::vector<double>& knots, std::size_t i, std::size_t degree, double at)
{
    if (degree == 0) {
        return knots[i] <= at && at < knots[i + 1] ? 1.0 : 0.0;
    }
    const double left = knots[i + degree] - knots[i];
    const double right = knots[i + degree + 1] - knots[i + 1];
    return (left > 0 ? (at - knots[i]) / left * Basis(knots, i, degree - 1, at) : 0.0)
        + (right > 0 ? (knots[i + degree + 1] - at) / right * Basis(knots, i + 1, degree - 1, at)
                     : 0.0);
}

CPoint3D PointOfSpline(const CSplineDXF& spline, std::size_t degree, double at)
{
    CPoint3D point;
    for (std::size_t i = 0; i < spline.controlPoints.size(); ++i) {
        const double weight = Basis(spline.knots, i, degree, at);
        point.x += weight * spline.controlPoints[i].x;
        point.y += weight * spline.controlPoints[i].y;
        point.z += weight * spline.controlPoints[i].z;
    }
    return point;
}

double Distance(const CPoint3D& a, const CPoint3D& b)
{
    return std::sqrt((a.x - b.x) * (a.x - b.x) + (a.y - b.y) * (a.y - b.y)
                     + (a.z - b.z) * (a.z - b.z));
}

// The greatest distance between a spline of the third degree and one of `degree`, whose knots run from 0
// to `spans` in steps of 1.
double LargestGap(const CSplineDXF& cubic, const CSplineDXF& source, std::size_t degree, int spans)
{
    double most = 0;
    for (double at = 0; at < spans; at += 0.0625) {
        most = std::max(most,
                        Distance(PointOfSpline(cubic, 3, at), PointOfSpline(source, degree, at)));
    }
    return most;
}

CSplineDXF Quadratic()
{
    CSplineDXF spline;
    spline.knots = {0, 0, 0, 1, 2, 2, 2};
    spline.controlPoints = {{0, 0, 0}, {1, 2, 5}, {3, 3, 1}, {4, 0, 0}};
    return spline;
}

CEllipseDXF Ellipse(double start, double end)
{
    CEllipseDXF ellipse;
    ellipse.center = {10, 20, 3};
    ellipse.majorAxis = {4, 3, 0};
    ellipse.ratio = 0.5;
    ellipse.startParameter = start;
    ellipse.endParameter = end;
    return ellipse;
}

// How far the point is off the ellipse of the tests, as a part of its major axis.
double OffEllipse(const CPoint3D& point)
{
    const double x = point.x - 10;
    const double y = point.y - 20;
    const double along = (x * 4 + y * 3) / 25;
    const double across = (y * 4 - x * 3) / 25 / 0.5;
    return std::fabs(std::hypot(along, across) - 1);
}

} // namespace

TEST(DxfCurves, CubicSplineIsLeftAsItWas)
{
    CSplineDXF spline;
    spline.knots = {0, 0, 0, 0, 1, 1, 1, 1};
    spline.controlPoints = {{0, 0, 0}, {1, 2, 0}, {3, 3, 0}, {4, 0, 0}};
    const CSplineDXF before = spline;
    EXPECT_EQ(MakeCubic(spline), ECubic::AsItWas);
    EXPECT_EQ(spline.knots, before.knots);
    EXPECT_EQ(spline.controlPoints.size(), 4U);
}

TEST(DxfCurves, QuadraticSplineIsRaisedExactly)
{
    CSplineDXF spline = Quadratic();
    EXPECT_EQ(MakeCubic(spline), ECubic::Raised);
    EXPECT_EQ(spline.knots.size(), spline.controlPoints.size() + 4);
    EXPECT_LT(LargestGap(spline, Quadratic(), 2, 2), 1e-12);
}

TEST(DxfCurves, ChainOfLinesIsRaisedExactly)
{
    CSplineDXF spline;
    spline.knots = {0, 0, 1, 2, 2};
    spline.controlPoints = {{0, 0, 0}, {3, 4, 1}, {5, 0, 2}};
    const CSplineDXF before = spline;
    EXPECT_EQ(MakeCubic(spline), ECubic::Raised);
    EXPECT_LT(LargestGap(spline, before, 1, 2), 1e-12);
}

TEST(DxfCurves, SplineOfTheFifthDegreeIsMetNearly)
{
    CSplineDXF spline;
    spline.knots = {0, 0, 0, 0, 0, 0, 1, 1, 1, 1, 1, 1};
    spline.controlPoints = {{0, 0, 0}, {1, 4, 0}, {3, -4, 0}, {5, 4, 0}, {7, -2, 0}, {8, 0, 0}};
    const CSplineDXF before = spline;
    EXPECT_EQ(MakeCubic(spline), ECubic::Raised);
    double most = 0;
    for (double at = 0; at < 1; at += 0.01) {
        most = std::max(
            most,
            Distance(PointOfChain(BezierChain(spline), 16 * at), PointOfSpline(before, 5, at)));
    }
    EXPECT_LT(most, 0.001);
}

TEST(DxfCurves, SplineWithoutSoundKnotsGetsEvenOnes)
{
    CSplineDXF spline;
    spline.knots = {5, 3, 1};
    spline.controlPoints = {{0, 0, 0}, {1, 2, 0}, {3, 3, 0}, {4, 0, 0}, {6, 1, 0}};
    EXPECT_EQ(MakeCubic(spline), ECubic::AsItWas);
    EXPECT_EQ(spline.knots, (std::vector<double>{0, 0, 0, 0, 1, 2, 2, 2, 2}));
}

TEST(DxfCurves, DegreesBeyondAllSenseTakeNoTime)
{
    CSplineDXF spline;
    spline.controlPoints.resize(20000);
    spline.knots.assign(20000, 0.0);
    spline.knots.insert(spline.knots.end(), 20000, 1.0);
    EXPECT_EQ(MakeCubic(spline), ECubic::AsItWas);
    EXPECT_EQ(spline.knots.size(), 20004U);
}

TEST(DxfCurves, TwoControlPointsAreALine)
{
    CSplineDXF spline;
    spline.controlPoints = {{0, 0, 0}, {3, 6, 9}};
    EXPECT_EQ(MakeCubic(spline), ECubic::Raised);
    ASSERT_EQ(spline.controlPoints.size(), 4U);
    EXPECT_LT(Distance(spline.controlPoints[1], {1, 2, 3}), 1e-12);
    EXPECT_LT(Distance(spline.controlPoints[2], {2, 4, 6}), 1e-12);
}

TEST(DxfCurves, CurveRunsThroughFitPoints)
{
    CSplineDXF spline;
    spline.fitPoints = {{0, 0, 0}, {2, 3, 0}, {5, 1, 0}, {7, 7, 2}};
    EXPECT_EQ(MakeCubic(spline), ECubic::Fitted);
    for (std::size_t i = 0; i < spline.fitPoints.size(); ++i) {
        EXPECT_LT(Distance(spline.controlPoints[3 * i], spline.fitPoints[i]), 1e-12);
    }
    EXPECT_EQ(spline.knots, (std::vector<double>{0, 0, 0, 0, 1, 1, 1, 2, 2, 2, 3, 3, 3, 3}));
}

TEST(DxfCurves, SplineWithoutTwoPointsIsImpossible)
{
    CSplineDXF spline;
    EXPECT_EQ(MakeCubic(spline), ECubic::Impossible);
    spline.controlPoints = {{1, 1, 1}};
    spline.fitPoints = {{1, 1, 1}};
    EXPECT_EQ(MakeCubic(spline), ECubic::Impossible);
    EXPECT_EQ(spline.controlPoints.size(), 1U);
}

TEST(DxfCurves, WholeEllipseIsMetWithinOnePartIn100000)
{
    const CSplineDXF spline = SplineOf(Ellipse(0, 2 * kPi));
    ASSERT_EQ(spline.controlPoints.size(), 25U); // eight pieces
    const std::vector<CPoint3D> chain = BezierChain(spline);
    double most = 0;
    for (double at = 0; at <= 8; at += 0.05) {
        most = std::max(most, OffEllipse(PointOfChain(chain, at)));
    }
    EXPECT_LT(most, 1e-5);
    EXPECT_EQ(spline.controlPoints.front().z, 3);
}

TEST(DxfCurves, ArcOfAnEllipseRunsFromItsStartToItsEnd)
{
    const CSplineDXF spline = SplineOf(Ellipse(kPi / 2, kPi));
    EXPECT_LT(Distance(spline.controlPoints.front(), {10 - 1.5, 20 + 2, 3}), 1e-12);
    EXPECT_LT(Distance(spline.controlPoints.back(), {10 - 4, 20 - 3, 3}), 1e-12);
}

TEST(DxfCurves, ArcOfAnEllipseRunsOverItsSeam)
{
    const CSplineDXF spline = SplineOf(Ellipse(1.5 * kPi, 0.5 * kPi));
    EXPECT_LT(Distance(PointOfChain(BezierChain(spline), 2), {14, 23, 3}), 1e-9);
}

TEST(DxfCurves, EqualParametersAreAWholeEllipse)
{
    EXPECT_EQ(SplineOf(Ellipse(0, 0)).controlPoints.size(), 25U);
}

TEST(DxfCurves, EllipseKeepsItsHead)
{
    CEllipseDXF ellipse = Ellipse(0, 1);
    ellipse.layer = QStringLiteral("A");
    ellipse.color = 0xFF;
    EXPECT_EQ(SplineOf(ellipse).layer, "A");
    EXPECT_EQ(SplineOf(ellipse).color, 0xFFU);
}

TEST(DxfCurves, EllipseWithoutParametersHasNoPoints)
{
    const double none = std::numeric_limits<double>::quiet_NaN();
    EXPECT_TRUE(SplineOf(Ellipse(none, 1)).controlPoints.empty());
    EXPECT_TRUE(
        SplineOf(Ellipse(0, std::numeric_limits<double>::infinity())).controlPoints.empty());
}

} // namespace velorx::test

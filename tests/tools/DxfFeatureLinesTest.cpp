// SPDX-License-Identifier: MIT
#include "tests/tools/DxfStream.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace velorx::test {

using VelorExchange::CPoint3D;

namespace {

constexpr char kCurves[] = "curves, written in chords";

// How far the vertices are from the circle, and their chords.
double GapToCircle(const CFeatureLine& line, double x, double y, double radius)
{
    double gap = 0.0;
    for (std::size_t i = 1; i < line.size(); ++i) {
        const double middleX = (line[i - 1].x + line[i].x) / 2 - x;
        const double middleY = (line[i - 1].y + line[i].y) / 2 - y;
        gap = std::max({gap, std::fabs(std::hypot(line[i].x - x, line[i].y - y) - radius),
                        std::fabs(std::hypot(middleX, middleY) - radius)});
    }
    return gap;
}

} // namespace

TEST(DxfFeatureLines, PointKeepsItsPlaceAndColour)
{
    CDxfStream stream;
    const auto& read = stream.Entities("0 POINT, 8 Wells, 62 1, 10 1, 20 2, 30 3").Read();
    ASSERT_EQ(read.points.size(), 1U);
    EXPECT_EQ(read.points[0].position.z, 3);
    EXPECT_TRUE(read.points[0].is3D);
    EXPECT_EQ(read.points[0].symbol.color, 0xFFU);
    EXPECT_EQ(read.points[0].layer, "Wells");
    EXPECT_STREQ(read.points[0].kind, "POINT");
    EXPECT_FALSE(read.points[0].isInBlock);
    EXPECT_EQ(stream.Met("POINT"), "1+0");
    EXPECT_EQ(stream.Losses(), "");
}

TEST(DxfFeatureLines, LineKeepsWhatIsDrawn)
{
    CDxfStream stream;
    stream.Table("0 LAYER, 2 Roads, 62 3, 70 0, 6 CONTINUOUS");
    stream.Table("0 LTYPE, 2 Dashed, 70 0, 3 - -, 72 65, 73 2, 40 3, 49 2, 49 -1");
    const auto& read =
        stream.Entities("0 LINE, 8 Roads, 370 35, 6 DASHED, 10 1, 20 2, 11 3, 21 4").Read();
    ASSERT_EQ(read.lines.size(), 1U);
    EXPECT_EQ(PointsOf(read.lines[0].points), "(1 2) (3 4)");
    EXPECT_EQ(read.lines[0].stroke.color, 0xFF00U);
    EXPECT_EQ(read.lines[0].stroke.width, 0.35);
    ASSERT_NE(read.lines[0].stroke.lineType, nullptr);
    EXPECT_EQ(read.lines[0].stroke.lineType->name, "Dashed");
    EXPECT_EQ(read.lines[0].stroke.lineType->dashes, (std::vector<double>{2, -1}));
    EXPECT_FALSE(read.lines[0].is3D);
}

TEST(DxfFeatureLines, LineTakesTheWeightOfItsLayer)
{
    CDxfStream stream;
    stream.Table("0 LAYER, 2 Roads, 62 3, 370 50");
    const auto& read = stream.Entities("0 LINE, 8 roads, 370 -1, 11 3, 21 4").Read();
    ASSERT_EQ(read.lines.size(), 1U);
    EXPECT_EQ(read.lines[0].stroke.width, 0.5);
    EXPECT_EQ(read.lines[0].layer, "Roads");
    EXPECT_EQ(read.lines[0].stroke.lineType, nullptr);
}

TEST(DxfFeatureLines, LineWithoutALayerIsOnLayer0)
{
    CDxfStream stream;
    EXPECT_EQ(stream.Entities("0 LINE, 11 3, 21 4").Read().lines.at(0).layer, "0");
}

TEST(DxfFeatureLines, LineWithHeightsIsInSpace)
{
    CDxfStream stream;
    const auto& read = stream.Entities("0 LINE, 8 0, 30 5, 11 3, 31 6").Read();
    EXPECT_EQ(PointsOf(read.lines.at(0).points), "(0 0 5) (3 0 6)");
    EXPECT_TRUE(read.lines.at(0).is3D);
}

TEST(DxfFeatureLines, NumbersThatAreNoneAreListed)
{
    CDxfStream stream;
    const auto& read = stream.Entities("0 LINE, 8 Roads, 10 nan, 11 3, 21 4").Read();
    EXPECT_TRUE(read.lines.empty());
    EXPECT_EQ(stream.Lost("LINE, with a number that is none: left out"), "1: Roads 1");
    EXPECT_EQ(stream.Met("LINE"), "1+0");
}

TEST(DxfFeatureLines, LinesWithoutAnEndAreListed)
{
    CDxfStream stream;
    stream.Entities("0 XLINE, 8 Aux, 11 1, 21 1, 0 RAY, 8 Aux, 11 1, 21 1").Read();
    EXPECT_EQ(stream.Lost("XLINE, a line without an end: left out"), "1: Aux 1");
    EXPECT_EQ(stream.Lost("RAY, a line without an end: left out"), "1: Aux 1");
}

TEST(DxfFeatureLines, ArcRunsCounterClockwise)
{
    CDxfStream stream;
    const auto& read = stream.Entities("0 ARC, 8 A, 10 5, 20 6, 40 10, 50 350, 51 80").Read(0.001);
    ASSERT_EQ(read.lines.size(), 1U);
    const CFeatureLine& line = read.lines[0].points;
    EXPECT_LE(GapToCircle(line, 5, 6, 10), 0.001 * (1 + 1e-9));
    EXPECT_NEAR(line.front().y, 6 - 10 * std::sin(10 * M_PI / 180), 1e-9);
    EXPECT_NEAR(line.back().y, 6 + 10 * std::sin(80 * M_PI / 180), 1e-9);
    EXPECT_EQ(stream.Lost(kCurves), "1: A 1");
}

TEST(DxfFeatureLines, CircleIsAnAreaWithoutAFill)
{
    CDxfStream stream;
    const auto& read = stream.Entities("0 CIRCLE, 8 0, 62 5, 10 5, 20 6, 40 10").Read(0.001);
    ASSERT_EQ(read.areas.size(), 1U);
    EXPECT_STREQ(read.areas[0].kind, "CIRCLE");
    EXPECT_EQ(read.areas[0].fill.kind, EFeatureFill::None);
    EXPECT_TRUE(read.areas[0].stroke.isVisible);
    EXPECT_EQ(read.areas[0].stroke.color, 0xFF0000U);
    CFeatureLine ring = read.areas[0].rings.at(0);
    EXPECT_NE(PointsOf({ring.front()}), PointsOf({ring.back()}));
    ring.push_back(ring.front());
    EXPECT_LE(GapToCircle(ring, 5, 6, 10), 0.001 * (1 + 1e-9));
}

TEST(DxfFeatureLines, CircleWithoutARadiusIsListed)
{
    CDxfStream stream;
    EXPECT_TRUE(stream.Entities("0 CIRCLE, 8 A, 40 0").Read().areas.empty());
    EXPECT_EQ(stream.Lost("CIRCLE, nothing to draw: left out"), "1: A 1");
}

TEST(DxfFeatureLines, EllipseReachesItsAxes)
{
    CDxfStream stream;
    const auto& read =
        stream.Entities("0 ELLIPSE, 8 0, 10 0, 20 0, 11 0, 21 10, 40 0.5, 41 0, 42 0").Read();
    ASSERT_EQ(read.areas.size(), 1U);
    double width = 0;
    double height = 0;
    for (const CPoint3D& p : read.areas[0].rings.at(0)) {
        width = std::max(width, p.x);
        height = std::max(height, p.y);
        EXPECT_NEAR(std::hypot(p.x / 5, p.y / 10), 1, 1e-9);
    }
    EXPECT_NEAR(width, 5, 0.01);
    EXPECT_NEAR(height, 10, 0.01);
}

TEST(DxfFeatureLines, EllipticArcIsALine)
{
    CDxfStream stream;
    const auto& read =
        stream.Entities("0 ELLIPSE, 8 0, 11 10, 21 0, 40 0.5, 41 0, 42 1.5707963267948966").Read();
    ASSERT_EQ(read.lines.size(), 1U);
    EXPECT_EQ(PointsOf({read.lines[0].points.front()}), "(10 0)");
    EXPECT_EQ(PointsOf({read.lines[0].points.back()}), "(0 5)");
}

TEST(DxfFeatureLines, SplineFollowsItsPolynomials)
{
    CDxfStream stream;
    // one parabola: y = x (20 - x) / 10
    const auto& read = stream
                           .Entities("0 SPLINE, 8 0, 40 0, 40 0, 40 0, 40 1, 40 1, 40 1, "
                                     "10 0, 20 0, 30 0, 10 10, 20 20, 30 0, 10 20, 20 0, 30 0")
                           .Read(0.001);
    ASSERT_EQ(read.lines.size(), 1U);
    EXPECT_GT(read.lines[0].points.size(), 20U);
    for (const CPoint3D& p : read.lines[0].points) {
        EXPECT_NEAR(p.y, p.x * (20 - p.x) / 10, 1e-9);
    }
}

TEST(DxfFeatureLines, SplineOfFitPointsRunsThroughThem)
{
    CDxfStream stream;
    const auto& read = stream
                           .Entities("0 SPLINE, 8 0, 11 0, 21 0, 31 0, 11 10, 21 5, 31 0, "
                                     "11 20, 21 0, 31 0")
                           .Read();
    ASSERT_EQ(read.lines.size(), 1U);
    const auto& points = read.lines[0].points;
    EXPECT_EQ(PointsOf({points.front(), points.back()}), "(0 0) (20 0)");
    EXPECT_TRUE(std::any_of(points.begin(), points.end(),
                            [](const CPoint3D& p) { return PointsOf({p}) == "(10 5)"; }));
}

TEST(DxfFeatureLines, SplineOfOnePointIsListed)
{
    CDxfStream stream;
    stream.Entities("0 SPLINE, 8 A, 10 0, 20 0, 30 0").Read();
    EXPECT_EQ(stream.Lost("SPLINE, nothing to draw: left out"), "1: A 1");
}

TEST(DxfFeatureLines, PolylineKeepsItsWidthAndHeight)
{
    CDxfStream stream;
    const auto& read = stream
                           .Entities("0 LWPOLYLINE, 8 0, 90 3, 70 0, 43 0.5, 38 7, 10 0, 20 0, "
                                     "10 10, 20 0, 10 10, 20 10")
                           .Read();
    ASSERT_EQ(read.lines.size(), 1U);
    EXPECT_EQ(PointsOf(read.lines[0].points), "(0 0 7) (10 0 7) (10 10 7)");
    EXPECT_EQ(read.lines[0].stroke.planWidth, 0.5);
    EXPECT_TRUE(read.lines[0].is3D);
}

TEST(DxfFeatureLines, ClosedPolylineIsAnAreaWithoutAFill)
{
    CDxfStream stream;
    const auto& read = stream
                           .Entities("0 LWPOLYLINE, 8 0, 90 3, 70 1, 10 0, 20 0, 42 0, 10 10, "
                                     "20 0, 42 0, 10 10, 20 10, 42 0")
                           .Read();
    ASSERT_EQ(read.areas.size(), 1U);
    EXPECT_EQ(PointsOf(read.areas[0].rings.at(0)), "(0 0) (10 0) (10 10)");
    EXPECT_EQ(read.areas[0].fill.kind, EFeatureFill::None);
    EXPECT_EQ(stream.Losses(), "");
}

TEST(DxfFeatureLines, PolylineThatEndsWhereItStartsIsAnAreaToo)
{
    CDxfStream stream;
    const auto& read = stream
                           .Entities("0 LWPOLYLINE, 8 0, 90 4, 70 0, 10 0, 20 0, 10 10, 20 0, "
                                     "10 10, 20 10, 10 0.00001, 20 0")
                           .Read();
    ASSERT_EQ(read.areas.size(), 1U);
    EXPECT_EQ(PointsOf(read.areas[0].rings.at(0)), "(0 0) (10 0) (10 10)");
}

TEST(DxfFeatureLines, PolylineThatGoesThereAndBackIsALine)
{
    CDxfStream stream;
    const auto& read =
        stream.Entities("0 LWPOLYLINE, 8 0, 90 3, 70 0, 10 0, 20 0, 10 10, 20 0, 10 0, 20 0")
            .Read();
    ASSERT_EQ(read.lines.size(), 1U);
    EXPECT_EQ(PointsOf(read.lines[0].points), "(0 0) (10 0) (0 0)");
}

TEST(DxfFeatureLines, BulgesOfAClosedPolylineBend)
{
    CDxfStream stream;
    // a square with a half circle to the right; its first segment is the bent one
    const auto& read = stream
                           .Entities("0 LWPOLYLINE, 8 A, 90 4, 70 1, 38 3, 10 10, 20 0, 42 1, "
                                     "10 10, 20 10, 42 0, 10 0, 20 10, 42 0, 10 0, 20 0, 42 0")
                           .Read(0.001);
    ASSERT_EQ(read.areas.size(), 1U);
    const CFeatureLine& ring = read.areas[0].rings.at(0);
    double right = 0;
    for (const CPoint3D& p : ring) {
        right = std::max(right, p.x);
        EXPECT_EQ(p.z, 3);
    }
    EXPECT_NEAR(right, 15, 0.001);
    EXPECT_EQ(PointsOf({ring.back()}), "(0 0 3)");
    EXPECT_EQ(stream.Lost(kCurves), "1: A 1");
}

TEST(DxfFeatureLines, ClosedPolylineOfTwoArcsIsACircle)
{
    CDxfStream stream;
    const auto& read = stream
                           .Entities("0 LWPOLYLINE, 8 A, 90 2, 70 1, 43 1, 10 0, 20 0, 42 1, "
                                     "10 10, 20 0, 42 1")
                           .Read(0.001);
    ASSERT_EQ(read.areas.size(), 1U) << stream.Losses();
    EXPECT_LE(GapToCircle(read.areas[0].rings.at(0), 5, 0, 5), 0.001 * (1 + 1e-9));
    EXPECT_EQ(stream.Losses(), "1 curves, written in chords\n");
}

TEST(DxfFeatureLines, PolylineOfOneVertexIsListed)
{
    CDxfStream stream;
    stream.Entities("0 LWPOLYLINE, 8 A, 90 1, 10 0, 20 0").Read();
    EXPECT_EQ(stream.Lost("LWPOLYLINE, nothing to draw: left out"), "1: A 1");
}

TEST(DxfFeatureLines, PolylineInSpaceKeepsHeights)
{
    CDxfStream stream;
    const auto& read = stream
                           .Entities("0 POLYLINE, 8 0, 66 1, 70 8, 0 VERTEX, 10 0, 20 0, 30 1, "
                                     "0 VERTEX, 10 5, 20 0, 30 2, 0 SEQEND")
                           .Read();
    ASSERT_EQ(read.lines.size(), 1U);
    EXPECT_EQ(PointsOf(read.lines[0].points), "(0 0 1) (5 0 2)");
    EXPECT_TRUE(read.lines[0].is3D);
}

TEST(DxfFeatureLines, ClosedPolylineOfTheOldFormBendsBackToItsStart)
{
    CDxfStream stream;
    const auto& read = stream
                           .Entities("0 POLYLINE, 8 0, 66 1, 70 1, 0 VERTEX, 10 0, 20 0, "
                                     "0 VERTEX, 10 10, 20 0, 42 1, 0 SEQEND")
                           .Read(0.001);
    ASSERT_EQ(read.areas.size(), 1U);
    double top = 0;
    for (const CPoint3D& p : read.areas[0].rings.at(0)) {
        top = std::max(top, p.y);
    }
    EXPECT_NEAR(top, 5, 0.001);
}

TEST(DxfFeatureLines, ColourByLayerWrittenOutIsThatOfTheLayer)
{
    CDxfStream stream;
    stream.Table("0 LAYER, 2 Red, 62 1");
    const auto& read = stream.Entities("0 LINE, 8 red, 62 256, 11 1").Read();
    EXPECT_EQ(read.lines.at(0).stroke.color, 0xFFU);
    EXPECT_EQ(stream.Losses(), "");
}

TEST(DxfFeatureLines, ColourByLayerAmongWhiteLinesIsListed)
{
    CDxfStream stream;
    stream.Table("0 LAYER, 2 Red, 62 1");
    const auto& read =
        stream.Entities("0 LINE, 8 Red, 62 256, 11 1, 0 LINE, 8 Red, 62 7, 11 1").Read();
    EXPECT_EQ(read.lines.at(0).stroke.color, 0U);
    EXPECT_EQ(stream.Lost("elements with the colour \"by layer\" written out, in colour 7"),
              "1: Red 1");
}

TEST(DxfFeatureLines, LettersOfLineTypesAreListed)
{
    CDxfStream stream;
    stream.Table("0 LTYPE, 2 GAS, 49 1, 74 2, 340 2A, 9 G, 49 -1, 0 STYLE, 5 2A, 2 Plan");
    stream.Entities("0 LINE, 8 A, 6 GAS, 11 1").Read();
    EXPECT_EQ(stream.Lost("line types with letters or shapes, drawn with their dashes alone"),
              "1: ");
}

TEST(DxfFeatureLines, PointsInThePlanStayThereWhateverTheirPlane)
{
    CDxfStream stream;
    const auto& read =
        stream
            .Entities(
                "0 POINT, 8 A, 10 5, 20 6, 210 0, 220 0, 230 -1, "
                "0 ELLIPSE, 8 A, 10 5, 20 6, 11 2, 21 0, 40 0.5, 41 0, 42 1.5707963267948966, "
                "210 0, 220 0, 230 -1, "
                "0 SPLINE, 8 A, 210 0, 220 0, 230 -1, 40 0, 40 0, 40 1, 40 1, 10 1, 20 1, 30 0, "
                "10 2, 20 3, 30 0")
            .Read();
    EXPECT_EQ(read.points.at(0).position.x, 5);
    ASSERT_EQ(read.lines.size(), 2U);
    const CFeatureLine& arc = read.lines[0].points;
    EXPECT_EQ(PointsOf({arc.front(), arc.back()}), "(5 5) (7 6)");
    EXPECT_EQ(PointsOf(read.lines[1].points), "(1 1) (2 3)");
    EXPECT_EQ(stream.Losses(), "1 curves, written in chords\n");
}

TEST(DxfFeatureLines, BulgesOfAPlaneSeenFromBehindTurnOver)
{
    CDxfStream stream;
    const auto& read =
        stream
            .Entities("0 LWPOLYLINE, 8 A, 90 2, 10 0, 20 0, 42 1, 10 10, 20 0, 42 0, "
                      "210 0, 220 0, 230 -1")
            .Read(0.001);
    ASSERT_EQ(read.lines.size(), 1U);
    double bottom = 0;
    for (const CPoint3D& p : read.lines[0].points) {
        bottom = std::min(bottom, p.y);
    }
    EXPECT_EQ(read.lines[0].points.back().x, -10);
    EXPECT_NEAR(bottom, -5, 0.001);
}

TEST(DxfFeatureLines, LeaderIsALineWithAnArrowHead)
{
    CDxfStream stream;
    stream.Table("0 DIMSTYLE, 2 Plan, 41 3");
    const auto& read =
        stream.Entities("0 LEADER, 8 A, 3 Plan, 62 1, 71 1, 76 2, 10 5, 20 6, 10 5, 20 16").Read();
    ASSERT_EQ(read.lines.size(), 1U) << stream.Losses();
    EXPECT_EQ(PointsOf(read.lines[0].points), "(5 6) (5 16)");
    EXPECT_EQ(read.lines[0].stroke.color, 0xFFU);
    ASSERT_EQ(read.areas.size(), 1U);
    EXPECT_EQ(PointsOf(read.areas[0].rings.at(0)), "(5 6) (4.5 9) (5.5 9)");
    EXPECT_EQ(stream.Lost("leaders, drawn as lines or curves with an arrow head"), "1: A 1");
    EXPECT_EQ(stream.Lost("LEADER, not read: left out"), "");
    EXPECT_EQ(stream.Met("LWPOLYLINE"), "1+0");
}

TEST(DxfFeatureLines, MeshThatTellsItsFacesGoesThroughItsVerticesAlone)
{
    CDxfStream stream;
    const auto& read = stream
                           .Entities("0 POLYLINE, 8 A, 70 64, 0 VERTEX, 70 192, 10 5, 20 6, 30 1, "
                                     "0 VERTEX, 70 192, 10 7, 20 6, 30 2, "
                                     "0 VERTEX, 70 128, 10 0, 20 0, 71 1, 72 2, 0 SEQEND")
                           .Read();
    ASSERT_EQ(read.lines.size(), 1U) << stream.Losses();
    EXPECT_EQ(PointsOf(read.lines[0].points), "(5 6 1) (7 6 2)");
}

TEST(DxfFeatureLines, MultilineBecomesItsLines)
{
    CDxfStream stream;
    stream.Objects("0 MLINESTYLE, 100 AcDbMlineStyle, 2 Wall, 70 0, 3 , 62 256, 51 90, 52 90, "
                   "71 2, 49 1, 62 1, 6 BYLAYER, 49 -1, 62 256, 6 BYLAYER");
    const auto& read =
        stream
            .Entities("0 MLINE, 8 A, 62 5, 2 Wall, 40 2, 70 1, 71 1, 72 3, 73 2, 10 0, 20 0, 30 0, "
                      "11 0, 21 0, 31 0, 12 1, 22 0, 32 0, 13 0, 23 1, 33 0, "
                      "11 10, 21 0, 31 0, 12 0, 22 1, 32 0, 13 -0.70710678, 23 0.70710678, 33 0, "
                      "11 10, 21 10, 31 0, 12 0, 22 1, 32 0, 13 -1, 23 0, 33 0")
            .Read();
    ASSERT_EQ(read.lines.size(), 2U) << stream.Losses();
    EXPECT_EQ(PointsOf(read.lines[0].points), "(0 2) (8 2) (8 10)");
    EXPECT_EQ(PointsOf(read.lines[1].points), "(0 -2) (12 -2) (12 10)");
    EXPECT_EQ(read.lines[0].stroke.color, 0xFFU);
    EXPECT_EQ(read.lines[1].stroke.color, 0xFF0000U);
    EXPECT_EQ(stream.Met("MLINE"), "1+0");
}

TEST(DxfFeatureLines, MultilineWithoutAStyleIsTwoLines)
{
    CDxfStream stream;
    const auto& read = stream
                           .Entities("0 MLINE, 8 A, 2 Wall, 40 1, 70 1, 71 1, 72 2, 73 2, "
                                     "11 0, 21 0, 31 0, 12 1, 22 0, 32 0, 13 0, 23 1, 33 0, "
                                     "11 10, 21 0, 31 0, 12 1, 22 0, 32 0, 13 0, 23 1, 33 0")
                           .Read();
    ASSERT_EQ(read.lines.size(), 2U);
    EXPECT_EQ(PointsOf(read.lines[0].points), "(0 0.5) (10 0.5)");
    EXPECT_EQ(stream.Lost("multilines whose style is not in the drawing, drawn as two lines"),
              "1: A 1");
}

} // namespace velorx::test

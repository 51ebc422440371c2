// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfHatchOutlines.h"

#include <gtest/gtest.h>

#include <cmath>

namespace velorx::test {

namespace {

using namespace VelorExchange::dxf;
using VelorExchange::CPoint3D;

constexpr double kTolerance = 1e-6;

CLWPolylineDXF Lines(const std::vector<CPoint3D>& points)
{
    CLWPolylineDXF edge;
    for (const CPoint3D& point : points) {
        edge.vertices.push_back({{point.x, point.y, 0}, point.z});
    }
    return edge;
}

CArcDXF Arc(const CPoint3D& center, double radius, double start, double end)
{
    CArcDXF arc;
    arc.center = center;
    arc.radius = radius;
    arc.startAngle = start;
    arc.endAngle = end;
    return arc;
}

CHatchDXF Hatch(const std::vector<CHatchLoopDXF>& loops)
{
    CHatchDXF hatch;
    hatch.loops = loops;
    return hatch;
}

// "(x y bulge)" for each vertex, three decimals; bars between rings.
std::string Shown(const SHatchRings& rings)
{
    std::string text;
    for (const CHatchRing& ring : rings.rings) {
        text += text.empty() ? "" : "|";
        for (const CPoint3D& vertex : ring) {
            char shown[100];
            std::snprintf(shown, sizeof shown, "(%.3g %.3g%s", vertex.x + 0.0, vertex.y + 0.0,
                          vertex.z == 0 ? "" : " ");
            text += shown;
            std::snprintf(shown, sizeof shown, "%.3f", vertex.z);
            text += (vertex.z == 0 ? "" : shown) + std::string(")");
        }
    }
    return text;
}

std::string RingsOfLoop(const CHatchLoopDXF& loop)
{
    return Shown(RingsOf(Hatch({loop}), kTolerance));
}

} // namespace

TEST(DxfHatchOutlines, PolylineLosesItsClosingVertex)
{
    EXPECT_EQ(RingsOfLoop({Lines({{0, 0, 0}, {4, 0, 0}, {4, 3, 0}, {0, 0, 0}})}),
              "(0 0)(4 0)(4 3)");
}

TEST(DxfHatchOutlines, PolylineKeepsItsBulges)
{
    EXPECT_EQ(RingsOfLoop({Lines({{0, 0, 1}, {4, 0, 0.5}, {4, 3, 0}})}),
              "(0 0 1.000)(4 0 0.500)(4 3)");
}

TEST(DxfHatchOutlines, CircleOfTwoBulgesIsARing)
{
    EXPECT_EQ(RingsOfLoop({Lines({{0, 0, 1}, {4, 0, 1}})}), "(0 0 1.000)(4 0 1.000)");
}

TEST(DxfHatchOutlines, WholeArcBecomesTwoBulges)
{
    EXPECT_EQ(RingsOfLoop({Arc({5, 5, 0}, 2, 0, 360)}), "(7 5 1.000)(3 5 1.000)");
}

TEST(DxfHatchOutlines, ArcJoinsLinesAsABulge)
{
    EXPECT_EQ(RingsOfLoop({Lines({{2, 0, 0}, {0, 0, 0}}), Lines({{0, 0, 0}, {0, 2, 0}}),
                           Arc({0, 0, 0}, 2, 0, 90)}),
              "(2 0)(0 0)(0 2 -0.414)");
}

TEST(DxfHatchOutlines, ClockwiseArcRunsTheOtherWay)
{
    CArcDXF arc = Arc({0, 0, 0}, 2, 270, 360); // angles told with the other sign: 90 down to 0
    arc.counterClockwise = false;
    EXPECT_EQ(RingsOfLoop({Lines({{2, 0, 0}, {0, 0, 0}}), Lines({{0, 0, 0}, {0, 2, 0}}), arc}),
              "(2 0)(0 0)(0 2 -0.414)");
}

TEST(DxfHatchOutlines, EdgesAreTurnedToMeetTheirNeighbours)
{
    EXPECT_EQ(RingsOfLoop({Lines({{4, 0, 0}, {0, 0, 0}}), Lines({{4, 3, 0}, {4, 0, 0}}),
                           Lines({{0, 0, 0}, {4, 3, 0}})}),
              "(0 0)(4 0)(4 3)");
}

TEST(DxfHatchOutlines, TurnedEdgeTakesItsBulgesAlong)
{
    EXPECT_EQ(RingsOfLoop({Lines({{0, 0, 0}, {4, 0, 0}}), Lines({{4, 3, 1}, {4, 0, 0}}),
                           Lines({{4, 3, 0}, {0, 0, 0}})}),
              "(0 0)(4 0 -1.000)(4 3)");
}

TEST(DxfHatchOutlines, VerticesNearerThanTheToleranceAreOne)
{
    const SHatchRings rings = RingsOf(
        Hatch({{Lines({{0, 0, 0}, {0.4, 0, 0.5}, {4, 0, 0}, {4, 3, 0}, {0.3, 0.3, 0}})}}), 0.5);
    EXPECT_EQ(Shown(rings), "(0 0 0.500)(4 0)(4 3)");
}

TEST(DxfHatchOutlines, EllipseBecomesChordsNearIt)
{
    CEllipseDXF ellipse;
    ellipse.center = {10, 20, 0};
    ellipse.majorAxis = {8, 0, 0};
    ellipse.ratio = 0.5;
    ellipse.startParameter = 0;
    ellipse.endParameter = 360;
    const SHatchRings rings = RingsOf(Hatch({{ellipse}}), kTolerance);
    EXPECT_EQ(rings.curvedEdges, 1);
    ASSERT_EQ(rings.rings.size(), 1U);
    const CHatchRing& ring = rings.rings[0];
    EXPECT_LT(ring.size(), 100U);
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const CPoint3D& next = ring[(i + 1) % ring.size()];
        const double x = (ring[i].x + next.x) / 2 - 10;
        const double y = (ring[i].y + next.y) / 2 - 20;
        EXPECT_GT(std::hypot(x / 8, y / 4), 1 - 0.0011) << i;
        EXPECT_NEAR(std::hypot((ring[i].x - 10) / 8, (ring[i].y - 20) / 4), 1, 1e-9);
    }
}

TEST(DxfHatchOutlines, SplineBecomesChordsNearIt)
{
    CSplineDXF spline;
    spline.knots = {0, 0, 0, 0, 1, 1, 1, 1};
    spline.controlPoints = {{0, 0, 0}, {0, 40, 0}, {30, 40, 0}, {30, 0, 0}};
    const SHatchRings rings =
        RingsOf(Hatch({{spline, Lines({{30, 0, 0}, {0, 0, 0}})}}), kTolerance);
    EXPECT_EQ(rings.curvedEdges, 1);
    ASSERT_EQ(rings.rings.size(), 1U);
    double top = 0;
    for (const CPoint3D& vertex : rings.rings[0]) {
        top = std::max(top, vertex.y);
    }
    EXPECT_NEAR(top, 30, 0.04); // a thousandth of the extent of the control points
}

TEST(DxfHatchOutlines, LargestRingComesFirst)
{
    EXPECT_EQ(Shown(RingsOf(Hatch({{Lines({{1, 1, 0}, {2, 1, 0}, {2, 2, 0}})},
                                   {Lines({{0, 0, 0}, {9, 0, 0}, {9, 9, 0}})},
                                   {Lines({{3, 3, 0}, {4, 3, 0}, {4, 4, 0}})}}),
                            kTolerance)),
              "(0 0)(9 0)(9 9)|(1 1)(2 1)(2 2)|(3 3)(4 3)(4 4)");
}

TEST(DxfHatchOutlines, MarkedBoundariesAreRingsWithoutBulges)
{
    CHatchDXF hatch = Hatch({{}});
    hatch.markedBoundaries = {{{0, 0, 5}, {9, 0, 5}, {9, 9, 5}}};
    EXPECT_EQ(Shown(RingsOf(hatch, kTolerance)), "(0 0)(9 0)(9 9)");
}

TEST(DxfHatchOutlines, BoundariesThatEncloseNothingAreCounted)
{
    const SHatchRings rings = RingsOf(
        Hatch({{Lines({{0, 0, 0}, {9, 0, 0}})}, {Lines({{0, 0, 1}, {9, 0, 0}})}, {}}), kTolerance);
    EXPECT_TRUE(rings.rings.empty());
    EXPECT_EQ(rings.dropped, 2);
}

TEST(DxfHatchOutlines, PlainLinesRunAt45DegreesToTheHatch)
{
    CHatchDXF hatch;
    hatch.angle = 10;
    const std::vector<CHatchLineDXF> lines =
        PlainLines(hatch, {{0, 0, 0}, {40, 0, 0}, {40, 20, 0}});
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0].angle, 55);
    EXPECT_NEAR(std::hypot(lines[0].offsetX, lines[0].offsetY), 1, 1e-12);
}

TEST(DxfHatchOutlines, PlainLinesOfADoubleHatchCross)
{
    CHatchDXF hatch;
    hatch.style.isDouble = true;
    const std::vector<CHatchLineDXF> lines = PlainLines(hatch, {{0, 0, 0}, {1, 0, 0}});
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[1].angle - lines[0].angle, 90);
}

} // namespace velorx::test

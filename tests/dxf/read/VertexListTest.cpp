// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/read/VertexList_p.h"

#include <limits>

using namespace VelorExchange;
using namespace VelorExchange::dxf;

namespace {

std::vector<CVertexDXF> Vertices(const CVertexDXF& first, const CVertexDXF& second)
{
    std::vector<CVertexDXF> vertices;
    AppendVertex(vertices, first);
    AppendVertex(vertices, second);
    return vertices;
}

} // namespace

TEST(VertexList, KeepsVerticesThatAreApart)
{
    const auto vertices = Vertices({{1, 2, 3}, 0.5}, {{1, 2.001, 3}, 0.25});
    ASSERT_EQ(vertices.size(), 2U);
    EXPECT_EQ(vertices[0].point.y, 2);
    EXPECT_EQ(vertices[0].bulge, 0.5);
    EXPECT_EQ(vertices[1].point.y, 2.001);
    EXPECT_EQ(vertices[1].bulge, 0.25);
}

TEST(VertexList, LetsTheLaterOfTwoCoincidingVerticesStand)
{
    const auto vertices = Vertices({{1, 2, 3}, 0.5}, {{1.00005, 2, 3}, 0.25});
    ASSERT_EQ(vertices.size(), 1U);
    EXPECT_EQ(vertices[0].point.x, 1.00005);
    EXPECT_EQ(vertices[0].bulge, 0.25);
}

TEST(VertexList, KeepsVerticesAboveEachOther)
{
    EXPECT_EQ(Vertices({{1, 2, 3}, 0}, {{1, 2, 4}, 0}).size(), 2U);
}

TEST(VertexList, ComparesWithTheLastVertexAlone)
{
    auto vertices = Vertices({{1, 2, 3}, 0}, {{5, 6, 7}, 0});
    AppendVertex(vertices, {{1, 2, 3}, 0});
    EXPECT_EQ(vertices.size(), 3U);
}

TEST(VertexList, TakesOneTenThousandthOfDistanceAsTheSquareSays)
{
    EXPECT_EQ(Vertices({{0, 0, 0}, 0}, {{1e-4, 0, 0}, 0}).size(), 1e-4 * 1e-4 < 1e-08 ? 1U : 2U);
    EXPECT_EQ(Vertices({{0, 0, 0}, 0}, {{1.0001e-4, 0, 0}, 0}).size(), 2U);
    EXPECT_EQ(Vertices({{0, 0, 0}, 0}, {{0.9999e-4, 0, 0}, 0}).size(), 1U);
}

TEST(VertexList, KeepsVerticesThatAreNoNumbers)
{
    constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(Vertices({{kNaN, 0, 0}, 0}, {{kNaN, 0, 0}, 0}).size(), 2U);
}

TEST(VertexList, ComparesPointsInThePlan)
{
    std::vector<CPoint3D> points;
    AppendPoint(points, {1, 2, 3});
    AppendPoint(points, {1, 2, 4});
    ASSERT_EQ(points.size(), 1U);
    EXPECT_EQ(points[0].z, 4);
    AppendPoint(points, {1, 2.5, 4});
    EXPECT_EQ(points.size(), 2U);
}

TEST(VertexList, ClosesWithTheBulgeAsHeight)
{
    const CVertexDXF closing = ClosingVertex({{1, 2, 3}, 0.5});
    EXPECT_EQ(closing.point.x, 1);
    EXPECT_EQ(closing.point.y, 2);
    EXPECT_EQ(closing.point.z, 0.5);
    EXPECT_EQ(closing.bulge, 0);
}

TEST(VertexList, GivesZeroPastTheEndOfAList)
{
    EXPECT_EQ(ItemOrZero({7, 8}, 1), 8);
    EXPECT_EQ(ItemOrZero({7, 8}, 2), 0);
}

// SPDX-License-Identifier: MIT
#include "tools/velorx/features/RingBridge.h"

#include "tools/velorx/features/RingNesting.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>

namespace velorx::test {

namespace {

using VelorExchange::CPoint3D;

CFeatureLine Square(double left, double bottom, double size)
{
    return {{left, bottom, 0},
            {left + size, bottom, 0},
            {left + size, bottom + size, 0},
            {left, bottom + size, 0}};
}

double Side(const CPoint3D& a, const CPoint3D& b, const CPoint3D& p)
{
    return (b.x - a.x) * (p.y - a.y) - (b.y - a.y) * (p.x - a.x);
}

// Pairs of edges that cross within both.
int Crossings(const CFeatureLine& ring)
{
    int crossings = 0;
    const std::size_t size = ring.size();
    for (std::size_t i = 0; i < size; ++i) {
        for (std::size_t j = i + 1; j < size; ++j) {
            const CPoint3D &a = ring[i], &b = ring[(i + 1) % size];
            const CPoint3D &c = ring[j], &d = ring[(j + 1) % size];
            crossings += Side(a, b, c) * Side(a, b, d) < 0 && Side(c, d, a) * Side(c, d, b) < 0;
        }
    }
    return crossings;
}

} // namespace

TEST(RingBridge, CutLeadsToTheHoleAndBackTheSameWay)
{
    const CFeatureLine ring =
        JoinHoles({{0, 0, 0}, {10, 0, 0}, {10, 10, 0}, {0, 10, 0}}, {Square(4, 4, 2)});
    ASSERT_EQ(ring.size(), 4U + 4U + 2U);
    EXPECT_EQ(SignedArea(ring) / 2, 96);
    EXPECT_EQ(Crossings(ring), 0);
}

TEST(RingBridge, AreaIsThatWithoutTheHolesWhicheverWayTheyRun)
{
    for (int ways = 0; ways < 8; ++ways) {
        std::vector<CFeatureLine> rings = {Square(0, 0, 100), Square(10, 10, 20),
                                           Square(50, 20, 30)};
        for (std::size_t i = 0; i < 3; ++i) {
            if ((ways >> i & 1) != 0) {
                std::reverse(rings[i].begin(), rings[i].end());
            }
        }
        const CFeatureLine joined = JoinHoles(rings[0], {rings[1], rings[2]});
        EXPECT_EQ(std::fabs(SignedArea(joined)) / 2, 10000 - 400 - 900);
        EXPECT_EQ(Crossings(joined), 0);
    }
}

TEST(RingBridge, CutsFindTheirWayAroundNotches)
{
    // A comb, whose teeth stand between the hole and the right side.
    const CFeatureLine comb = {{0, 0, 0},   {100, 0, 0}, {100, 100, 0}, {60, 100, 0},
                               {60, 30, 0}, {55, 25, 0}, {50, 100, 0},  {0, 100, 0}};
    const CFeatureLine joined = JoinHoles(comb, {Square(10, 40, 20), Square(70, 40, 20)});
    EXPECT_EQ(Crossings(joined), 0);
    EXPECT_NEAR(std::fabs(SignedArea(joined)), std::fabs(SignedArea(comb)) - 1600, 1e-9);
}

TEST(RingBridge, ManyHolesAreJoinedWithoutCrossings)
{
    std::vector<CFeatureLine> holes;
    for (int i = 0; i < 100; ++i) {
        holes.push_back(Square(i % 10 * 10 + 2 + i % 7, i / 10 * 10 + 2 + i % 3, 1.0 + i % 2));
    }
    double area = 0.0;
    for (const CFeatureLine& hole : holes) {
        area += SignedArea(hole);
    }
    const CFeatureLine joined = JoinHoles(Square(0, 0, 110), holes);
    EXPECT_EQ(joined.size(), 4U + 100 * 6);
    EXPECT_NEAR(SignedArea(joined), 2 * 110 * 110 - area, 1e-6);
    EXPECT_EQ(Crossings(joined), 0);
}

TEST(RingBridge, HoleThatTouchesTheOutlineIsJoinedThere)
{
    const CFeatureLine joined = JoinHoles(Square(0, 0, 10), {Square(5, 5, 5)});
    EXPECT_EQ(SignedArea(joined) / 2, 75);
}

TEST(RingBridge, HoleOutsideDoesNoHarm)
{
    EXPECT_EQ(JoinHoles(Square(0, 0, 10), {Square(50, 50, 5)}).size(), 10U);
}

TEST(RingBridge, HugeAreasAreJoinedInNoTime)
{
    std::vector<CFeatureLine> holes;
    for (int i = 0; i < 20'000; ++i) {
        holes.push_back(Square(i % 200 * 10 + 1, i / 200 * 10 + 1, 5));
    }
    const auto start = std::chrono::steady_clock::now();
    const CFeatureLine joined = JoinHoles(Square(0, 0, 2000), holes);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
    EXPECT_EQ(joined.size(), 4U + 20'000 * 6);
    EXPECT_NEAR(SignedArea(joined) / 2, 4e6 - 25 * 20'000, 1e-3);
}

} // namespace velorx::test

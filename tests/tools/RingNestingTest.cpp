// SPDX-License-Identifier: MIT
#include "tools/velorx/features/RingNesting.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>

namespace velorx::test {

namespace {

CFeatureLine Square(double left, double bottom, double size)
{
    return {{left, bottom, 0},
            {left + size, bottom, 0},
            {left + size, bottom + size, 0},
            {left, bottom + size, 0}};
}

} // namespace

TEST(RingNesting, TellsHowDeepRingsLieInOneAnother)
{
    const std::vector<SRingNest> nests =
        NestRings({Square(2, 2, 2), Square(0, 0, 10), Square(20, 0, 5), Square(1, 1, 8)});
    EXPECT_EQ(nests[0].depth, 2);
    EXPECT_EQ(nests[0].around, 3);
    EXPECT_EQ(nests[1].depth, 0);
    EXPECT_EQ(nests[1].around, -1);
    EXPECT_EQ(nests[2].depth, 0);
    EXPECT_EQ(nests[3].depth, 1);
    EXPECT_EQ(nests[3].around, 1);
}

TEST(RingNesting, RingInANotchIsOutside)
{
    const CFeatureLine notched = {{0, 0, 0}, {10, 0, 0}, {10, 10, 0}, {5, 1, 0}, {0, 10, 0}};
    EXPECT_EQ(NestRings({notched, Square(4.5, 5, 1)})[1].depth, 0);
}

TEST(RingNesting, HoleMayTouchItsOutline)
{
    EXPECT_EQ(NestRings({Square(0, 0, 10), Square(0, 3, 4)})[1].depth, 1);
    // All vertices of the hole are on the outline.
    const CFeatureLine diamond = {{5, 0, 0}, {10, 5, 0}, {5, 10, 0}, {0, 5, 0}};
    EXPECT_EQ(NestRings({Square(0, 0, 10), diamond})[1].depth, 1);
}

TEST(RingNesting, NeighboursThatTouchLieSideBySide)
{
    const std::vector<SRingNest> nests = NestRings({Square(0, 0, 10), Square(10, 0, 5)});
    EXPECT_EQ(nests[0].depth + nests[1].depth, 0);
}

TEST(RingNesting, EqualRingsLieSideBySide)
{
    const std::vector<SRingNest> nests = NestRings({Square(0, 0, 10), Square(0, 0, 10)});
    EXPECT_EQ(nests[0].depth + nests[1].depth, 0);
}

TEST(RingNesting, DirectionOfARingPlaysNoPart)
{
    CFeatureLine clockwise = Square(0, 0, 10);
    std::reverse(clockwise.begin(), clockwise.end());
    EXPECT_EQ(NestRings({Square(1, 1, 2), clockwise})[0].depth, 1);
    EXPECT_EQ(SignedArea(clockwise), -200);
}

TEST(RingNesting, RingsWithoutAreaDoNoHarm)
{
    const double nan = std::nan("");
    EXPECT_EQ(NestRings({{}, Square(0, 0, 1), {{nan, nan, 0}}, {{5, 5, 0}}}).size(), 4U);
    EXPECT_TRUE(NestRings({}).empty());
}

TEST(RingNesting, RingsOfNoNumbersLeaveTheOthersInOrder)
{
    const double nan = std::nan("");
    std::vector<CFeatureLine> rings;
    for (int i = 0; i < 100; ++i) {
        const int level = i * 37 % 100;
        rings.push_back(Square(level, level, 400 - 2 * level));
        rings.push_back({{nan, nan, 0}, {1, nan, 0}, {nan, 1, 0}});
    }
    const std::vector<SRingNest> nests = NestRings(rings);
    for (int i = 0; i < 100; ++i) {
        EXPECT_EQ(nests[static_cast<std::size_t>(2 * i)].depth, i * 37 % 100);
    }
}

TEST(RingNesting, ManyIslandsTakeNoTime)
{
    std::vector<CFeatureLine> rings;
    for (int i = 0; i < 40'000; ++i) {
        rings.push_back(Square(i % 200 * 10, i / 200 * 10, 5));
    }
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(NestRings(rings).back().depth, 0);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
}

} // namespace velorx::test

// SPDX-License-Identifier: MIT
#include "tools/velorx/features/AreaParts.h"

#include <gtest/gtest.h>

#include <string>

namespace velorx::test {

namespace {

CFeatureLine Square(double x, double y, double size)
{
    return {{x, y, 0}, {x + size, y, 0}, {x + size, y + size, 0}, {x, y + size, 0}};
}

// "0(2 3) 1": outlines by their number among the rings, and their holes.
std::string Parts(const std::vector<CFeatureLine>& rings)
{
    std::string out;
    for (const SAreaPart& part : AreaParts(rings)) {
        out += (out.empty() ? "" : " ") + std::to_string(part.outline - rings.data());
        std::string holes;
        for (const CFeatureLine* hole : part.holes) {
            holes += (holes.empty() ? "" : " ") + std::to_string(hole - rings.data());
        }
        out += holes.empty() ? "" : '(' + holes + ')';
    }
    return out;
}

} // namespace

TEST(AreaParts, OneRingIsAnOutline)
{
    EXPECT_EQ(Parts({Square(0, 0, 9)}), "0");
    EXPECT_EQ(Parts({}), "");
}

TEST(AreaParts, RingsWithinAreHoles)
{
    EXPECT_EQ(Parts({Square(0, 0, 9), Square(1, 1, 2), Square(5, 5, 2)}), "0(1 2)");
}

TEST(AreaParts, RingsBesideEachOtherAreOutlines)
{
    EXPECT_EQ(Parts({Square(0, 0, 9), Square(20, 0, 9), Square(21, 1, 2)}), "0 1(2)");
}

TEST(AreaParts, RingInAHoleIsAnOutlineWithHolesOfItsOwn)
{
    EXPECT_EQ(Parts({Square(0, 0, 99), Square(10, 10, 50), Square(20, 20, 20), Square(25, 25, 5)}),
              "0(1) 2(3)");
}

TEST(AreaParts, OrderOfRingsDoesNotMatter)
{
    EXPECT_EQ(Parts({Square(25, 25, 5), Square(10, 10, 50), Square(0, 0, 99), Square(20, 20, 20)}),
              "2(1) 3(0)");
}

TEST(AreaParts, RingsThatCrossLoseNothing)
{
    const CFeatureLine upright = {{0, 5, 0}, {5, 0, 0}, {10, 5, 0}, {5, 10, 0}};
    const CFeatureLine waisted = {{5, 5.5, 0}, {0, 5, 0},  {5, 4.5, 0},
                                  {5, 0, 0},   {10, 5, 0}, {5, 10, 0}};
    std::size_t rings = 0;
    for (const SAreaPart& part : AreaParts({upright, waisted, Square(0, 0, 6)})) {
        rings += 1 + part.holes.size();
    }
    EXPECT_EQ(rings, 3U);
}

} // namespace velorx::test

// SPDX-License-Identifier: MIT
#include "tools/velorx/features/RingOrder.h"

#include <gtest/gtest.h>

namespace velorx::test {

namespace {

CFeatureLine Square(double from, double to)
{
    return {{from, from, 0}, {to, from, 0}, {to, to, 0}, {from, to, 0}};
}

} // namespace

TEST(RingOrder, PutsWhatLiesInNothingFirst)
{
    std::vector<CFeatureLine> rings = {Square(4, 5), Square(3, 6), Square(0, 9), Square(20, 30)};
    PutOutermostFirst(rings);
    EXPECT_EQ(rings[0][0].x, 0);
    EXPECT_EQ(rings[1][0].x, 20);
    EXPECT_EQ(rings[2][0].x, 3);
    EXPECT_EQ(rings[3][0].x, 4);
}

TEST(RingOrder, KeepsTheOrderOfRingsBesideEachOther)
{
    std::vector<CFeatureLine> rings = {Square(10, 11), Square(0, 9)};
    PutOutermostFirst(rings);
    EXPECT_EQ(rings[0][0].x, 10);
}

TEST(RingOrder, IsNotFooledByBoxes)
{
    // the square lies in the box of the triangle, but not in the triangle
    std::vector<CFeatureLine> rings = {Square(8, 9), {{0, 0, 0}, {10, 0, 0}, {0, 10, 0}}};
    PutOutermostFirst(rings);
    EXPECT_EQ(rings[0].size(), 4U);
}

TEST(RingOrder, DropsVerticesThatRepeat)
{
    CFeatureLine ring = {{0, 0, 0}, {0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 0, 0}, {0, 0, 0}};
    DropRepeats(ring);
    EXPECT_EQ(ring.size(), 3U);
}

TEST(RingOrder, KeepsOneVertexOfOne)
{
    CFeatureLine ring = {{2, 0, 0}, {2, 0, 0}};
    DropRepeats(ring);
    EXPECT_EQ(ring.size(), 1U);
    ring.clear();
    DropRepeats(ring);
    EXPECT_TRUE(ring.empty());
}

} // namespace velorx::test

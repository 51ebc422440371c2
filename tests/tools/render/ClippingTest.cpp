// SPDX-License-Identifier: MIT
#include "tools/velorx/render/Clipping.h"

#include <gtest/gtest.h>

#include <cmath>

namespace velorx::test {

namespace {

const QRectF kFrame(0, 0, 100, 50);

double AreaOf(const CPixelLine& ring)
{
    double twice = 0.0;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const QPointF& from = ring[i];
        const QPointF& to = ring[(i + 1) % ring.size()];
        twice += from.x() * to.y() - to.x() * from.y();
    }
    return std::abs(twice) / 2;
}

} // namespace

TEST(Clipping, LineInsideStaysAsItIs)
{
    QLineF line(10, 10, 90, 40);
    EXPECT_TRUE(ClipLine(line, kFrame));
    EXPECT_EQ(line, QLineF(10, 10, 90, 40));
}

TEST(Clipping, LineAcrossIsCutAtBothSides)
{
    QLineF line(-100, 25, 300, 25);
    EXPECT_TRUE(ClipLine(line, kFrame));
    EXPECT_EQ(line, QLineF(0, 25, 100, 25));
}

TEST(Clipping, LineOutsideIsDropped)
{
    QLineF beside(-10, 10, -5, 40);
    EXPECT_FALSE(ClipLine(beside, kFrame));
    QLineF pastTheCorner(-30, 10, 10, -30);
    EXPECT_FALSE(ClipLine(pastTheCorner, kFrame));
}

TEST(Clipping, RingInsideStaysAsItIs)
{
    const CPixelLine ring = {{10, 10}, {20, 10}, {20, 20}};
    EXPECT_EQ(ClipRing(ring, kFrame), ring);
}

TEST(Clipping, RingAroundTheFrameBecomesTheFrame)
{
    const CPixelLine ring = ClipRing({{-1e9, -1e9}, {1e9, -1e9}, {1e9, 1e9}, {-1e9, 1e9}}, kFrame);
    EXPECT_NEAR(AreaOf(ring), 100 * 50, 1e-3);
}

TEST(Clipping, RingThatReachesOutIsCutAtTheFrame)
{
    const CPixelLine ring = ClipRing({{-50, 10}, {50, 10}, {50, 30}, {-50, 30}}, kFrame);
    EXPECT_DOUBLE_EQ(AreaOf(ring), 50 * 20);
    EXPECT_TRUE(kFrame.contains(BoundsOf(ring)));
}

TEST(Clipping, RingOutsideEnclosesNothing)
{
    EXPECT_EQ(AreaOf(ClipRing({{-50, 10}, {-20, 10}, {-20, 30}}, kFrame)), 0.0);
}

TEST(Clipping, RectanglesWithoutAnAreaCanTouch)
{
    EXPECT_TRUE(Touch({QPointF(5, 5), QPointF(5, 5)}, kFrame));
    EXPECT_TRUE(Touch({QPointF(-5, 5), QPointF(5, 5)}, kFrame));
    EXPECT_FALSE(Touch({QPointF(-5, 5), QPointF(-1, 5)}, kFrame));
}

} // namespace velorx::test

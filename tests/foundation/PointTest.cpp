// SPDX-License-Identifier: MIT
#include "VelorExchange/foundation/Point.h"
#include "VelorExchange/foundation/Coincidence_p.h"

#include <type_traits>

using VelorExchange::CoincideInPlan;
using VelorExchange::CoincideInSpace;
using VelorExchange::CPoint2D;
using VelorExchange::CPoint3D;

TEST(Point, DefaultIsAllZero)
{
    const CPoint3D p;
    EXPECT_EQ(p.x, 0.0);
    EXPECT_EQ(p.y, 0.0);
    EXPECT_EQ(p.z, 0.0);
    const CPoint2D q;
    EXPECT_EQ(q.x, 0.0);
    EXPECT_EQ(q.y, 0.0);
}

TEST(Point, IsPlainValue)
{
    static_assert(std::is_trivially_copyable_v<CPoint2D> && sizeof(CPoint2D) == 16);
    static_assert(std::is_trivially_copyable_v<CPoint3D> && sizeof(CPoint3D) == 24);
    const CPoint2D p{1, 2};
    EXPECT_EQ(p.x + p.y, 3.0);
}

TEST(Coincidence, LimitIsStrictOnTheSquare)
{
    // 1e-04 squared rounds to 1e-08 itself, which is not below the limit.
    EXPECT_FALSE(CoincideInPlan(CPoint2D{0, 0}, CPoint2D{1e-04, 0}));
    EXPECT_TRUE(CoincideInPlan(CPoint2D{0, 0}, CPoint2D{0.99e-04, 0}));
}

TEST(Coincidence, SquareAsComputedDecides)
{
    const double dx = 0.3001 - 0.3;
    EXPECT_EQ(CoincideInPlan(CPoint2D{0.3, 0}, CPoint2D{0.3001, 0}), dx * dx < 1e-08);
}

TEST(Coincidence, PlanIgnoresHeightAndSpaceDoesNot)
{
    EXPECT_TRUE(CoincideInPlan(CPoint3D{0, 0, 0}, CPoint3D{0, 0, 5}));
    EXPECT_FALSE(CoincideInSpace(CPoint3D{0, 0, 0}, CPoint3D{0, 0, 5}));
}

// SPDX-License-Identifier: MIT
#include "tools/velorx/features/Placement.h"
#include "VelorExchange/dxf/records/Insert.h"

#include <gtest/gtest.h>

#include <cmath>

namespace velorx::test {

using VelorExchange::CPoint3D;
using VelorExchange::dxf::CInsertDXF;

namespace {

CInsertDXF Insert(const CPoint3D& point, double rotation, double scaleX, double scaleY)
{
    CInsertDXF insert;
    insert.point = point;
    insert.rotation = rotation;
    insert.scaleX = scaleX;
    insert.scaleY = scaleY;
    return insert;
}

void ExpectAt(const CPoint3D& point, double x, double y, double z)
{
    EXPECT_NEAR(point.x, x, 1e-9);
    EXPECT_NEAR(point.y, y, 1e-9);
    EXPECT_NEAR(point.z, z, 1e-9);
}

} // namespace

TEST(Placement, LeavesEverythingWhereItIs)
{
    ExpectAt(CPlacement()({1, 2, 3}), 1, 2, 3);
    EXPECT_EQ(CPlacement().GreatestScale(), 1);
    EXPECT_EQ(CPlacement().MeanScale(), 1);
    EXPECT_FALSE(CPlacement().IsMirrored());
}

TEST(Placement, ScalesThenTurnsThenMoves)
{
    CInsertDXF insert = Insert({10, 20, 30}, 90, 2, 3);
    insert.scaleZ = 4;
    const CPlacement placement(insert, {});
    ExpectAt(placement({1, 0, 1}), 10, 22, 34);
    ExpectAt(placement({0, 1, 0}), 7, 20, 30);
}

TEST(Placement, PutsTheBasePointAtTheInsert)
{
    const CPlacement placement(Insert({10, 20, 0}, 30, 2, -3), {5, 6, 7});
    ExpectAt(placement({5, 6, 7}), 10, 20, 0);
}

TEST(Placement, IsExactForRightAngles)
{
    for (const double angle : {-270.0, 90.0, 450.0}) {
        const CPoint3D turned = CPlacement(Insert({}, angle, 1, 1), {})({1, 0, 0});
        EXPECT_EQ(turned.x, 0);
        EXPECT_EQ(turned.y, 1);
    }
}

TEST(Placement, GoesAroundAnother)
{
    const CPlacement outer(Insert({100, 0, 0}, 0, 1, 3), {});
    const CPlacement inner(Insert({10, 0, 5}, 90, 1, 1), {});
    const CPoint3D p{1, 2, 3};
    const CPoint3D expected = outer(inner(p));
    ExpectAt(outer.Around(inner)(p), expected.x, expected.y, expected.z);
}

TEST(Placement, TellsItsScales)
{
    const CPlacement placement(Insert({}, 30, 2, -8), {});
    EXPECT_NEAR(placement.GreatestScale(), 8, 1e-12);
    EXPECT_NEAR(placement.MeanScale(), 4, 1e-12);
    EXPECT_TRUE(placement.IsMirrored());
    EXPECT_FALSE(placement.Around(placement).IsMirrored());
}

TEST(Placement, TurnsAngles)
{
    EXPECT_NEAR(CPlacement(Insert({}, 30, 1, 1), {}).TurnedAngle(1), 1 + M_PI / 6, 1e-12);
    EXPECT_NEAR(CPlacement(Insert({}, 0, 1, -1), {}).TurnedAngle(1), 2 * M_PI - 1, 1e-12);
    EXPECT_EQ(CPlacement().TurnedAngle(-7), -7);
}

TEST(Placement, TurnsDirectionsWithoutMovingThem)
{
    const auto direction = CPlacement(Insert({9, 9, 9}, 180, 2, 2), {}).Turned({1, 0});
    EXPECT_EQ(direction.x, -2);
    EXPECT_EQ(std::fabs(direction.y), 0);
}

} // namespace velorx::test

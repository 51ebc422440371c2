// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/read/ObjectCoordinates_p.h"

#include "tests/support/DxfRecorder.h"

#include <cmath>
#include <limits>

using namespace VelorExchange;
using dxf::CObjectCoordinates;
using test::Shortest;

namespace {

std::string Shown(const CPoint3D& p)
{
    return Shortest(p.x) + ' ' + Shortest(p.y) + ' ' + Shortest(p.z);
}

std::string World(const CPoint3D& extrusion, const CPoint3D& p)
{
    return Shown(CObjectCoordinates(extrusion).ToWorld(p));
}

CPoint3D Cross(const CPoint3D& a, const CPoint3D& b)
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

CPoint3D Normalised(const CPoint3D& v)
{
    const double length = std::sqrt(v.x * v.x + v.y * v.y + v.z * v.z);
    return {v.x / length, v.y / length, v.z / length};
}

// The conversion with a given axis, step by step.
CPoint3D WithAxis(const CPoint3D& axis, const CPoint3D& n, const CPoint3D& p)
{
    const CPoint3D ax = Normalised(Cross(axis, n));
    const CPoint3D ay = Normalised(Cross(n, ax));
    return {ax.x * p.x + ay.x * p.y + n.x * p.z, ax.y * p.x + ay.y * p.y + n.y * p.z,
            ax.z * p.x + ay.z * p.y + n.z * p.z};
}

constexpr CPoint3D kYAxis{0, 1, 0};
constexpr CPoint3D kZAxis{0, 0, 1};
constexpr CPoint3D kPoint{1.5, -2.25, 3.75};

std::string WithAxis(const CPoint3D& axis, const CPoint3D& n)
{
    return Shown(WithAxis(axis, n, kPoint));
}

} // namespace

TEST(ObjectCoordinates, AbsentExtrusionChangesNothing)
{
    EXPECT_EQ(World({0, 0, 0}, kPoint), "1.5 -2.25 3.75");
}

TEST(ObjectCoordinates, ExtrusionWithAllComponentsBelowAMillionthChangesNothing)
{
    EXPECT_EQ(World({9e-07, -9e-07, 9e-07}, kPoint), "1.5 -2.25 3.75");
    EXPECT_EQ(World({0, 0, 1e-06}, {0, 0, 4}), "0 0 4e-06");
    EXPECT_EQ(World({0, 0, -1e-06}, {0, 0, 4}), "0 0 -4e-06");
    EXPECT_EQ(World({1e-06, 0, 0}, {0, 0, 4}), "4e-06 0 0");
    EXPECT_EQ(World({0, 1e-06, 0}, {0, 0, 4}), "0 4e-06 0");
}

TEST(ObjectCoordinates, UsualExtrusionChangesNothing)
{
    EXPECT_EQ(World({0, 0, 1}, kPoint), "1.5 -2.25 3.75");
}

TEST(ObjectCoordinates, ExtrusionDownwardsNegatesXAndZ)
{
    EXPECT_EQ(World({0, 0, -1}, kPoint), "-1.5 -2.25 -3.75");
}

TEST(ObjectCoordinates, ComponentFromOneSixtyFourthOnTakesTheZAxis)
{
    for (const CPoint3D& n :
         {CPoint3D{0.5, 0, 0.8}, CPoint3D{0, 0.5, 0.8}, CPoint3D{0.015625, 0, 1},
          CPoint3D{0, 0.015625, 1}, CPoint3D{-0.9, 0.3, 0.3}})
    {
        EXPECT_EQ(World(n, kPoint), WithAxis(kZAxis, n)) << Shown(n);
        EXPECT_NE(World(n, kPoint), WithAxis(kYAxis, n)) << Shown(n);
    }
}

TEST(ObjectCoordinates, SmallComponentsTakeTheYAxis)
{
    for (const CPoint3D& n : {CPoint3D{0.01, 0.01, 1}, CPoint3D{0.0156249, 0.0156249, 1}}) {
        EXPECT_EQ(World(n, kPoint), WithAxis(kYAxis, n)) << Shown(n);
        EXPECT_NE(World(n, kPoint), WithAxis(kZAxis, n)) << Shown(n);
    }
}

TEST(ObjectCoordinates, NegativeComponentsTakeTheYAxis)
{
    for (const CPoint3D& n :
         {CPoint3D{-0.9, 0, 0.4}, CPoint3D{-0.5, 0, 0.8}, CPoint3D{-0.3, -0.9, 0.4}})
    {
        EXPECT_EQ(World(n, kPoint), WithAxis(kYAxis, n)) << Shown(n);
        EXPECT_NE(World(n, kPoint), WithAxis(kZAxis, n)) << Shown(n);
    }
}

TEST(ObjectCoordinates, NormalIsUsedAsLongAsItIs)
{
    EXPECT_EQ(World({0, 0, 2}, kPoint), "1.5 -2.25 7.5");
}

TEST(ObjectCoordinates, ExtrusionAlongTheChosenAxisGivesNoNaN)
{
    // The cross product is zero, and so is what it is normalised to.
    EXPECT_EQ(World({0, -1, 0}, kPoint), "0 -3.75 0");
    EXPECT_EQ(World({0, -1e-170, -1}, kPoint), World({0, 0, -1}, kPoint));
}

TEST(ObjectCoordinates, ExtrusionAlongXConverts)
{
    // The published example: X becomes Y, Y becomes Z, Z becomes X.
    EXPECT_EQ(World({1, 0, 0}, {1, 2, 3}), "3 1 2");
}

TEST(ObjectCoordinates, FlatPointLosesItsHeightBehindTheConversion)
{
    const CObjectCoordinates coordinates({1, 0, 0});
    EXPECT_EQ(Shown(coordinates.ToWorld({1, 2, 0})), "0 1 2");
    EXPECT_EQ(Shown(coordinates.ToWorldFlat(1, 2)), "0 1 0");
}

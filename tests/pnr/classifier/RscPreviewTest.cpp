// SPDX-License-Identifier: MIT
#include "tests/pnr/classifier/ClassifierTest.h"

namespace VelorExchange::pnr {

namespace {

HDC Device()
{
    return reinterpret_cast<HDC>(0x555555555);
}

} // namespace

using RscPreview = CClassifierTest;

TEST_F(RscPreview, OpensATemporaryMap)
{
    CReader& reader = Loaded();
    EXPECT_TRUE(reader.OpenToDrawPreview(QStringLiteral("map.rsc")));
    EXPECT_EQ(reader.hMap, reinterpret_cast<void*>(0x222222222));
    EXPECT_FALSE(reader.isOpen());
    EXPECT_EQ(Calls(), "mapCreateTempSite(\"map.rsc\")\n");
}

TEST_F(RscPreview, OpensNothingForAnEmptyName)
{
    CReader& reader = Loaded();
    EXPECT_FALSE(reader.OpenToDrawPreview(QString()));
    EXPECT_EQ(Calls(), "");
}

TEST_F(RscPreview, EmptyNameKeepsTheMapThatIsOpen)
{
    CReader& reader = Loaded();
    reader.OpenToDrawPreview(QStringLiteral("map.rsc"));
    EXPECT_FALSE(reader.OpenToDrawPreview(QStringLiteral("")));
    EXPECT_EQ(reader.hMap, reinterpret_cast<void*>(0x222222222));
}

TEST_F(RscPreview, OpenIsFalseWithoutHandle)
{
    CReader& reader = Loaded();
    standin::Current().map = 0;
    EXPECT_FALSE(reader.OpenToDrawPreview(QStringLiteral("map.rsc")));
    EXPECT_EQ(reader.hMap, nullptr);
}

TEST_F(RscPreview, OpeningAgainClosesNothing)
{
    CReader& reader = Loaded();
    reader.OpenToDrawPreview(QStringLiteral("a.rsc"));
    reader.OpenToDrawPreview(QStringLiteral("b.rsc"));
    EXPECT_EQ(Calls(), "mapCreateTempSite(\"a.rsc\")\nmapCreateTempSite(\"b.rsc\")\n");
}

TEST_F(RscPreview, KeepsTheHandleOfTheClosedMap)
{
    CReader& reader = Loaded();
    reader.OpenToDrawPreview(QStringLiteral("map.rsc"));
    Calls();
    reader.CloseToDrawPriview();
    EXPECT_EQ(reader.hMap, reinterpret_cast<void*>(0x222222222));
    EXPECT_EQ(Calls(), "mapCloseMap(0x222222222)\n");
}

TEST_F(RscPreview, BitmapComesFromTheLibraryAndGoesBack)
{
    CReader& reader = Loaded();
    const HBITMAP bitmap = reader.CreatePnrBitmap(640, 480);
    EXPECT_EQ(bitmap, reinterpret_cast<HBITMAP>(0x333333333));
    reader.ClosePnrBitMap(bitmap);
    EXPECT_EQ(Calls(), "mapCreateBitmapEx(640, 480)\nmapCloseBitmap(0x333333333)\n");
}

TEST_F(RscPreview, BitmapIsNullWhereTheLibraryGivesNone)
{
    CReader& reader = Loaded();
    standin::Current().bitmap = 0;
    EXPECT_EQ(reader.CreatePnrBitmap(640, 480), nullptr);
}

TEST_F(RscPreview, DrawsIntoARectangleFromTheOrigin)
{
    CReader& reader = Loaded();
    reader.OpenToDrawPreview(QStringLiteral("map.rsc"));
    Calls();
    EXPECT_TRUE(reader.DrawPreview(Device(), 7, 64, 32));
    EXPECT_EQ(Calls(), "mapPaintExampleObject(0x222222222, 0x555555555, [0 0 64 32], 7)\n");
}

TEST_F(RscPreview, DrawIsTrueForAnyResultButZero)
{
    CReader& reader = Loaded();
    standin::Current().painted = -2;
    EXPECT_TRUE(reader.DrawPreview(Device(), 7, 64, 32));
    standin::Current().painted = 0;
    EXPECT_FALSE(reader.DrawPreview(Device(), 7, 64, 32));
}

TEST_F(RscPreview, DrawOfObjectMinusOneCallsNothing)
{
    CReader& reader = Loaded();
    EXPECT_FALSE(reader.DrawPreview(Device(), -1, 64, 32));
    EXPECT_EQ(Calls(), "");
    EXPECT_FALSE(isControlWordSaved);
}

TEST_F(RscPreview, DrawsObjectsZeroAndMinusTwo)
{
    CReader& reader = Loaded();
    EXPECT_TRUE(reader.DrawPreview(Device(), 0, 1, 1));
    EXPECT_TRUE(reader.DrawPreview(Device(), -2, 1, 1));
    EXPECT_EQ(Calls(),
              "mapPaintExampleObject(0x0, 0x555555555, [0 0 1 1], 0)\n"
              "mapPaintExampleObject(0x0, 0x555555555, [0 0 1 1], -2)\n");
}

TEST_F(RscPreview, DrawsNothingWithoutLibrary)
{
    CReader& reader = CReader::m_instance;
    EXPECT_FALSE(reader.DrawPreview(Device(), 7, 64, 32));
    EXPECT_EQ(reader.CreatePnrBitmap(640, 480), nullptr);
    reader.ClosePnrBitMap(nullptr);
    reader.CloseToDrawPriview();
    EXPECT_FALSE(isControlWordSaved);
}

} // namespace VelorExchange::pnr

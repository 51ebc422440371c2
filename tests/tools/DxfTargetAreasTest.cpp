// SPDX-License-Identifier: MIT
#include "tests/tools/DxfStream.h"
#include "tests/tools/DxfWritten.h"
#include "tests/tools/SomeFeatures.h"

#include <gtest/gtest.h>

#include <cmath>

namespace velorx::test {

TEST(DxfTargetAreas, FilledAreaComesBackWithItsHoles)
{
    CDxfWritten drawing;
    SAreaFeature area = Area({Square(0, 9), Square(20, 30), Square(3, 6)});
    area.stroke.isVisible = false;
    area.fill.kind = EFeatureFill::Solid;
    area.fill.color = 0x00FF00;
    EXPECT_EQ(drawing.Take(area), "HATCH");
    const auto& read = drawing.ReadBack();
    ASSERT_EQ(read.areas.size(), 1U);
    ASSERT_EQ(read.areas[0].rings.size(), 3U);
    EXPECT_EQ(PointsOf(read.areas[0].rings[2]), "(3 3) (6 3) (6 6) (3 6)");
    EXPECT_EQ(read.areas[0].fill.kind, EFeatureFill::Solid);
    EXPECT_EQ(read.areas[0].fill.color, 0x00FF00U);
    EXPECT_FALSE(read.areas[0].stroke.isVisible);
    EXPECT_EQ(drawing.Losses() + drawing.LossesOfReading(), "");
}

TEST(DxfTargetAreas, OutlinesOfAnAreaComeBackAsItsOwn)
{
    CDxfWritten drawing;
    SAreaFeature area = Area({Square(0, 9), Square(3, 6)});
    area.stroke.color = 0xFF0000;
    area.stroke.width = 0.5;
    area.fill.kind = EFeatureFill::Solid;
    EXPECT_EQ(drawing.Take(area), "HATCH with outline");
    const auto& read = drawing.ReadBack();
    EXPECT_TRUE(read.lines.empty());
    ASSERT_EQ(read.areas.size(), 1U);
    EXPECT_EQ(read.areas[0].rings.size(), 2U);
    EXPECT_TRUE(read.areas[0].stroke.isVisible);
    EXPECT_EQ(read.areas[0].stroke.color, 0xFF0000U);
    EXPECT_EQ(read.areas[0].fill.kind, EFeatureFill::Solid);
}

TEST(DxfTargetAreas, AreaWithoutAFillComesBackWithItsHoles)
{
    CDxfWritten drawing;
    SAreaFeature area = Area({Square(0, 9), Square(3, 6)});
    area.code = 44200000;
    EXPECT_EQ(drawing.Take(area), "closed polyline");
    drawing.Take(Area({Square(40, 50)}));
    const auto& read = drawing.ReadBack();
    ASSERT_EQ(read.areas.size(), 2U);
    EXPECT_EQ(read.areas[0].rings.size(), 2U);
    EXPECT_EQ(read.areas[0].code, 44200000);
    EXPECT_EQ(read.areas[0].fill.kind, EFeatureFill::None);
    EXPECT_EQ(read.areas[1].code, 0);
}

TEST(DxfTargetAreas, OutlinesThatAreGoneDoNotHoldAnAreaBack)
{
    CDxfStream stream;
    const auto& read =
        stream
            .Entities("0 INSERT, 2 VELORX_DATA, 8 A, 66 1, 0 ATTRIB, 8 A, 40 1, "
                      "2 OUTLINES, 1 3, 0 SEQEND, 0 CIRCLE, 8 A, 40 1, 0 POINT, 8 A, "
                      "0 LWPOLYLINE, 8 A, 90 3, 70 1, 10 0, 20 0, 42 0, 10 10, "
                      "20 0, 42 0, 10 10, 20 10, 42 0")
            .Read();
    ASSERT_EQ(read.areas.size(), 2U);
    EXPECT_STREQ(read.areas[0].kind, "CIRCLE");
    EXPECT_EQ(read.areas[0].rings.size(), 1U);
    EXPECT_EQ(read.points.size(), 1U);
}

TEST(DxfTargetAreas, PatternComesBackWithItsNameAndAngle)
{
    CDxfWritten drawing;
    SAreaFeature area = Area({Square(0, 9)});
    area.stroke.isVisible = false;
    area.fill.kind = EFeatureFill::Pattern;
    area.fill.pattern = "LINE";
    area.fill.angle = M_PI / 6;
    area.fill.isDouble = true;
    EXPECT_EQ(drawing.Take(area), "HATCH");
    const auto& read = drawing.ReadBack();
    ASSERT_EQ(read.areas.size(), 1U);
    EXPECT_EQ(read.areas[0].fill.kind, EFeatureFill::Pattern);
    EXPECT_EQ(read.areas[0].fill.pattern, "LINE");
    EXPECT_NEAR(read.areas[0].fill.angle, M_PI / 6, 1e-6);
    EXPECT_TRUE(read.areas[0].fill.isDouble);
    EXPECT_TRUE(Has(drawing.Entities(), "78 2\n53 30.000000\n"));
    EXPECT_TRUE(Has(drawing.Entities(), "53 120.000000\n"));
    EXPECT_EQ(drawing.Lost("hatches with a pattern, filled with plain lines under its name"),
              "1: Houses 1");
}

TEST(DxfTargetAreas, PatternWithLinesOfItsOwnKeepsThem)
{
    CDxfWritten drawing;
    SAreaFeature area = Area({Square(0, 9)});
    area.fill.kind = EFeatureFill::Pattern;
    area.fill.pattern = "Solid"; // not what it is
    area.fill.hasBackground = true;
    VelorExchange::dxf::CHatchLineDXF line;
    line.angle = 12;
    line.offsetY = 3;
    area.fill.lines = {line};
    drawing.Take(area);
    EXPECT_TRUE(Has(drawing.Entities(), "2 LINE\n70 0\n"));
    EXPECT_TRUE(Has(drawing.Entities(), "53 12.000000\n"));
    EXPECT_EQ(drawing.Lost("hatches with a pattern, filled with plain lines under its name"), "");
    EXPECT_EQ(drawing.Lost("backgrounds of hatches, dropped"), "1: Houses 1");
}

TEST(DxfTargetAreas, LinesThatAreMeasuredOnPaperKeepTheirDirections)
{
    CDxfWritten drawing;
    SAreaFeature area = Area({Square(0, 4000)});
    area.fill.kind = EFeatureFill::Pattern;
    area.fill.pattern = "MIF 4";
    VelorExchange::dxf::CHatchLineDXF line;
    line.angle = 90;
    line.offsetX = -2;
    area.fill.lines = {line};
    drawing.Take(area);
    EXPECT_TRUE(Has(drawing.Entities(), "2 MIF 4\n70 0\n"));
    EXPECT_TRUE(Has(drawing.Entities(),
                    "53 90.000000\n43 2000.000000\n44 2000.000000\n"
                    "45 -100.000000\n46 0.000000\n"));
    EXPECT_EQ(drawing.Lost("hatches with a pattern, filled with plain lines under its name"),
              "1: Houses 1");
}

TEST(DxfTargetAreas, ThousandsOfLinesAreNotDrawn)
{
    CDxfWritten drawing;
    SAreaFeature area = Area({Square(0, 4000)});
    area.fill.kind = EFeatureFill::Pattern;
    area.fill.pattern = "ANSI31";
    VelorExchange::dxf::CHatchLineDXF line;
    line.offsetY = 0.001;
    area.fill.lines = {line};
    drawing.Take(area);
    EXPECT_TRUE(Has(drawing.Entities(), "45 0.000000\n46 100.000000\n")) << drawing.Entities();
}

TEST(DxfTargetAreas, HeightsOfAFilledAreaStayInItsOutline)
{
    CDxfWritten drawing;
    SAreaFeature area = Area({{{0, 0, 1}, {5, 0, 2}, {5, 5, 3}}});
    area.is3D = true;
    area.fill.kind = EFeatureFill::Solid;
    drawing.Take(area);
    const auto& read = drawing.ReadBack();
    ASSERT_EQ(read.areas.size(), 1U);
    EXPECT_EQ(PointsOf(read.areas[0].rings.at(0)), "(0 0 1) (5 0 2) (5 5 3)");
    EXPECT_TRUE(read.areas[0].is3D);
    EXPECT_EQ(drawing.Lost("heights of fills, dropped"), "1: Houses 1");
}

TEST(DxfTargetAreas, AreaThatShowsNothingGetsAnOutline)
{
    CDxfWritten drawing;
    SAreaFeature area = Area({Square(0, 9)});
    area.stroke.isVisible = false;
    EXPECT_EQ(drawing.Take(area), "closed polyline");
    EXPECT_EQ(drawing.Lost("areas without a fill and an outline, written with an outline"),
              "1: Houses 1");
}

TEST(DxfTargetAreas, ImageComesBack)
{
    CDxfWritten drawing;
    auto image = On<SImageFeature>("Photos");
    image.path = "photos/site.jpg";
    image.name = "site";
    image.origin = {5, 6};
    image.along = {16, 12};
    image.across = {-6, 8};
    image.widthPixels = 200;
    image.heightPixels = 100;
    EXPECT_EQ(drawing.Take(image), "IMAGE");
    const auto& read = drawing.ReadBack();
    ASSERT_EQ(read.images.size(), 1U) << drawing.LossesOfReading();
    EXPECT_EQ(read.images[0].path, "photos/site.jpg");
    EXPECT_EQ(read.images[0].layer, "Photos");
    EXPECT_EQ(read.images[0].widthPixels, 200);
    EXPECT_NEAR(read.images[0].along.y, 12, 1e-4);
    EXPECT_NEAR(read.images[0].across.x, -6, 1e-4);
    EXPECT_TRUE(read.images[0].clip.empty());
}

TEST(DxfTargetAreas, ClipOfAnImageIsInPixels)
{
    CDxfWritten drawing;
    auto image = On<SImageFeature>("Photos");
    image.name = "site";
    image.path = "site.jpg";
    image.along = {20, 0};
    image.across = {0, 10};
    image.widthPixels = 200;
    image.heightPixels = 100;
    image.clip = {{0, 0}, {20, 10}, {0, 10}};
    drawing.Take(image);
    EXPECT_TRUE(Has(drawing.Entities(),
                    "71 2\n91 4\n14 -0.500000\n24 99.500000\n14 199.500000\n24 -0.500000\n"
                    "14 -0.500000\n24 -0.500000\n"));
    const auto& read = drawing.ReadBack();
    ASSERT_EQ(read.images.size(), 1U);
    ASSERT_EQ(read.images[0].clip.size(), 3U);
    EXPECT_NEAR(read.images[0].clip[1].x, 20, 1e-6);
    EXPECT_NEAR(read.images[0].clip[1].y, 10, 1e-6);
}

TEST(DxfTargetAreas, WhatAnImageLosesIsListed)
{
    CDxfWritten drawing;
    auto image = On<SImageFeature>("Photos");
    image.along = {20, 0};
    image.across = {5, 10};
    image.code = 7;
    EXPECT_EQ(drawing.Take(image), "IMAGE");
    EXPECT_EQ(drawing.Lost("images that are not rectangular, written as such"), "1: Photos 1");
    EXPECT_EQ(drawing.Lost("attributes of images, dropped"), "1: Photos 1");
    image.across = {0, 0};
    EXPECT_EQ(drawing.Take(image), "null");
}

} // namespace velorx::test

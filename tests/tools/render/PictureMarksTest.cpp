// SPDX-License-Identifier: MIT
// Points and images as they show in a picture, and which layers do.
#include "tests/tools/render/Canvas.h"

#include <gtest/gtest.h>

#include <cmath>

namespace velorx::test {

namespace {

SPointFeature Point(double x, double y, int shape = 0, double size = 0)
{
    SPointFeature point;
    point.kind = "POINT";
    point.layer = QStringLiteral("0");
    point.position = {x, y, 0};
    point.symbol.shape = shape;
    point.symbol.size = size;
    return point;
}

SLineFeature LineOn(const char* layer, double y)
{
    SLineFeature line = Line({{10, y, 0}, {80, y, 0}});
    line.layer = QString::fromUtf8(layer);
    return line;
}

SFeatureLayer Hidden(const char* name)
{
    SFeatureLayer layer;
    layer.name = QString::fromUtf8(name);
    layer.isVisible = false;
    return layer;
}

} // namespace

TEST(PictureMarks, PlainPointIsADot)
{
    CCanvas canvas;
    EXPECT_STREQ(canvas.Sink().Take(Point(50, 50)), "mark");
    EXPECT_FALSE(canvas.IsPaper(50, 50));
    EXPECT_EQ(canvas.CountInk(), canvas.CountInk(47, 47, 53, 53));
}

TEST(PictureMarks, EmptyBlockHasNoMark)
{
    CCanvas canvas;
    SPointFeature block = Point(50, 50);
    block.kind = "INSERT";
    EXPECT_EQ(canvas.Sink().Take(block), nullptr);
    EXPECT_EQ(canvas.CountInk(), 0);
    EXPECT_EQ(canvas.Losses(),
              QStringList(QStringLiteral("1 block references without anything to draw")));
}

TEST(PictureMarks, SymbolIsAsLargeAsItsPoints)
{
    CCanvas canvas;
    canvas.Sink().Take(Point(50, 50, 34, 18)); // a full circle of 18 / 72 inch
    EXPECT_NEAR(canvas.Ink().Width(), 24, 1);
    EXPECT_FALSE(canvas.IsPaper(50, 50));
}

TEST(PictureMarks, HollowSymbolIsItsOutline)
{
    CCanvas canvas;
    canvas.Sink().Take(Point(50, 50, 40, 18));
    EXPECT_NEAR(canvas.Ink().Width(), 25, 1);
    EXPECT_TRUE(canvas.IsPaper(50, 50));
}

TEST(PictureMarks, TriangleTurnsWithItsAngle)
{
    CCanvas up;
    up.Sink().Take(Point(50, 50, 36, 18));
    SPointFeature turned = Point(50, 50, 36, 18);
    turned.symbol.angle = M_PI / 2;
    CCanvas left;
    left.Sink().Take(turned);
    EXPECT_NEAR(up.Ink().top, 62, 1);
    EXPECT_NEAR(left.Ink().left, 38, 1);
    EXPECT_LT(left.Ink().right, 60);
}

TEST(PictureMarks, ImageIsAFrameWithItsName)
{
    SImageFeature image;
    image.kind = "IMAGE";
    image.layer = QStringLiteral("0");
    image.name = QStringLiteral("relief");
    image.origin = {10.5, 10.5};
    image.along = {70, 0};
    image.across = {0, 60};
    CCanvas canvas;
    EXPECT_STREQ(canvas.Sink().Take(image), "frame");
    EXPECT_FALSE(canvas.IsPaper(10.5, 40));
    EXPECT_FALSE(canvas.IsPaper(80.5, 40));
    EXPECT_FALSE(canvas.IsPaper(40, 70.5));
    EXPECT_GT(canvas.CountInk(20, 34, 70, 46), 10);
    EXPECT_EQ(canvas.CountInk(14, 50, 78, 66), 0);
}

TEST(PictureMarks, ClippedImageIsFramedAlongItsClip)
{
    SImageFeature image;
    image.layer = QStringLiteral("0");
    image.along = {96, 0};
    image.across = {0, 96};
    image.clip = {{20.5, 20.5}, {60.5, 20.5}, {40.5, 60.5}};
    CCanvas canvas;
    canvas.Sink().Take(image);
    EXPECT_FALSE(canvas.IsPaper(40, 20.5));
    EXPECT_EQ(canvas.CountInk(0, 0, 18, 96), 0);
}

TEST(PictureLayers, HiddenLayerIsNotDrawnAndSaysSo)
{
    CCanvas canvas;
    canvas.Sink().TakeLayer(Hidden("Архив"));
    EXPECT_EQ(canvas.Sink().Take(LineOn("Архив", 50)), nullptr);
    EXPECT_EQ(canvas.CountInk(), 0);
    EXPECT_EQ(canvas.Losses(),
              QStringList(QStringLiteral("1 objects are on layers that are off or frozen")));
}

TEST(PictureLayers, HiddenLayerIsDrawnIfAskedFor)
{
    CCanvas canvas({}, {QStringLiteral("архив")});
    canvas.Sink().TakeLayer(Hidden("Архив"));
    canvas.Sink().Take(LineOn("Архив", 50));
    EXPECT_GT(canvas.CountInk(), 0);
}

TEST(PictureLayers, LayersThatWereNotAskedForAreLeftOut)
{
    CCanvas canvas({}, {QStringLiteral("A"), QStringLiteral("B")});
    canvas.Sink().Take(LineOn("A", 20.5));
    canvas.Sink().Take(LineOn("B", 40.5));
    canvas.Sink().Take(LineOn("C", 60.5));
    EXPECT_FALSE(canvas.IsPaper(50, 20.5));
    EXPECT_FALSE(canvas.IsPaper(50, 40.5));
    EXPECT_TRUE(canvas.IsPaper(50, 60.5));
    EXPECT_EQ(canvas.Losses(),
              QStringList(QStringLiteral("1 objects are on layers that were not asked for")));
}

TEST(PictureLayers, MissingLayersAreThoseThatNeverCame)
{
    CLayerChoice choice(
        {QStringLiteral("Here"), QStringLiteral("There"), QStringLiteral("Nowhere")});
    choice.Note(Hidden("HERE"));
    EXPECT_EQ(choice.Judge(QStringLiteral("there")), CLayerChoice::EVerdict::Drawn);
    EXPECT_EQ(choice.Missing(), QStringList(QStringLiteral("Nowhere")));
}

} // namespace velorx::test

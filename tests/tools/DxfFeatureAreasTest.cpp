// SPDX-License-Identifier: MIT
#include "tests/tools/DxfStream.h"

#include <gtest/gtest.h>

#include <cmath>

namespace velorx::test {

using VelorExchange::CPoint3D;

TEST(DxfFeatureAreas, FaceIsAnAreaInSpace)
{
    CDxfStream stream;
    const auto& read = stream
                           .Entities("0 3DFACE, 8 0, 10 0, 20 0, 30 1, 11 5, 21 0, 31 2, 12 5, "
                                     "22 5, 32 3, 13 0, 23 5, 33 4")
                           .Read();
    ASSERT_EQ(read.areas.size(), 1U);
    EXPECT_EQ(PointsOf(read.areas[0].rings.at(0)), "(0 0 1) (5 0 2) (5 5 3) (0 5 4)");
    EXPECT_TRUE(read.areas[0].is3D);
    EXPECT_EQ(read.areas[0].fill.kind, EFeatureFill::None);
}

TEST(DxfFeatureAreas, FaceWithThreeCornersIsATriangle)
{
    CDxfStream stream;
    const auto& read =
        stream.Entities("0 3DFACE, 8 0, 10 0, 20 0, 11 5, 21 0, 12 5, 22 5, 13 5, 23 5").Read();
    EXPECT_EQ(PointsOf(read.areas.at(0).rings.at(0)), "(0 0) (5 0) (5 5)");
}

TEST(DxfFeatureAreas, FaceWithTwoCornersIsALine)
{
    CDxfStream stream;
    const auto& read =
        stream.Entities("0 3DFACE, 8 0, 10 0, 20 0, 11 5, 21 0, 12 5, 22 0, 13 0, 23 0").Read();
    EXPECT_EQ(PointsOf(read.lines.at(0).points), "(0 0) (5 0)");
}

TEST(DxfFeatureAreas, SolidIsFilledAndHasNoOutline)
{
    CDxfStream stream;
    const auto& read = stream
                           .Entities("0 SOLID, 8 0, 62 1, 10 0, 20 0, 11 5, 21 0, 12 0, 22 5, "
                                     "13 5, 23 5")
                           .Read();
    ASSERT_EQ(read.areas.size(), 1U);
    EXPECT_EQ(PointsOf(read.areas[0].rings.at(0)), "(0 0) (5 0) (5 5) (0 5)");
    EXPECT_EQ(read.areas[0].fill.kind, EFeatureFill::Solid);
    EXPECT_EQ(read.areas[0].fill.color, 0xFFU);
    EXPECT_FALSE(read.areas[0].stroke.isVisible);
}

TEST(DxfFeatureAreas, SolidOfOnePointIsListed)
{
    CDxfStream stream;
    stream.Entities("0 SOLID, 8 A, 10 1, 20 1, 11 1, 21 1, 12 1, 22 1, 13 1, 23 1").Read();
    EXPECT_EQ(stream.Lost("SOLID, nothing to draw: left out"), "1: A 1");
}

TEST(DxfFeatureAreas, HatchKeepsItsPattern)
{
    CDxfStream stream;
    const auto& read =
        stream
            .Entities("0 HATCH, 8 A, 62 2, 30 4, 2 ANSI31, 70 0, 91 1, 92 2, 72 0, 73 1, 93 3, "
                      "10 0, 20 0, 10 10, 20 0, 10 10, 20 10, 97 0, 75 0, 76 1, 52 30, 41 1, 77 1")
            .Read();
    ASSERT_EQ(read.areas.size(), 1U);
    EXPECT_EQ(PointsOf(read.areas[0].rings.at(0)), "(0 0 4) (10 0 4) (10 10 4)");
    EXPECT_EQ(read.areas[0].fill.kind, EFeatureFill::Pattern);
    EXPECT_EQ(read.areas[0].fill.pattern, "ANSI31");
    EXPECT_EQ(read.areas[0].fill.color, 0xFFFFU);
    EXPECT_NEAR(read.areas[0].fill.angle, M_PI / 6, 1e-12);
    EXPECT_TRUE(read.areas[0].fill.isDouble);
    EXPECT_TRUE(read.areas[0].is3D);
    EXPECT_FALSE(read.areas[0].stroke.isVisible);
}

TEST(DxfFeatureAreas, LinesOfAPatternTurnAndGrowWithTheInsert)
{
    CDxfStream stream;
    stream.Block("B",
                 "0 HATCH, 8 A, 2 LINE, 70 0, 91 1, 92 2, 72 0, 73 1, 93 3, 10 0, 20 0, "
                 "10 10, 20 0, 10 10, 20 10, 97 0, 75 0, 76 1, 52 0, 41 1, 77 0, 78 1, "
                 "53 0, 43 0, 44 0, 45 0, 46 2, 79 2, 49 3, 49 -1, 98 0");
    const auto& read = stream.Entities("0 INSERT, 2 B, 8 A, 41 5, 42 5, 50 90").Read();
    ASSERT_EQ(read.areas.size(), 1U) << stream.Losses();
    const SFeatureFill& fill = read.areas[0].fill;
    EXPECT_NEAR(fill.angle, M_PI / 2, 1e-12);
    ASSERT_EQ(fill.lines.size(), 1U);
    EXPECT_NEAR(fill.lines[0].angle, 90, 1e-9);
    EXPECT_NEAR(fill.lines[0].offsetX, -10, 1e-9);
    EXPECT_NEAR(fill.lines[0].offsetY, 0, 1e-9);
    ASSERT_EQ(fill.lines[0].dashes.size(), 2U);
    EXPECT_NEAR(fill.lines[0].dashes[0], 15, 1e-9);
}

TEST(DxfFeatureAreas, HatchHasItsOutermostRingsFirst)
{
    CDxfStream stream;
    const auto& read =
        stream
            .Entities("0 HATCH, 8 A, 2 SOLID, 70 1, 91 3, "
                      "92 2, 72 0, 73 1, 93 3, 10 2, 20 1, 10 3, 20 1, 10 3, 20 2, 97 0, "
                      "92 2, 72 0, 73 1, 93 3, 10 0, 20 0, 10 9, 20 0, 10 9, 20 9, 97 0, "
                      "92 2, 72 0, 73 1, 93 3, 10 20, 20 0, 10 21, 20 0, 10 21, 20 1, 97 0, "
                      "75 0, 76 1")
            .Read();
    ASSERT_EQ(read.areas.size(), 1U);
    ASSERT_EQ(read.areas[0].rings.size(), 3U);
    EXPECT_EQ(read.areas[0].fill.kind, EFeatureFill::Solid);
    EXPECT_EQ(read.areas[0].rings[0][0].x, 0);
    EXPECT_EQ(read.areas[0].rings[1][0].x, 20);
    EXPECT_EQ(read.areas[0].rings[2][0].x, 2);
}

TEST(DxfFeatureAreas, ArcsOfAHatchBecomeChords)
{
    CDxfStream stream;
    const auto& read = stream
                           .Entities("0 HATCH, 8 A, 2 SOLID, 70 1, 91 1, 92 1, 93 1, 72 2, 10 5, "
                                     "20 5, 40 4, 50 0, 51 360, 73 1, 97 0, 75 0, 76 1")
                           .Read(0.001);
    ASSERT_EQ(read.areas.size(), 1U) << stream.Losses();
    ASSERT_GT(read.areas[0].rings.at(0).size(), 50U);
    for (const CPoint3D& p : read.areas[0].rings[0]) {
        EXPECT_NEAR(std::hypot(p.x - 5, p.y - 5), 4, 1e-9);
    }
    EXPECT_EQ(stream.Lost("curves, written in chords"), "1: A 1");
}

TEST(DxfFeatureAreas, EllipsesOfAHatchKeepTheTolerance)
{
    CDxfStream stream;
    const auto& read =
        stream
            .Entities("0 HATCH, 8 A, 2 SOLID, 70 1, 91 1, 92 1, 93 1, 72 3, 10 0, "
                      "20 0, 11 100, 21 0, 40 0.5, 50 0, 51 360, 73 1, 97 0, 75 0, 76 1")
            .Read(0.001);
    ASSERT_EQ(read.areas.size(), 1U) << stream.Losses();
    const CFeatureLine& ring = read.areas[0].rings.at(0);
    for (std::size_t i = 1; i < ring.size(); ++i) {
        const double x = (ring[i - 1].x + ring[i].x) / 2;
        const double y = (ring[i - 1].y + ring[i].y) / 2;
        EXPECT_LE((1 - std::hypot(x / 100, y / 50)) * 100, 0.0011);
    }
}

TEST(DxfFeatureAreas, HatchWithoutABoundaryIsListed)
{
    CDxfStream stream;
    stream.Entities("0 HATCH, 8 A, 2 SOLID, 70 1, 91 0, 75 0, 76 1").Read();
    EXPECT_EQ(stream.Lost("HATCH, nothing to draw: left out"), "1: A 1");
}

TEST(DxfFeatureAreas, HatchWithABoundaryOfOnePointKeepsTheOthers)
{
    CDxfStream stream;
    const auto& read =
        stream
            .Entities("0 HATCH, 8 A, 2 SOLID, 70 1, 91 2, "
                      "92 2, 72 0, 73 1, 93 1, 10 2, 20 1, 97 0, "
                      "92 2, 72 0, 73 1, 93 3, 10 0, 20 0, 10 9, 20 0, 10 9, 20 9, 97 0, "
                      "75 0, 76 1")
            .Read();
    ASSERT_EQ(read.areas.size(), 1U);
    EXPECT_EQ(read.areas[0].rings.size(), 1U);
    EXPECT_EQ(stream.Lost("hatches with boundaries that enclose nothing, which are left out"),
              "1: A 1");
}

TEST(DxfFeatureAreas, ImageTellsItsCorners)
{
    CDxfStream stream;
    stream.Objects("0 IMAGEDEF, 5 AB, 1 photos/site.jpg, 10 200, 20 100");
    const auto& read = stream
                           .Entities("0 IMAGE, 8 A, 10 5, 20 6, 11 0.08, 21 0.06, 12 -0.06, "
                                     "22 0.08, 13 200, 23 100, 340 AB")
                           .Read();
    ASSERT_EQ(read.images.size(), 1U);
    const SImageFeature& image = read.images[0];
    EXPECT_EQ(image.path, "photos/site.jpg");
    EXPECT_EQ(image.name, "site");
    EXPECT_EQ(image.origin.x, 5);
    EXPECT_NEAR(image.along.x, 16, 1e-9);
    EXPECT_NEAR(image.along.y, 12, 1e-9);
    EXPECT_NEAR(image.across.x, -6, 1e-9);
    EXPECT_NEAR(image.across.y, 8, 1e-9);
    EXPECT_NEAR(image.rotation, std::atan2(3, 4), 1e-12);
    EXPECT_TRUE(image.clip.empty());
}

TEST(DxfFeatureAreas, ImageWithoutAFileIsListed)
{
    CDxfStream stream;
    EXPECT_TRUE(
        stream.Entities("0 IMAGE, 8 A, 11 1, 22 1, 13 2, 23 2, 340 AB").Read().images.empty());
    EXPECT_EQ(stream.Lost("images without a file, left out"), "1: ");
}

TEST(DxfFeatureAreas, ImageWithoutASizeIsListed)
{
    CDxfStream stream;
    stream.Objects("0 IMAGEDEF, 5 AB, 1 site.jpg");
    EXPECT_TRUE(stream.Entities("0 IMAGE, 8 A, 11 1, 22 1, 340 AB").Read().images.empty());
    EXPECT_EQ(stream.Lost("IMAGE, without a size in pixels: left out"), "1: A 1");
}

TEST(DxfFeatureAreas, ClipOfAnImageIsInTheDrawing)
{
    CDxfStream stream;
    stream.Objects("0 IMAGEDEF, 5 AB, 1 site.jpg, 10 200, 20 100");
    const auto& read =
        stream
            .Entities("0 IMAGE, 8 A, 10 0, 20 0, 11 0.1, 21 0, 12 0, 22 0.1, 13 200, "
                      "23 100, 340 AB, 71 1, 91 2, 14 -0.5, 24 -0.5, 14 99.5, 24 49.5")
            .Read();
    ASSERT_EQ(read.images.size(), 1U);
    ASSERT_EQ(read.images[0].clip.size(), 4U);
    EXPECT_NEAR(read.images[0].clip[0].x, 0, 1e-9);
    EXPECT_NEAR(read.images[0].clip[0].y, 10, 1e-9);
    EXPECT_NEAR(read.images[0].clip[2].x, 10, 1e-9);
    EXPECT_NEAR(read.images[0].clip[2].y, 5, 1e-9);
}

} // namespace velorx::test

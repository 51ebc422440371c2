// SPDX-License-Identifier: MIT
// Areas, their fills and hatches as they show in a picture.
#include "tests/tools/render/Canvas.h"

#include <gtest/gtest.h>

namespace velorx::test {

namespace {

const QColor kRed(255, 0, 0);

SAreaFeature Hatched(const std::vector<CFeatureLine>& rings, const char* pattern)
{
    SAreaFeature area = RedArea(rings);
    area.fill.kind = EFeatureFill::Pattern;
    area.fill.pattern = QString::fromLatin1(pattern);
    return area;
}

VelorExchange::dxf::CHatchLineDXF PatternLine(double angle, double offsetX, double offsetY)
{
    VelorExchange::dxf::CHatchLineDXF line;
    line.angle = angle;
    line.offsetX = offsetX;
    line.offsetY = offsetY;
    return line;
}

} // namespace

TEST(PictureAreas, FillLiesInsideTheRing)
{
    CCanvas canvas;
    EXPECT_STREQ(canvas.Sink().Take(RedArea({Rectangle(10, 20, 50, 40)})), "area");
    EXPECT_EQ(canvas.At(30, 30), kRed);
    EXPECT_EQ(canvas.CountInk(), 40 * 20);
}

TEST(PictureAreas, HoleStaysEmpty)
{
    CCanvas canvas;
    canvas.Sink().Take(RedArea({Rectangle(10, 10, 60, 60), Rectangle(20, 20, 40, 40)}));
    EXPECT_EQ(canvas.At(15, 15), kRed);
    EXPECT_TRUE(canvas.IsPaper(30, 30));
    EXPECT_EQ(canvas.CountInk(), 50 * 50 - 20 * 20);
}

TEST(PictureAreas, IslandInAHoleIsFilled)
{
    CCanvas canvas;
    canvas.Sink().Take(
        RedArea({Rectangle(10, 10, 60, 60), Rectangle(20, 20, 50, 50), Rectangle(30, 30, 40, 40)}));
    EXPECT_TRUE(canvas.IsPaper(25, 25));
    EXPECT_EQ(canvas.At(35, 35), kRed);
}

TEST(PictureAreas, OutlineIsDrawnOverTheFill)
{
    CCanvas canvas;
    SAreaFeature area = RedArea({Rectangle(10.5, 20.5, 50.5, 40.5)});
    area.stroke.isVisible = true;
    area.stroke.color = 0xFF0000;
    canvas.Sink().Take(area);
    EXPECT_EQ(canvas.At(30, 20.5), QColor(0, 0, 255));
    EXPECT_EQ(canvas.At(10.5, 30), QColor(0, 0, 255));
    EXPECT_EQ(canvas.At(30, 30), kRed);
}

TEST(PictureAreas, AreaWithoutFillIsItsOutline)
{
    CCanvas canvas;
    SAreaFeature area = RedArea({Rectangle(10.5, 20.5, 50.5, 40.5)});
    area.stroke.isVisible = true;
    area.fill.kind = EFeatureFill::None;
    canvas.Sink().Take(area);
    EXPECT_TRUE(canvas.IsPaper(30, 30));
    EXPECT_FALSE(canvas.IsPaper(10.5, 30));
}

TEST(PictureAreas, WhiteFillHidesWhatIsBelow)
{
    CCanvas canvas;
    canvas.Sink().Take(RedArea({Rectangle(10, 10, 60, 60)}));
    SAreaFeature mask = RedArea({Rectangle(20, 20, 40, 40)});
    mask.fill.color = 0xFFFFFF;
    canvas.Sink().Take(mask);
    EXPECT_TRUE(canvas.IsPaper(30, 30));
}

TEST(PictureAreas, PatternOfTheSourceKeepsItsDistances)
{
    CCanvas canvas;
    SAreaFeature area = Hatched({Rectangle(10, 10, 60, 60)}, "MINE");
    area.fill.lines = {PatternLine(0, 0, 10)};
    area.fill.lines[0].baseY = 5.5;
    canvas.Sink().Take(area);
    EXPECT_EQ(canvas.At(30, 15.5), kRed);
    EXPECT_EQ(canvas.At(30, 55.5), kRed);
    EXPECT_EQ(canvas.CountInk(), 5 * 50);
}

TEST(PictureAreas, PatternLeavesTheHoleEmpty)
{
    CCanvas canvas;
    SAreaFeature area = Hatched({Rectangle(10, 10, 60, 60), Rectangle(20, 20, 40, 40)}, "MINE");
    area.fill.lines = {PatternLine(0, 0, 10)};
    area.fill.lines[0].baseY = 5.5;
    canvas.Sink().Take(area);
    EXPECT_EQ(canvas.At(15, 25.5), kRed);
    EXPECT_EQ(canvas.At(50, 25.5), kRed);
    EXPECT_EQ(canvas.CountInk(20, 20, 40, 40), 0);
}

TEST(PictureAreas, PatternByNameIsDrawnInsideTheRingAlone)
{
    CCanvas canvas;
    canvas.Sink().Take(Hatched({Rectangle(20, 20, 70, 70)}, "ANSI31"));
    const int ink = canvas.CountInk(20, 20, 70, 70);
    EXPECT_GT(ink, 200);
    EXPECT_LT(ink, 1200);
    EXPECT_EQ(canvas.CountInk(), canvas.CountInk(19, 19, 71, 71)); // half of a line's width beyond
}

TEST(PictureAreas, UnknownPatternIsDrawnAsSlantedLines)
{
    CCanvas known;
    CCanvas unknown;
    known.Sink().Take(Hatched({Rectangle(20, 20, 70, 70)}, "ANSI31"));
    unknown.Sink().Take(Hatched({Rectangle(20, 20, 70, 70)}, "NOBODY-KNOWS"));
    EXPECT_GT(unknown.CountInk(), 0);
    EXPECT_EQ(unknown.CountInk(), known.CountInk());
}

TEST(PictureAreas, BackgroundStandsBehindThePattern)
{
    CCanvas canvas;
    SAreaFeature area = Hatched({Rectangle(20, 20, 70, 70)}, "MINE");
    area.fill.lines = {PatternLine(0, 0, 10)};
    area.fill.lines[0].baseY = 5.5;
    area.fill.hasBackground = true;
    area.fill.background = 0x00FF00;
    canvas.Sink().Take(area);
    EXPECT_EQ(canvas.At(45, 48), QColor(0, 255, 0));
    EXPECT_EQ(canvas.At(45, 45.5), kRed);
    EXPECT_EQ(canvas.CountInk(), 50 * 50);
}

TEST(PictureAreas, DensePatternIsThinnedOut)
{
    CCanvas canvas;
    SAreaFeature area = Hatched({Rectangle(0, 0, 96, 96)}, "MINE");
    area.fill.lines = {PatternLine(0, 0, 1e-6)};
    canvas.Sink().Take(area);
    EXPECT_LT(canvas.CountInk(50, 0, 51, 96), 90);
    EXPECT_GT(canvas.CountInk(50, 0, 51, 96), 20);
}

TEST(PictureAreas, HugeAreaIsFilledAsFarAsItShows)
{
    CCanvas canvas;
    canvas.Sink().Take(RedArea({Rectangle(-1e30, -1e30, 1e30, 48)}));
    EXPECT_EQ(canvas.At(50, 40), kRed);
    EXPECT_EQ(canvas.CountInk(), 100 * 50);
}

TEST(PictureAreas, HostilePatternBecomesATintInTime)
{
    CCanvas canvas;
    CFeatureLine comb;
    for (int i = 0; i < 200000; ++i) {
        comb.push_back({i % 2 == 0 ? 0.0 : 96.0, i * 96.0 / 200000, 0});
    }
    SAreaFeature area = Hatched({comb}, "MINE");
    area.fill.lines = {PatternLine(90, 4, 0)};
    canvas.Sink().Take(area);
    for (int i = 0; i < 5; ++i) {
        canvas.Sink().Take(area);
    }
    EXPECT_TRUE(canvas.IsSimplified());
    EXPECT_GT(canvas.CountInk(), 0);
}

} // namespace velorx::test

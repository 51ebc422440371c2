// SPDX-License-Identifier: MIT
// Lines as they show in a picture.
#include "tests/tools/render/Canvas.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>

namespace velorx::test {

namespace {

const QColor kBlack(0, 0, 0);
const QColor kWhite(255, 255, 255);

std::shared_ptr<const SFeatureLineType> LineType(std::vector<double> dashes)
{
    return std::make_shared<SFeatureLineType>(SFeatureLineType{QStringLiteral("DASHED"), dashes});
}

} // namespace

TEST(PictureLines, LineLiesWhereItsEndsAre)
{
    CCanvas canvas;
    EXPECT_STREQ(canvas.Sink().Take(Line({{10, 50.5, 0}, {80, 50.5, 0}})), "line");
    EXPECT_EQ(canvas.At(45, 50.5), kBlack);
    EXPECT_TRUE(canvas.IsPaper(45, 53));
    EXPECT_TRUE(canvas.IsPaper(45, 48));
    EXPECT_TRUE(canvas.IsPaper(7, 50.5));
    EXPECT_TRUE(canvas.IsPaper(83, 50.5));
}

TEST(PictureLines, UpInThePlanIsUpInThePicture)
{
    CCanvas canvas;
    canvas.Sink().Take(Line({{10, 90.5, 0}, {80, 90.5, 0}}));
    EXPECT_EQ(canvas.Ink().bottom, 90);
    EXPECT_EQ(canvas.Ink().top, 91);
}

TEST(PictureLines, ColourIsThatOfTheStroke)
{
    CCanvas canvas;
    SLineFeature line = Line({{10, 50.5, 0}, {80, 50.5, 0}});
    line.stroke.color = 0x1020F0; // blue, green, red
    canvas.Sink().Take(line);
    EXPECT_EQ(canvas.At(45, 50.5), QColor(0xF0, 0x20, 0x10));
}

TEST(PictureLines, WidthOnPaperIsMeasuredAt96DotsAnInch)
{
    CCanvas canvas;
    SLineFeature line = Line({{10, 50, 0}, {80, 50, 0}});
    line.stroke.width = 25.4 / 96 * 8;
    canvas.Sink().Take(line);
    EXPECT_EQ(canvas.CountInk(45, 0, 46, 96), 8);
}

TEST(PictureLines, WidthInThePlanIsInFileUnits)
{
    CCanvas canvas;
    SLineFeature line = Line({{10, 50, 0}, {80, 50, 0}});
    line.stroke.planWidth = 12;
    canvas.Sink().Take(line);
    EXPECT_EQ(canvas.CountInk(45, 0, 46, 96), 12);
    EXPECT_EQ(canvas.Ink().left, 10); // square ends, that do not reach beyond
    EXPECT_EQ(canvas.Ink().right, 80);
}

TEST(PictureLines, ClosedBandHasAllItsCorners)
{
    CCanvas canvas;
    SLineFeature line = Line({{20, 20, 0}, {60, 20, 0}, {60, 60, 0}, {20, 60, 0}, {20, 20, 0}});
    line.stroke.planWidth = 10;
    canvas.Sink().Take(line);
    EXPECT_EQ(canvas.At(16, 16), kBlack);
    EXPECT_EQ(canvas.At(64, 64), kBlack);
    EXPECT_TRUE(canvas.IsPaper(40, 40));
}

TEST(PictureLines, DashesLeaveGaps)
{
    CCanvas canvas;
    SLineFeature line = Line({{10, 50.5, 0}, {70, 50.5, 0}});
    line.stroke.lineType = LineType({20, -10});
    canvas.Sink().Take(line);
    EXPECT_EQ(canvas.At(20, 50.5), kBlack);
    EXPECT_TRUE(canvas.IsPaper(35, 50.5));
    EXPECT_EQ(canvas.At(50, 50.5), kBlack);
    EXPECT_TRUE(canvas.IsPaper(65, 50.5));
}

TEST(PictureLines, DashesOfAPenAreMeasuredOnPaper)
{
    SPlanBox wide;
    wide.Add(0, 0);
    wide.Add(96e6, 96e6);
    CCanvas canvas({}, {}, wide);
    SLineFeature line = Line({{0, 50.5e6, 0}, {96e6, 50.5e6, 0}});
    auto pen = std::make_shared<SFeatureLineType>();
    pen->name = QStringLiteral("MIF 12");
    pen->dashes = {25.4 / 96 * 20, -25.4 / 96 * 10};
    line.stroke.lineType = pen;
    canvas.Sink().Take(line);
    EXPECT_EQ(canvas.At(10e6, 50.5e6), kBlack);
    EXPECT_TRUE(canvas.IsPaper(25e6, 50.5e6));
    EXPECT_EQ(canvas.At(40e6, 50.5e6), kBlack);
}

TEST(PictureLines, InvisibleStrokeLeavesThePaper)
{
    CCanvas canvas;
    SLineFeature line = Line({{10, 50, 0}, {80, 50, 0}});
    line.stroke.isVisible = false;
    canvas.Sink().Take(line);
    EXPECT_EQ(canvas.CountInk(), 0);
}

TEST(PictureLines, LineWithoutLengthIsADot)
{
    CCanvas canvas;
    canvas.Sink().Take(Line({{50, 50, 0}, {50, 50, 0}}));
    EXPECT_GT(canvas.CountInk(47, 47, 53, 53), 0);
    EXPECT_EQ(canvas.CountInk(), canvas.CountInk(47, 47, 53, 53));
}

TEST(PictureLines, WhiteLineIsBlackOnWhite)
{
    CCanvas canvas;
    SLineFeature line = Line({{10, 50.5, 0}, {80, 50.5, 0}});
    line.stroke.color = 0xFFFFFF;
    canvas.Sink().Take(line);
    EXPECT_EQ(canvas.At(45, 50.5), kBlack);
}

TEST(PictureLines, BlackLineIsWhiteOnBlack)
{
    SPictureStyle style;
    style.background = 0xFF000000;
    CCanvas canvas(style);
    canvas.Sink().Take(Line({{10, 50.5, 0}, {80, 50.5, 0}}));
    EXPECT_EQ(canvas.At(45, 50.5), kWhite);
}

TEST(PictureLines, FarEndOfALongLineDoesNoHarm)
{
    CCanvas canvas;
    SLineFeature line = Line({{-1e30, 50.5, 0}, {1e30, 50.5, 0}});
    canvas.Sink().Take(line);
    line.stroke.lineType = LineType({2, -2});
    canvas.Sink().Take(line);
    EXPECT_EQ(canvas.CountInk(-2, 50, 98, 51), 100);
}

TEST(PictureLines, CoordinatesThatAreNoNumbersAreALoss)
{
    CCanvas canvas;
    const double none = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(canvas.Sink().Take(Line({{none, 1, 0}, {1, none, 0}})), nullptr);
    EXPECT_EQ(canvas.Losses(),
              QStringList(QStringLiteral("1 objects have no coordinates that can be drawn")));
}

TEST(PictureLines, LineOutsideIsALoss)
{
    CCanvas canvas;
    EXPECT_EQ(canvas.Sink().Take(Line({{5000, 1, 0}, {6000, 1, 0}})), nullptr);
    EXPECT_EQ(
        canvas.Losses(),
        QStringList(QStringLiteral("1 objects lie far off all others, outside of the picture")));
}

} // namespace velorx::test

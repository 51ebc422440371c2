// SPDX-License-Identifier: MIT
#include "tools/velorx/render/PictureExtents.h"

#include "tests/tools/render/Canvas.h"

#include <gtest/gtest.h>

#include <cmath>

namespace velorx::test {

namespace {

class PictureExtents : public testing::Test
{
protected:
    CLayerChoice layers{QStringList()};
    CPictureExtents extents{layers};

    /// A hundred lines within (1000, 1000) and (1100, 1100).
    void TakePlan()
    {
        for (int i = 0; i <= 100; ++i) {
            extents.Take(Line({{1000, 1000.0 + i, 0}, {1100, 1000.0 + i, 0}}));
        }
    }

    void ExpectBox(double left, double bottom, double right, double top)
    {
        const SPlanBox box = extents.Box();
        EXPECT_NEAR(box.left, left, 1e-9);
        EXPECT_NEAR(box.bottom, bottom, 1e-9);
        EXPECT_NEAR(box.right, right, 1e-9);
        EXPECT_NEAR(box.top, top, 1e-9);
    }
};

} // namespace

TEST_F(PictureExtents, GoAroundAllThatIsDrawn)
{
    extents.Take(Line({{0, 1, 0}, {2, 3, 0}}));
    extents.Take(RedArea({Rectangle(-5, 0, 1, 1)}));
    ExpectBox(-5, 0, 2, 3);
}

TEST_F(PictureExtents, OfNothingAreEmpty)
{
    EXPECT_TRUE(extents.Box().isEmpty);
}

TEST_F(PictureExtents, CountTheWidthOfABand)
{
    SLineFeature line = Line({{0, 0, 0}, {2, 3, 0}});
    line.stroke.planWidth = 2;
    extents.Take(line);
    SAreaFeature area = RedArea({Rectangle(0, 0, 1, 1)}); // its outline does not show
    area.stroke.planWidth = 100;
    extents.Take(area);
    ExpectBox(-1, -1, 3, 4);
}

TEST_F(PictureExtents, CountTheWholeText)
{
    STextFeature text = Text("HHHH", 10, 10);
    extents.Take(text);
    const SPlanBox box = extents.Box();
    EXPECT_NEAR(box.top, 30, 1e-9);
    EXPECT_LT(box.bottom, 10);
    EXPECT_GT(box.right, 60);
}

TEST_F(PictureExtents, LeaveHiddenLayersOut)
{
    SFeatureLayer hidden;
    hidden.name = QStringLiteral("Off");
    hidden.isVisible = false;
    extents.TakeLayer(hidden);
    SLineFeature line = Line({{0, 0, 0}, {1000, 1000, 0}});
    line.layer = hidden.name;
    extents.Take(line);
    extents.Take(Line({{0, 0, 0}, {2, 3, 0}}));
    ExpectBox(0, 0, 2, 3);
}

TEST_F(PictureExtents, LeaveOneLostObjectOut)
{
    TakePlan();
    extents.Take(Line({{-9e6, 0, 0}, {-9e6, 5, 0}}));
    ExpectBox(1000, 1000, 1100, 1100);
}

TEST_F(PictureExtents, LeaveALostObjectOutThatComesFirst)
{
    extents.Take(Line({{-9e6, 0, 0}, {-9e6, 5, 0}}));
    TakePlan();
    ExpectBox(1000, 1000, 1100, 1100);
}

TEST_F(PictureExtents, LeaveALostObjectOutThatComesAfterThousands)
{
    for (int i = 0; i < 50; ++i) {
        TakePlan();
    }
    extents.Take(Line({{9e6, 0, 0}, {9e6, 5, 0}}));
    ExpectBox(1000, 1000, 1100, 1100);
}

TEST_F(PictureExtents, KeepASecondGroupFarAway)
{
    TakePlan();
    for (int i = 0; i < 10; ++i) {
        extents.Take(Line({{9e6, 0, 0}, {9e6, 5, 0}}));
    }
    ExpectBox(1000, 0, 9e6, 1100);
}

TEST_F(PictureExtents, KeepALargeFrameAroundAll)
{
    TakePlan();
    extents.Take(RedArea({Rectangle(-9e6, -9e6, 9e6, 9e6)}));
    ExpectBox(-9e6, -9e6, 9e6, 9e6);
}

TEST_F(PictureExtents, LeaveOutWhatIsNoNumber)
{
    extents.Take(Line({{0, 0, 0}, {std::nan(""), 5, 0}, {HUGE_VAL, 5, 0}, {2, 3, 0}}));
    ExpectBox(0, 0, 2, 3);
}

TEST_F(PictureExtents, LeaveEmptyBlocksOut)
{
    SPointFeature block;
    block.kind = "INSERT";
    block.layer = QStringLiteral("0");
    block.position = {500, 500, 0};
    extents.Take(block);
    extents.Take(Line({{0, 0, 0}, {2, 3, 0}}));
    ExpectBox(0, 0, 2, 3);
}

TEST_F(PictureExtents, LeaveEndlessLinesOut)
{
    SLineFeature line = Line({{0, 0, 0}, {1e6, 1e6, 0}});
    line.kind = "XLINE";
    extents.Take(line);
    extents.Take(Line({{0, 0, 0}, {2, 3, 0}}));
    ExpectBox(0, 0, 2, 3);
}

TEST(PictureView, ShowsAllOfABoxWithinItsMargin)
{
    SPlanBox box;
    box.Add(1000, 2000);
    box.Add(1200, 2100);
    const CPictureView view(box, QSize(400, 400));
    EXPECT_EQ(view.Map(1100, 2050), QPointF(200, 200));
    EXPECT_EQ(view.Map(1000, 2050), QPointF(8, 200));
    EXPECT_LT(view.Map(1100, 2100).y(), 200);
}

TEST(PictureView, GivesABoxWithoutExtentOne)
{
    SPlanBox box;
    box.Add(5, 5);
    const CPictureView view(box, QSize(400, 400));
    EXPECT_EQ(view.Map(5, 5), QPointF(200, 200));
    EXPECT_TRUE(std::isfinite(view.Map(6, 6).x()));
}

TEST(PictureView, SuitableSizeFollowsTheShapeOfTheBoxWithinLimits)
{
    SPlanBox box;
    EXPECT_EQ(CPictureView::SuitableSize(box), QSize(1600, 1200));
    box.Add(0, 0);
    box.Add(200, 100);
    EXPECT_EQ(CPictureView::SuitableSize(box), QSize(1600, 800));
    box.Add(0, 1e9);
    EXPECT_EQ(CPictureView::SuitableSize(box), QSize(1600, 6400));
    SPlanBox flat;
    flat.Add(0, 0);
    flat.Add(200, 0);
    EXPECT_EQ(CPictureView::SuitableSize(flat), QSize(1600, 200));
}

} // namespace velorx::test

// SPDX-License-Identifier: MIT
#include "tools/velorx/features/SxfAlign.h"
#include "tools/velorx/features/SxfTextPlace.h"

#include <gtest/gtest.h>

#include <cmath>

namespace velorx::test {

// As on maps of others: the upper number of a bridge's load has 31, the lower one 28, on one line.
TEST(SxfAlign, PutsTheUpperNumberOfAFractionOnItsLine)
{
    EXPECT_EQ(FromSxfAlign(31).along, EFeatureAlign::Centre);
    EXPECT_EQ(FromSxfAlign(31).across, EFeatureVertical::Bottom);
    EXPECT_EQ(FromSxfAlign(28).along, EFeatureAlign::Centre);
    EXPECT_EQ(FromSxfAlign(28).across, EFeatureVertical::Top);
}

TEST(SxfAlign, EveryAlignmentComesBack)
{
    for (int align = 20; align <= 31; ++align) {
        EXPECT_EQ(ToSxfAlign(FromSxfAlign(align)), align);
    }
    EXPECT_EQ(ToSxfAlign({EFeatureAlign::Left, EFeatureVertical::Baseline}), 20);
    EXPECT_EQ(ToSxfAlign({EFeatureAlign::Right, EFeatureVertical::Baseline}), 21);
    EXPECT_EQ(ToSxfAlign({EFeatureAlign::Left, EFeatureVertical::Middle}), 23);
}

TEST(SxfAlign, TakesAnyOtherNumberAsTheStartOfTheBaseLine)
{
    for (const int align : {-1, 0, 19, 32, 255}) {
        EXPECT_EQ(ToSxfAlign(FromSxfAlign(align)), 20) << align;
    }
}

TEST(SxfTextPlace, LiesOnTheLineWhereTheAlignmentSays)
{
    for (const auto along : {EFeatureAlign::Left, EFeatureAlign::Centre, EFeatureAlign::Right}) {
        const SSxfTextLine line = MakeTextLine({100, 200}, std::atan2(3, 4), 10, along);
        EXPECT_DOUBLE_EQ(line.last.x - line.first.x, 6) << "x counts to the north";
        EXPECT_DOUBLE_EQ(line.last.y - line.first.y, 8);
        EXPECT_DOUBLE_EQ(PointAlong(line, along).x, 100);
        EXPECT_DOUBLE_EQ(PointAlong(line, along).y, 200);
    }
    EXPECT_EQ(MakeTextLine({1, 2}, 0, 5, EFeatureAlign::Left).first.y, 2);
    EXPECT_EQ(MakeTextLine({1, 2}, 0, 5, EFeatureAlign::Right).last.y, 2);
}

TEST(SxfTextPlace, LengthsGoBetweenPaperAndGroundByTheScale)
{
    EXPECT_DOUBLE_EQ(OnGround(2500, 1000), 2.5);
    EXPECT_DOUBLE_EQ(OnPaper(2.5, 1000), 2500);
    EXPECT_DOUBLE_EQ(OnGround(2500, 100000), 250);
}

} // namespace velorx::test

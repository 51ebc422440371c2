// SPDX-License-Identifier: MIT
#include "tools/velorx/render/Dashes.h"

#include "tools/velorx/render/StrokeLine.h"

#include <gtest/gtest.h>

#include <cmath>

namespace velorx::test {

namespace {

const QRectF kEverywhere(-1e6, -1e6, 2e6, 2e6);

/// Where the pieces of a line along `points` begin and end, "0,0-10,0 15,0-20,0".
QString Pieces(const CPixelLine& points, const CDashes& dashes, const QRectF& frame = kEverywhere)
{
    SPieceBudget budget;
    QStringList pieces;
    CutLine(points, dashes, frame, budget, [&pieces](const QLineF& piece) {
        pieces.append(QStringLiteral("%1,%2-%3,%4")
                          .arg(piece.x1())
                          .arg(piece.y1())
                          .arg(piece.x2())
                          .arg(piece.y2()));
    });
    return pieces.join(QLatin1Char(' '));
}

} // namespace

TEST(Dashes, LineTypeWithoutDashesIsSolid)
{
    EXPECT_TRUE(CDashes().IsSolid());
    EXPECT_TRUE(CDashes({}, 1).IsSolid());
    EXPECT_TRUE(CDashes({5, 3}, 1).IsSolid()); // nothing but ink
    EXPECT_EQ(CDashes().Ink(), 1.0);
}

TEST(Dashes, DrawAndLeaveGapsInTurn)
{
    EXPECT_EQ(Pieces({{0, 0}, {40, 0}}, CDashes({10, -5}, 1)), "0,0-10,0 15,0-25,0 30,0-40,0");
}

TEST(Dashes, AreScaled)
{
    EXPECT_EQ(Pieces({{0, 0}, {40, 0}}, CDashes({1, -0.5}, 10)), "0,0-10,0 15,0-25,0 30,0-40,0");
}

TEST(Dashes, DotIsAPixelLong)
{
    EXPECT_EQ(Pieces({{0, 0}, {30, 0}}, CDashes({10, -4, 0, -4}, 1)),
              "0,0-10,0 14,0-15,0 18,0-28,0");
}

TEST(Dashes, PatternCanBeginWithAGap)
{
    EXPECT_EQ(Pieces({{0, 0}, {30, 0}}, CDashes({-10, 5}, 1)), "10,0-15,0 25,0-30,0");
}

TEST(Dashes, RunOnAroundCorners)
{
    EXPECT_EQ(Pieces({{0, 0}, {6, 0}, {6, 10}}, CDashes({10, -4}, 1)), "0,0-6,0 6,0-6,4 6,8-6,10");
}

TEST(Dashes, KeepTheirPlaceWhereALineComesInFromOutside)
{
    EXPECT_EQ(Pieces({{0, 0}, {40, 0}}, CDashes({10, -5}, 1), {12, -5, 100, 10}),
              "15,0-25,0 30,0-40,0");
}

TEST(Dashes, TooFineToSeeAreSolid)
{
    EXPECT_TRUE(CDashes({1, -1}, 0.5).IsSolid());
    EXPECT_FALSE(CDashes({1, -1}, 2).IsSolid());
}

TEST(Dashes, ThatAreNoNumbersAreSolid)
{
    EXPECT_TRUE(CDashes({HUGE_VAL, -1}, 1).IsSolid());
    EXPECT_TRUE(CDashes({std::nan(""), -1}, 1).IsSolid());
}

TEST(Dashes, BecomeSolidOnceTheBudgetIsUsedUp)
{
    SPieceBudget budget;
    budget.left = 10;
    const CDashes dashes({2, -2}, 1);
    int pieces = 0;
    const auto count = [&pieces](const QLineF& /*piece*/) { ++pieces; };
    CutLine({{0, 0}, {20, 0}}, dashes, kEverywhere, budget, count);
    EXPECT_EQ(pieces, 5);
    EXPECT_FALSE(budget.isExceeded);
    CutLine({{0, 0}, {20, 0}}, dashes, kEverywhere, budget, count);
    EXPECT_EQ(pieces, 6);
    EXPECT_TRUE(budget.isExceeded);
}

TEST(Dashes, FarFromTheBeginningOfALineTheyEnd)
{
    EXPECT_EQ(Pieces({{-1e15, 0}, {40, 0}}, CDashes({10, -5}, 1), {0, -5, 100, 10}), "0,0-40,0");
}

TEST(Dashes, InkIsThePartThatIsDrawn)
{
    EXPECT_DOUBLE_EQ(CDashes({10, -30}, 1).Ink(), 0.25);
}

} // namespace velorx::test

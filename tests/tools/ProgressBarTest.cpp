// SPDX-License-Identifier: MIT
#include "tools/velorx/ProgressBar.h"

#include <gtest/gtest.h>

#include <vector>

namespace velorx {

namespace {

/// A bar on a clock that a test moves by hand.
class ProgressBar : public testing::Test
{
protected:
    std::chrono::steady_clock::time_point now;
    std::vector<std::string> drawn;
    CProgressBar bar{[this](const std::string& text) { drawn.push_back(text); },
                     [this] { return now; }};

    void Wait(int milliseconds) { now += std::chrono::milliseconds(milliseconds); }
};

} // namespace

TEST_F(ProgressBar, StaysSilentWhenTheWorkIsQuick)
{
    bar.Begin(QString(), 1000);
    Wait(400);
    bar.SetPosition(900);
    bar.Finish();
    EXPECT_TRUE(drawn.empty());
}

TEST_F(ProgressBar, ShowsTheShareOfLongWork)
{
    bar.Begin(QString(), 1000);
    Wait(600);
    bar.SetPosition(250);
    ASSERT_EQ(drawn.size(), 1U);
    EXPECT_EQ(drawn.front(), "\r[##########..............................] 25 %");
}

TEST_F(ProgressBar, MovesByWholePercents)
{
    bar.Begin(QString(), 100000);
    Wait(600);
    for (int position = 0; position < 5000; ++position) {
        bar.SetPosition(position);
    }
    EXPECT_EQ(drawn.size(), 5U);
}

TEST_F(ProgressBar, WipesItselfOutInTheEnd)
{
    bar.Begin(QString(), 1000);
    Wait(600);
    bar.SetPosition(1000);
    bar.Finish();
    ASSERT_EQ(drawn.size(), 2U);
    EXPECT_EQ(drawn.back(), "\r\033[K");
}

TEST_F(ProgressBar, TakesEmptyFilesAndPositionsBehindTheEnd)
{
    bar.Begin(QString(), 0);
    Wait(600);
    bar.SetPosition(0);
    bar.SetPosition(7);
    ASSERT_EQ(drawn.size(), 2U);
    EXPECT_EQ(drawn.back(), "\r[########################################] 100 %");
}

TEST_F(ProgressBar, CanBeUsedForAnotherFile)
{
    bar.Begin(QString(), 1000);
    Wait(600);
    bar.SetPosition(1000);
    bar.Finish();
    bar.Begin(QString(), 1000);
    bar.SetPosition(10);
    bar.Finish();
    EXPECT_EQ(drawn.size(), 2U);
}

} // namespace velorx

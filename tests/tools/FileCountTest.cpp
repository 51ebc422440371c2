// SPDX-License-Identifier: MIT
#include "tools/velorx/FileCount.h"

#include <gtest/gtest.h>

#include <string>

namespace velorx::test {

namespace {

// A count of three files with a clock that the test sets.
struct SSetup
{
    std::chrono::milliseconds now{0};
    std::string shown;
    CFileCount count{3, [this](const std::string& text) { shown += text; },
                     [this] { return std::chrono::steady_clock::time_point(now); }};
};

} // namespace

TEST(FileCount, QuickWorkStaysSilent)
{
    SSetup setup;
    setup.count.Add();
    setup.count.Finish();
    EXPECT_EQ(setup.shown, "");
}

TEST(FileCount, SaysHowManyAreDoneAndWipesItOut)
{
    SSetup setup;
    setup.count.Add();
    setup.now += std::chrono::seconds(1);
    setup.count.Add();
    setup.count.Add();
    setup.count.Finish();
    EXPECT_EQ(setup.shown, "\r\033[K2 of 3 files\r\033[K3 of 3 files\r\033[K");
}

} // namespace velorx::test

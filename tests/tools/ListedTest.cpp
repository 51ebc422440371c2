// SPDX-License-Identifier: MIT
#include "tools/velorx/info/Listed.h"

#include <gtest/gtest.h>

namespace velorx::test {

TEST(Tally, CountsEachKey)
{
    CTally<int> tally;
    for (const int key : {7, 5, 7}) {
        tally.Add(key);
    }
    EXPECT_EQ(tally.counts, (std::map<int, qint64>{{5, 1}, {7, 2}}));
    EXPECT_EQ(tally.others, 0);
}

TEST(Tally, CountsKeysBeyondTheFirstTenThousandTogether)
{
    CTally<int> tally;
    for (int key = 0; key < 10003; ++key) {
        tally.Add(key);
    }
    tally.Add(9999);
    tally.Add(10000);
    EXPECT_EQ(tally.counts.size(), 10000U);
    EXPECT_EQ(tally.counts[9999], 2);
    EXPECT_EQ(tally.others, 4);
}

TEST(Listed, KeepsTheFirstTenThousandAndCountsAll)
{
    CListed<int> list;
    for (int entry = 0; entry < 10003; ++entry) {
        list.Add(entry);
    }
    EXPECT_EQ(list.first.size(), 10000U);
    EXPECT_EQ(list.first.back(), 9999);
    EXPECT_EQ(list.total, 10003);
}

} // namespace velorx::test

// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/SingleNumber.h"

#include <gtest/gtest.h>

#include <limits>

namespace velorx::test {

TEST(SingleNumber, HasTheFewestDigitsThatItStandsFor)
{
    EXPECT_EQ(ShortestOf(12.7F).value, 12.7);
    EXPECT_EQ(ShortestOf(12.7F).digits, 3U);
    EXPECT_EQ(ShortestOf(-0.1F).value, -0.1);
    EXPECT_EQ(ShortestOf(0.0F).value, 0.0);
}

TEST(SingleNumber, KeepsWholeNumbers)
{
    EXPECT_EQ(ShortestOf(16777216.0F).value, 16777216.0);
    EXPECT_EQ(ShortestOf(16777216.0F).digits, 8U);
    EXPECT_EQ(ShortestOf(1000000.0F).digits, 1U);
}

TEST(SingleNumber, LeavesWhatIsNotFiniteAlone)
{
    const float infinite = std::numeric_limits<float>::infinity();
    EXPECT_EQ(ShortestOf(infinite).value, std::numeric_limits<double>::infinity());
    EXPECT_EQ(ShortestOf(infinite).digits, 0U);
}

} // namespace velorx::test

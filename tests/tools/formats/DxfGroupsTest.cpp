// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfGroups.h"

#include <gtest/gtest.h>

namespace velorx::test {

TEST(DxfGroups, KeepsTheFirstNumberOfACode)
{
    CDxfGroups groups;
    EXPECT_EQ(groups.Add(10, "1.5"), 1.5);
    EXPECT_EQ(groups.Add(10, "-2e1"), -20);
    EXPECT_EQ(groups.Number(10), 1.5);
    EXPECT_EQ(groups.Count(10), 2);
    EXPECT_EQ(groups.Number(20, 7.0), 7);
    EXPECT_FALSE(groups.Has(20));
}

TEST(DxfGroups, TakesWhatIsNoNumberForZero)
{
    CDxfGroups groups;
    for (const char* text : {"", "x", "nan", "inf", "+", "1e999"}) {
        EXPECT_EQ(groups.Add(40, text), 0) << text;
    }
    EXPECT_EQ(groups.Add(41, "+2.5"), 2.5);
    EXPECT_EQ(groups.Add(42, "3 4"), 3);
}

TEST(DxfGroups, TellsZerosFromTexts)
{
    CDxfGroups groups;
    groups.Add(1, "0.000");
    groups.Add(2, "zero");
    groups.Add(3, "0");
    groups.Add(3, "1");
    EXPECT_TRUE(groups.IsZero(1));
    EXPECT_FALSE(groups.IsZero(2));
    EXPECT_FALSE(groups.IsZero(3));
}

TEST(DxfGroups, TellsWhetherACodeVaries)
{
    CDxfGroups groups;
    groups.Add(40, "1");
    groups.Add(40, "1.0");
    EXPECT_FALSE(groups.Varies(40));
    groups.Add(40, "2");
    groups.Add(40, "1");
    EXPECT_TRUE(groups.Varies(40));
}

TEST(DxfGroups, IntegersLoseTheirFraction)
{
    CDxfGroups groups;
    groups.Add(70, "3.9");
    groups.Add(71, "1e300");
    EXPECT_EQ(groups.Integer(70), 3);
    EXPECT_EQ(groups.Integer(71), 0);
    EXPECT_EQ(groups.Integer(72, 5), 5);
}

TEST(DxfGroups, KeepsTheFirstTextOfSmallCodes)
{
    CDxfGroups groups;
    groups.Add(8, "Roads");
    groups.Add(8, "Houses");
    groups.Add(9, "$VARIABLE");
    EXPECT_EQ(groups.Text(8), "Roads");
    EXPECT_EQ(groups.Text(2), "");
    EXPECT_EQ(groups.Text(9), "");
}

TEST(DxfGroups, PassesOverCodesOutOfRange)
{
    CDxfGroups groups;
    groups.Add(-1, "1");
    groups.Add(1072, "1");
    EXPECT_TRUE(groups.Codes().empty());
}

TEST(DxfGroups, NewRecordKnowsNothingOfTheOld)
{
    CDxfGroups groups;
    groups.Add(8, "Roads");
    groups.Add(62, "1");
    groups.Add(62, "2");
    groups.Clear();
    EXPECT_FALSE(groups.Has(8));
    EXPECT_EQ(groups.Text(8), "");
    EXPECT_FALSE(groups.Varies(62));
    EXPECT_TRUE(groups.Codes().empty());
}

} // namespace velorx::test

// SPDX-License-Identifier: MIT
#include "tools/velorx/features/MifAttributes.h"

#include <gtest/gtest.h>

namespace velorx::test {

TEST(MifAttributes, RecordWithoutAnyMeansNothing)
{
    CMifAttributes attributes;
    const SMifMeaning& meaning = attributes.Of({});
    EXPECT_EQ(meaning.attributes, nullptr);
    EXPECT_EQ(meaning.layer, "");
    EXPECT_EQ(meaning.code, 0);
}

TEST(MifAttributes, EqualValuesOfOtherTypesAreNotTheSame)
{
    CMifAttributes attributes;
    const CFeatureAttributes number = attributes.Of({{"A", 1}}).attributes;
    const CFeatureAttributes truth = attributes.Of({{"A", true}}).attributes;
    const CFeatureAttributes other = attributes.Of({{"B", true}}).attributes;
    EXPECT_NE(number, truth);
    EXPECT_NE(truth, other);
    EXPECT_EQ(attributes.Of({{"B", true}}).attributes, other);
    EXPECT_EQ(truth->at(0).value.userType(), QMetaType::Bool);
}

TEST(MifAttributes, LayerAndCodeAreNoAttributes)
{
    CMifAttributes attributes;
    const SMifMeaning& meaning =
        attributes.Of({{"layer", QString("Roads")}, {"SXF_CODE", 5}, {"A", 7}});
    EXPECT_EQ(meaning.layer, "Roads");
    EXPECT_EQ(meaning.code, 5);
    ASSERT_EQ(meaning.attributes->size(), 1U);
    EXPECT_EQ(meaning.attributes->at(0).name, "A");
}

TEST(MifAttributes, DaysOfReadingAreNoDates)
{
    CMifAttributes attributes;
    const SMifMeaning& meaning =
        attributes.Of({{"A", QDate::currentDate()}, {"B", QDate(2001, 2, 3)}, {"C", false}});
    EXPECT_EQ(meaning.lostDates, 1);
    EXPECT_EQ(meaning.doubtful, 1);
    EXPECT_EQ(meaning.attributes->size(), 2U);
}

} // namespace velorx::test

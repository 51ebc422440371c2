// SPDX-License-Identifier: MIT
#include "tools/velorx/features/FeatureTally.h"

#include <gtest/gtest.h>

namespace velorx::test {

namespace {

CConversionReport ReportOf(const CFeatureTally& tally)
{
    CConversionReport report;
    tally.FillReport(report);
    return report;
}

} // namespace

TEST(FeatureTally, ListsKindsInTheOrderInWhichTheyWereMet)
{
    CFeatureTally tally;
    tally.Read("TEXT");
    tally.Read("LINE", true, 2);
    tally.Read("TEXT");
    tally.Wrote("TEXT", "Text");
    const CConversionReport report = ReportOf(tally);
    ASSERT_EQ(report.kinds.size(), 2U);
    EXPECT_EQ(report.kinds[0].name, "TEXT");
    EXPECT_EQ(report.kinds[0].inDrawing, 2);
    EXPECT_EQ(report.kinds[0].written, 1);
    EXPECT_EQ(report.kinds[0].writtenAs, "Text");
    EXPECT_EQ(report.kinds[1].inBlocks, 2);
    EXPECT_EQ(report.kinds[1].written, 0);
}

TEST(FeatureTally, CountsAKindOnceThatBecomesSeveral)
{
    CFeatureTally tally;
    tally.Read("HATCH", false, 3);
    tally.Wrote("HATCH", "Region");
    tally.Wrote("HATCH", "Pline");
    tally.Wrote("HATCH", "Region");
    const CConversionReport report = ReportOf(tally);
    ASSERT_EQ(report.kinds.size(), 2U);
    EXPECT_EQ(report.kinds[0].inDrawing, 3);
    EXPECT_EQ(report.kinds[0].written, 2);
    EXPECT_EQ(report.kinds[1].inDrawing, 0);
    EXPECT_EQ(report.kinds[1].writtenAs, "Pline");
}

TEST(FeatureTally, AddsLossesUpWithTheirLayers)
{
    CFeatureTally tally;
    tally.Lose("images", "Roads");
    tally.Lose("images", "Houses", 2);
    tally.Lose("images");
    const CConversionReport report = ReportOf(tally);
    ASSERT_EQ(report.losses.size(), 1U);
    EXPECT_EQ(report.losses[0].count, 4);
    EXPECT_TRUE(report.ToText().contains("4  images (layers: Houses 2, Roads 1)\n"))
        << report.ToText().toStdString();
}

TEST(FeatureTally, NamesTheLayersThatLostMostAndCountsTheRest)
{
    CFeatureTally tally;
    for (int layer = 1; layer <= 7; ++layer) {
        tally.Lose("images", QString::number(layer), layer);
    }
    EXPECT_TRUE(ReportOf(tally).ToText().contains("(layers: 7 7, 6 6, 5 5, 4 4, 3 3, 2 more)\n"));
}

TEST(FeatureTally, HandsRemarksOn)
{
    CFeatureTally tally;
    tally.Remark("The column NAME became the semantic 50001");
    EXPECT_TRUE(ReportOf(tally).ToText().endsWith("\nThe column NAME became the semantic 50001\n"));
}

} // namespace velorx::test

// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfTally.h"

#include <gtest/gtest.h>

#include <set>

namespace velorx::test {

namespace {

CConversionReport ReportOf(const CDxfTally& tally)
{
    CConversionReport report;
    tally.FillReport(report);
    return report;
}

// "2 what (A 1, B 1)" for each loss, a bar between them.
std::string LossesOf(const CDxfTally& tally)
{
    std::string text;
    for (const SConversionLoss& loss : ReportOf(tally).losses) {
        text +=
            (text.empty() ? "" : "|") + std::to_string(loss.count) + ' ' + loss.what.toStdString();
        for (const auto& [layer, count] : loss.layers) {
            text += " [" + layer.toStdString() + ' ' + std::to_string(count) + ']';
        }
    }
    return text;
}

} // namespace

TEST(DxfTally, ListsKindsThatWereMet)
{
    CDxfTally tally;
    tally.Read(kCircle, false);
    tally.Read(kCircle, true);
    tally.Wrote(kCircle, "ARC");
    const CConversionReport report = ReportOf(tally);
    ASSERT_EQ(report.kinds.size(), 1U);
    EXPECT_EQ(report.kinds[0].name, "CIRCLE");
    EXPECT_EQ(report.kinds[0].inDrawing, 1);
    EXPECT_EQ(report.kinds[0].inBlocks, 1);
    EXPECT_EQ(report.kinds[0].written, 1);
    EXPECT_EQ(report.kinds[0].writtenAs, "ARC");
}

TEST(DxfTally, CountsAKindThatBecomesSeveralForEach)
{
    CDxfTally tally;
    for (int i = 0; i < 3; ++i) {
        tally.Read(kPolyline, false);
        tally.Wrote(kPolyline, i == 0 ? "POLYLINE" : "LWPOLYLINE");
    }
    EXPECT_EQ(ReportOf(tally).kinds.at(0).writtenAs, "LWPOLYLINE 2, POLYLINE 1");
    EXPECT_EQ(ReportOf(tally).kinds.at(0).written, 3);
}

TEST(DxfTally, ListsLossesInTheirOrderWithTheirLayers)
{
    CDxfTally tally;
    tally.Lose(EDxfLoss::Rays, "B");
    tally.Lose(EDxfLoss::Arcs, "B", 2);
    tally.Lose(EDxfLoss::Arcs, "A");
    tally.Lose(EDxfLoss::Names, QString(), 0);
    EXPECT_EQ(
        LossesOf(tally),
        "3 circles, written as whole arcs [A 1] [B 2]|1 rays, written as lines without ends [B 1]");
}

TEST(DxfTally, LayersThatDifferInCaseAloneAreOne)
{
    CDxfTally tally;
    tally.Lose(EDxfLoss::Rays, QStringLiteral("Дороги"));
    tally.Lose(EDxfLoss::Rays, QStringLiteral("ДОРОГИ"));
    EXPECT_EQ(LossesOf(tally), "2 rays, written as lines without ends [Дороги 2]");
}

TEST(DxfTally, UnreadThingsStandFirst)
{
    CDxfTally tally;
    tally.Lose(EDxfLoss::Arcs, "A");
    tally.Unread("WIPEOUT", "A");
    EXPECT_EQ(LossesOf(tally),
              "1 WIPEOUT, not read: left out [A 1]|1 circles, written as whole arcs [A 1]");
}

TEST(DxfTally, BeyondAThousandUnreadKindsCountTogether)
{
    CDxfTally tally;
    for (int i = 0; i < 1010; ++i) {
        tally.Unread(std::to_string(i), "A");
    }
    const CConversionReport report = ReportOf(tally);
    EXPECT_EQ(report.losses.size(), 1001U);
    EXPECT_EQ(report.losses.back().what, "others, not read: left out");
    EXPECT_EQ(report.losses.back().count, 10);
}

TEST(DxfTally, ExpectedEntitiesThatAreNotReadAreLost)
{
    CDxfTally tally;
    tally.Expect(kLine);
    tally.Expect(kLine);
    tally.Expect(kImage);
    tally.Read(kLine, true);
    EXPECT_EQ(LossesOf(tally), "");
    tally.EndReading();
    EXPECT_EQ(LossesOf(tally), "1 LINE, lost in reading|1 images without a file, left out");
}

TEST(DxfTally, ArcReadAsACircleIsNotLost)
{
    CDxfTally tally;
    tally.Expect(kArc);
    tally.Read(kCircle, false);
    tally.EndReading();
    EXPECT_EQ(LossesOf(tally), "");
}

TEST(DxfTally, NoTwoLossesReadTheSame)
{
    std::set<std::string> texts;
    for (std::size_t i = 0; i < static_cast<std::size_t>(EDxfLoss::kCount); ++i) {
        EXPECT_TRUE(texts.insert(LossText(static_cast<EDxfLoss>(i))).second) << i;
    }
}

} // namespace velorx::test

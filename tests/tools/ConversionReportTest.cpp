// SPDX-License-Identifier: MIT
#include "tools/velorx/convert/ConversionSummary.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>

namespace velorx::test {

namespace {

CConversionReport SampleReport()
{
    CConversionReport report;
    report.kinds.push_back({"LINE", "Pline", 5, 2, 6});
    report.losses.push_back({"colours, dropped", 7, {{"Roads", 3}, {"Wells", 4}}});
    report.remarks.push_back("a remark");
    report.log = "the log";
    return report;
}

SConvertedFile Converted(const std::string& source, const std::string& error)
{
    return {source, source + ".sxf", SampleReport(), error};
}

} // namespace

TEST(ConversionReport, TellsKindsLossesLayersAndRemarks)
{
    EXPECT_EQ(SampleReport().ToText(),
              "the log\n"
              "\nCarried over\n"
              "  Kind  In the file  Inside blocks  Written  As\n"
              "  LINE            5              2        6  Pline\n"
              "\nLost or changed (left out where nothing else is said)\n"
              "  7  colours, dropped (layers: Wells 4, Roads 3)\n"
              "\na remark\n");
}

TEST(ConversionReport, NamesNoBlocksWhereThereAreNone)
{
    CConversionReport report;
    report.kinds.push_back({"Arc", "LINE", 5, 0, 5});
    EXPECT_EQ(report.ToText(),
              "\n\nCarried over\n"
              "  Kind  In the file  Written  As\n"
              "  Arc             5        5  LINE\n"
              "\nNothing was lost or changed\n");
}

TEST(ConversionReport, SaysThatThereWasNothing)
{
    EXPECT_EQ(CConversionReport().ToText(),
              "\n\nCarried over\n  Nothing: no objects were read\n"
              "\nNothing was lost or changed\n");
}

TEST(ConversionReport, GivesProgramsTheSame)
{
    const QJsonObject json = SampleReport().ToJson();
    EXPECT_EQ(QJsonDocument(json).toJson(QJsonDocument::Compact).toStdString(),
              R"({"kinds":[{"as":"Pline","in_blocks":2,"in_drawing":5,"kind":"LINE","written":6}],)"
              R"("log":"the log","losses":[{"count":7,"layers":{"Roads":3,"Wells":4},)"
              R"("what":"colours, dropped"}],"remarks":["a remark"]})");
}

TEST(ConversionSummary, OfOneFileIsItsReport)
{
    EXPECT_EQ(SummaryText({Converted("a", "")}), SampleReport().ToText().toUtf8());
    EXPECT_EQ(SummaryText({Converted("a", "it failed")}), "it failed\n");
}

TEST(ConversionSummary, OfSeveralNamesEachAndCountsThem)
{
    const QByteArray text = SummaryText({Converted("a", ""), Converted("b", "it failed")});
    EXPECT_EQ(text,
              "a -> a.sxf\n" + SampleReport().ToText().toUtf8()
                  + "\nb -> b.sxf\nit failed\n\n1 of 2 files converted\n");
}

TEST(ConversionSummary, InJsonHasEveryFile)
{
    const QJsonObject json =
        QJsonDocument::fromJson(SummaryJson({Converted("a", ""), Converted("b", "no")})).object();
    EXPECT_EQ(json.value("converted").toInt(), 1);
    EXPECT_EQ(json.value("failed").toInt(), 1);
    const QJsonObject second = json.value("files").toArray().at(1).toObject();
    EXPECT_EQ(second.value("source").toString(), "b");
    EXPECT_EQ(second.value("target").toString(), "b.sxf");
    EXPECT_FALSE(second.value("result").toBool(true));
    EXPECT_EQ(second.value("error").toString(), "no");
    EXPECT_EQ(second.value("log").toString(), "the log");
}

} // namespace velorx::test

// SPDX-License-Identifier: MIT
#include "VelorExchange/foundation/ExportLog.h"

#include <QDateTime>
#include <QRegularExpression>

#include <utility>

using VelorExchange::CExportLog;

namespace {

const QString kRule = QLatin1Char('\n') + QString(59, QLatin1Char('-'));

// The report without the stamp behind its last line feed.
QString Body(const CExportLog& log)
{
    QString out;
    log.GetText(out);
    return out.left(out.lastIndexOf(QLatin1Char('\n')));
}

} // namespace

TEST(ExportLog, EmptyLogIsTheStampAlone)
{
    QString out = QStringLiteral("what was here before");
    const int length = CExportLog().GetText(out);
    EXPECT_EQ(length, out.size());
    EXPECT_TRUE(length == 18 || length == 19) << length;
    const QRegularExpression stamp(
        QStringLiteral("^\n\\d\\d\\.\\d\\d\\.\\d\\d, \\d{1,2}:\\d\\d:\\d\\d$"));
    EXPECT_TRUE(stamp.match(out).hasMatch()) << qPrintable(out);
}

TEST(ExportLog, StampIsTheLocalTimeOfTheCall)
{
    const auto stamp = [] {
        return QDateTime::currentDateTime().toString(QStringLiteral("\ndd.MM.yy, h:mm:ss"));
    };
    const QString before = stamp();
    QString out;
    CExportLog().GetText(out);
    EXPECT_TRUE(out == before || out == stamp()) << qPrintable(out);
}

TEST(ExportLog, PutsRuleUnderEveryString)
{
    CExportLog log;
    log.AddString(QStringLiteral("один"));
    log.AddString(QStringLiteral("two"));
    EXPECT_EQ(Body(log), QStringLiteral("\nодин") + kRule + QStringLiteral("\ntwo") + kRule);
}

TEST(ExportLog, ReportsCountsUnderTheirFile)
{
    CExportLog log;
    log.SetFolderPath(QStringLiteral("C:\\out\\"));
    log.SetOutputFile(QStringLiteral("a.dxf"));
    for (int i = 0; i < 3; ++i) {
        log.UpStatistic(QStringLiteral("слои"));
    }
    EXPECT_EQ(Body(log),
              QStringLiteral("\nЭкспорт в файл - C:\\out\\a.dxf") + kRule
                  + QStringLiteral("\nЗаписаны в файл слои - 3") + kRule);
}

TEST(ExportLog, OrdersFilesAndKindsByName)
{
    CExportLog log;
    log.UpStatistic(QStringLiteral("b"), QStringLiteral("y"));
    log.UpStatistic(QStringLiteral("b"), QStringLiteral("x"));
    log.UpStatistic(QStringLiteral("a"), QStringLiteral("z"));
    const QString body = Body(log);
    EXPECT_LT(body.indexOf(QStringLiteral("файл - a")), body.indexOf(QStringLiteral("файл - b")));
    EXPECT_LT(body.indexOf(QStringLiteral("файл x")), body.indexOf(QStringLiteral("файл y")));
}

TEST(ExportLog, ClearKeepsCounts)
{
    CExportLog log;
    log.AddString(QStringLiteral("line"));
    log.UpStatistic(QStringLiteral("f"), QStringLiteral("k"));
    log.Clear();
    EXPECT_FALSE(Body(log).contains(QStringLiteral("line")));
    EXPECT_TRUE(Body(log).contains(QStringLiteral("Записаны в файл k - 1")));
}

TEST(ExportLog, ClearStatisticsRemovesHeading)
{
    CExportLog log;
    log.UpStatistic(QStringLiteral("f"), QStringLiteral("k"));
    log.UpStatistic(QStringLiteral("g"), QStringLiteral("k"));
    log.ClearStatistics(QStringLiteral("f"));
    log.ClearStatistics(QStringLiteral("never counted"));
    EXPECT_FALSE(Body(log).contains(QStringLiteral("файл - f")));
    EXPECT_TRUE(Body(log).contains(QStringLiteral("файл - g")));
}

TEST(ExportLog, CountsUnderEmptyNameBeforeSetOutputFile)
{
    CExportLog log;
    log.SetFolderPath(QStringLiteral("/out/"));
    log.UpStatistic(QStringLiteral("k"));
    EXPECT_TRUE(Body(log).startsWith(QStringLiteral("\nЭкспорт в файл - /out/\n")));
}

TEST(ExportLog, AppliesFolderPathWhenReporting)
{
    CExportLog log;
    log.UpStatistic(QStringLiteral("f"), QStringLiteral("k"));
    log.SetFolderPath(QStringLiteral("/late/"));
    EXPECT_TRUE(Body(log).contains(QStringLiteral("файл - /late/f\n")));
}

TEST(ExportLog, ValueWithPlaceMarkerStaysAsItIs)
{
    CExportLog log;
    log.UpStatistic(QStringLiteral("f"), QStringLiteral("%2 %3"));
    EXPECT_TRUE(Body(log).contains(QStringLiteral("Записаны в файл %2 %3 - 1\n")));
}

TEST(ExportLog, GetTextChangesNothing)
{
    CExportLog log;
    log.AddString(QStringLiteral("line"));
    log.UpStatistic(QStringLiteral("f"), QStringLiteral("k"));
    const QString first = Body(log);
    EXPECT_EQ(Body(log), first);
}

TEST(ExportLog, CopyIsIndependent)
{
    CExportLog log;
    log.AddString(QStringLiteral("line"));
    log.UpStatistic(QStringLiteral("f"), QStringLiteral("k"));
    CExportLog copy(log);
    CExportLog assigned;
    assigned = log;
    log.Clear();
    log.ClearStatistics(QStringLiteral("f"));
    EXPECT_TRUE(Body(copy).contains(QStringLiteral("k - 1")));
    EXPECT_EQ(Body(copy), Body(assigned));
    EXPECT_EQ(Body(log), QString());
}

TEST(ExportLog, CopyTakesFileSettings)
{
    CExportLog log;
    log.SetFolderPath(QStringLiteral("/p/"));
    log.SetOutputFile(QStringLiteral("f"));
    CExportLog copy(log);
    CExportLog assigned;
    assigned = log;
    for (CExportLog* taken : {&copy, &assigned}) {
        taken->UpStatistic(QStringLiteral("k"));
        EXPECT_TRUE(Body(*taken).contains(QStringLiteral("файл - /p/f\n")));
    }
}

TEST(ExportLog, MoveTakesStatistics)
{
    CExportLog log;
    log.UpStatistic(QStringLiteral("f"), QStringLiteral("k"));
    CExportLog moved(std::move(log));
    EXPECT_FALSE(
        Body(log).contains(QStringLiteral("k - 1"))); // NOLINT: the state after is promised
    CExportLog assigned;
    assigned = std::move(moved);
    EXPECT_FALSE(
        Body(moved).contains(QStringLiteral("k - 1"))); // NOLINT: the state after is promised
    EXPECT_TRUE(Body(assigned).contains(QStringLiteral("k - 1")));
}

TEST(ExportLog, MoveTakesTextAndFileSettings)
{
    CExportLog log;
    log.SetFolderPath(QStringLiteral("/p/"));
    log.SetOutputFile(QStringLiteral("f"));
    log.AddString(QStringLiteral("line"));
    CExportLog moved(std::move(log));
    CExportLog assigned;
    assigned = std::move(moved);
    assigned.UpStatistic(QStringLiteral("k"));
    EXPECT_TRUE(Body(assigned).startsWith(QStringLiteral("\nline")));
    EXPECT_TRUE(Body(assigned).contains(QStringLiteral("файл - /p/f\n")));
}

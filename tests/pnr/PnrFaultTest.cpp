// SPDX-License-Identifier: MIT
#include "VelorExchange/foundation/ExportLog.h"

#include "PnrWriting.h"

#include <QDir>

#include <csignal>
#include <sys/resource.h>

using namespace VelorExchange::pnr;
using VelorExchange::CExportLog;

namespace {

std::unique_ptr<CLineObject> Line(std::size_t vertices)
{
    auto line = std::make_unique<CLineObject>();
    auto holder = std::make_unique<CVertexHolder2D>();
    holder->vertices.resize(vertices, {1, 2});
    line->holders.push_back(std::move(holder));
    return line;
}

CPnrWriting::COptions To(const QString& fileName, bool text, CExportLog* log = nullptr)
{
    CPnrWriting::COptions options;
    options.text = text;
    options.log = log;
    options.fileName = fileName;
    return options;
}

QString Report(const CExportLog& log)
{
    QString report;
    log.GetText(report);
    return report;
}

// No file grows beyond the limit as long as this lives.
class CFileSizeLimit
{
public:
    explicit CFileSizeLimit(rlim_t bytes) : handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &before);
        rlimit limit = before;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    CFileSizeLimit(const CFileSizeLimit&) = delete;
    CFileSizeLimit& operator=(const CFileSizeLimit&) = delete;
    ~CFileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &before);
        std::signal(SIGXFSZ, handler);
    }

private:
    rlimit before{};
    void (*handler)(int);
};

// Temporary files have no place as long as this lives.
class CNoTemporaryFolder
{
public:
    CNoTemporaryFolder() : before(qgetenv("TMPDIR")) { qputenv("TMPDIR", "/proc"); }
    CNoTemporaryFolder(const CNoTemporaryFolder&) = delete;
    CNoTemporaryFolder& operator=(const CNoTemporaryFolder&) = delete;
    ~CNoTemporaryFolder() { before.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before); }

private:
    QByteArray before;
};

class PnrFaults : public testing::TestWithParam<bool>
{
};

} // namespace

TEST_P(PnrFaults, CloseIsFalseWhereTheTargetDoesNotOpen)
{
    const QTemporaryDir folder;
    for (const QString& target : {QStringLiteral("/nonexistent/map"), folder.path()}) {
        CPnrWriting writing(To(target, GetParam()));
        EXPECT_TRUE(writing.Opened()) << "the target is not touched before Close";
        EXPECT_TRUE(writing->WriteLine(Line(2).get()));
        writing.Close();
        EXPECT_FALSE(writing.Closed());
    }
}

TEST_P(PnrFaults, CloseWithNoObjectDoesNotTouchAnUnwritableTarget)
{
    CPnrWriting writing(To(QStringLiteral("/nonexistent/map"), GetParam()));
    writing.Close();
    EXPECT_TRUE(writing.Closed());
}

TEST_P(PnrFaults, CloseIsFalseOnAFullDisk)
{
    for (const std::size_t vertices : {2U, 200000U}) {
        CPnrWriting writing(To(QStringLiteral("/dev/full"), GetParam()));
        EXPECT_TRUE(writing->WriteLine(Line(vertices).get()));
        EXPECT_FALSE(writing->Close());
    }
}

TEST_P(PnrFaults, CloseIsFalseWhereTheTemporaryFileCameShort)
{
    CPnrWriting writing(To({}, GetParam()));
    const CFileSizeLimit limit(1000000);
    bool written = true;
    for (int i = 0; i < 30; ++i) {
        written = writing->WriteLine(Line(5000).get()) && written;
    }
    EXPECT_EQ(written, !GetParam()) << "the text writer tells, the binary one leaves it to Close";
    EXPECT_FALSE(writing->Close());
    EXPECT_FALSE(QFile::exists(writing.FileName())) << "no half of a map is left";
}

TEST_P(PnrFaults, CloseIsFalseWhereTheTemporaryFileComesShortAtTheEnd)
{
    CPnrWriting writing(To({}, GetParam()));
    EXPECT_TRUE(writing->WriteLine(Line(2000).get()));
    const CFileSizeLimit limit(10000);
    EXPECT_FALSE(writing->Close());
    EXPECT_FALSE(QFile::exists(writing.FileName()));
}

TEST_P(PnrFaults, OpenIsFalseWithoutAPlaceForTemporaryFiles)
{
    const QTemporaryDir folder;
    const QString target = folder.filePath(QStringLiteral("map"));
    const CNoTemporaryFolder none;
    CPnrWriting writing(To(target, GetParam()));
    EXPECT_FALSE(writing.Opened());
    EXPECT_EQ(writing->WriteLine(Line(2).get()), !GetParam());
    EXPECT_FALSE(writing->Close());
    EXPECT_FALSE(QFile::exists(target));
}

TEST_P(PnrFaults, ASecondCloseIsFalseAndLeavesTheTargetAlone)
{
    CPnrWriting writing(To({}, GetParam()));
    writing->WriteLine(Line(2).get());
    const QByteArray file = writing.Close();
    EXPECT_TRUE(writing.Closed());
    EXPECT_EQ(writing.Close(), file);
    EXPECT_FALSE(writing.Closed());
}

TEST_P(PnrFaults, WritersWithoutLogAndContextWrite)
{
    CPnrWriting writing(To({}, GetParam()));
    EXPECT_TRUE(writing->WriteLine(Line(70000).get()));
    EXPECT_FALSE(writing.Close().isEmpty());
    EXPECT_TRUE(writing.Closed());
}

TEST_P(PnrFaults, TemporaryFilesGoAwayWithTheWriter)
{
    const QTemporaryDir folder;
    const QTemporaryDir temporaries;
    const QByteArray before = qgetenv("TMPDIR");
    qputenv("TMPDIR", temporaries.path().toLocal8Bit());
    {
        CPnrWriting writing(To(folder.filePath(QStringLiteral("map")), GetParam()));
        writing->WriteLine(Line(70000).get());
        writing.Close();
    }
    before.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);
    EXPECT_TRUE(QDir(temporaries.path()).isEmpty());
}

INSTANTIATE_TEST_SUITE_P(BothForms, PnrFaults, testing::Bool());

TEST(PnrTxtWriterFaults, AFailedCloseStandsInTheReportInsteadOfTheCounts)
{
    CExportLog log;
    log.UpStatistic(QStringLiteral("other"), QStringLiteral("слои"));
    CPnrWriting writing(To(QStringLiteral("/nonexistent/map"), true, &log));
    writing->WriteLine(Line(2).get());
    EXPECT_FALSE(writing->Close());
    CExportLog expected;
    expected.UpStatistic(QStringLiteral("other"), QStringLiteral("слои"));
    expected.AddString(QStringLiteral("Ошибка записи файла /nonexistent/map"));
    EXPECT_EQ(Report(log).chopped(18).toStdString(), Report(expected).chopped(18).toStdString());
}

TEST(PnrTxtWriterFaults, AFullDiskStandsInTheReport)
{
    CExportLog log;
    CPnrWriting writing(To(QStringLiteral("/dev/full"), true, &log));
    writing->WriteLine(Line(2).get());
    EXPECT_FALSE(writing->Close());
    EXPECT_TRUE(Report(log).contains(QStringLiteral("Ошибка записи файла /dev/full")));
    EXPECT_FALSE(Report(log).contains(QStringLiteral("линейные объекты")));
}

TEST(PnrBinWriterFaults, AFailedCloseLeavesTheReportAsItWas)
{
    CExportLog log;
    CPnrWriting writing(To(QStringLiteral("/nonexistent/map"), false, &log));
    writing->WriteLine(Line(2).get());
    const QString before = Report(log).chopped(18);
    EXPECT_FALSE(writing->Close());
    EXPECT_EQ(Report(log).chopped(18), before);
}

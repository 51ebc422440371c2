// SPDX-License-Identifier: MIT
#include "tests/support/MifWriting.h"
#include "VelorExchange/foundation/FileError.h"

#include <QDir>

#include <csignal>
#include <sys/resource.h>

using namespace VelorExchange;
using namespace VelorExchange::mif;
using namespace VelorExchange::test;

namespace {

// Lets no file grow beyond a size, as a full disk does.
class CFileSizeLimit
{
public:
    explicit CFileSizeLimit(rlim_t bytes)
    {
        handler = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit limit{bytes, before.rlim_max};
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
    void (*handler)(int) = nullptr;
};

const std::string kRule = '\n' + std::string(59, '-');

std::string Failure(const CMifWriting& writing, const char* file)
{
    return "\nОшибка записи файла " + writing.Name(file).toStdString() + kRule;
}

std::string OnePoint(const char* file)
{
    return std::string("\nЭкспорт в файл - ") + file + kRule + "\nЗаписаны в файл точки - 1"
        + kRule;
}

void AddOneToEach(const CMifWriting& writing, const std::vector<const char*>& layers)
{
    for (const char* layer : layers) {
        EXPECT_TRUE(writing->AddPoint(CPointMIF(), QString::fromUtf8(layer)));
    }
}

CPolylineMIF LongLine()
{
    CPolylineMIF line;
    line.points.resize(20000);
    return line;
}

} // namespace

TEST(WriterFaults, FolderThatIsMissingIsLoggedForEachLayer)
{
    CMifWriting writing;
    AddOneToEach(writing, {"a", "b"});
    writing->Rewrite(writing.Name("missing"), nullptr);
    EXPECT_EQ(writing.Report(),
              Failure(writing, "missing/a.MIF") + Failure(writing, "missing/b.MIF"));
}

TEST(WriterFaults, OneLayerThatFailsLeavesTheOthers)
{
    CMifWriting writing;
    AddOneToEach(writing, {"a", "b", "c"});
    ASSERT_TRUE(QDir(writing.folder.path()).mkdir(QStringLiteral("b.MIF")));
    writing.Rewrite();
    EXPECT_EQ(writing.Report(), Failure(writing, "b.MIF") + OnePoint("a.MIF") + OnePoint("c.MIF"));
    EXPECT_EQ(writing.File("b.MID"), "missing");
    EXPECT_EQ(writing.File("a.MID"), "\n");
    EXPECT_EQ(writing.File("c.MID"), "\n");
}

TEST(WriterFaults, RowsFileThatCannotBeOpenedKeepsTheGeometryAndItsCount)
{
    CMifWriting writing;
    AddOneToEach(writing, {"a", "b"});
    ASSERT_TRUE(QDir(writing.folder.path()).mkdir(QStringLiteral("a.MID")));
    writing.Rewrite();
    EXPECT_EQ(writing.Report(), Failure(writing, "a.MID") + OnePoint("a.MIF") + OnePoint("b.MIF"));
    EXPECT_NE(writing.File("a.MIF"), "missing");
    EXPECT_EQ(writing.File("b.MID"), "\n");
}

TEST(WriterFaults, FullDiskUnderTheGeometryIsAFileError)
{
    CMifWriting writing;
    AddOneToEach(writing, {"a"});
    ASSERT_TRUE(QFile::link(QStringLiteral("/dev/full"), writing.Name("a.MIF")));
    try {
        writing.Rewrite();
        FAIL() << "a full disk passed unnoticed";
    } catch (const FileError& error) {
        EXPECT_EQ(error.fileName, writing.Name("a.MIF"));
        EXPECT_NE(error.error, QFile::NoError);
    }
}

TEST(WriterFaults, FullDiskAtTheLastBytesIsAFileError)
{
    CMifWriting writing;
    AddOneToEach(writing, {"a"});
    const auto size = static_cast<rlim_t>(writing.Data().size());
    const auto whole = static_cast<rlim_t>(QFile(writing.Name("a.MIF")).size());
    ASSERT_GT(whole, size);
    const CFileSizeLimit limit(whole - 1);
    EXPECT_THROW(writing.Rewrite(), FileError);
}

TEST(WriterFaults, FullDiskUnderTheRowsIsLogged)
{
    CMifWriting writing;
    AddOneToEach(writing, {"a", "b"});
    ASSERT_TRUE(QFile::link(QStringLiteral("/dev/full"), writing.Name("a.MID")));
    writing.Rewrite();
    EXPECT_EQ(writing.Report(), Failure(writing, "a.MID") + OnePoint("a.MIF") + OnePoint("b.MIF"));
    EXPECT_EQ(writing.File("b.MID"), "\n");
}

TEST(WriterFaults, TemporaryFileThatCameShortFailsItsLayerOnly)
{
    CMifWriting writing;
    {
        const CFileSizeLimit limit(65536);
        EXPECT_TRUE(writing->AddPolyline(LongLine(), QStringLiteral("long")));
        EXPECT_TRUE(writing->AddPoint(CPointMIF(), kLayer));
    }
    writing.Rewrite();
    EXPECT_EQ(writing.Report(), Failure(writing, "long.MIF") + OnePoint("a.MIF"));
    EXPECT_EQ(writing.File("long.MIF"), "missing");
    EXPECT_EQ(writing.File("long.MID"), "missing");
    EXPECT_EQ(writing.File("a.MID"), "\n");
}

TEST(WriterFaults, AfterAFileErrorWritingGoesOn)
{
    CMifWriting writing;
    EXPECT_TRUE(writing->AddPolyline(LongLine(), kLayer));
    {
        const CFileSizeLimit limit(65536);
        EXPECT_THROW(writing.Rewrite(), FileError);
    }
    EXPECT_TRUE(writing->AddPoint(CPointMIF(), kLayer));
    const std::string data = writing.Data();
    EXPECT_EQ(data.substr(0, 12), "PLINE\n20000\n");
    const std::string last = "PEN (1, 2, 0)\nPOINT 0.0000 0.0000\n";
    EXPECT_EQ(data.substr(data.size() - last.size()), last);
}

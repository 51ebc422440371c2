// SPDX-License-Identifier: MIT
#include "VelorExchange/foundation/FileError.h"
#include "VelorExchange/foundation/TemporaryFile_p.h"

#include <QDir>

using VelorExchange::AppendFileContents;
using VelorExchange::FileError;
using VelorExchange::OpenTemporaryFile;

namespace {

QByteArray Pattern(int size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    for (int i = 0; i < size; ++i) {
        bytes[i] = static_cast<char>(i * 31 + i / 977);
    }
    return bytes;
}

// Restores TMPDIR, which decides where temporary files go.
class CTemporaryFolder
{
public:
    explicit CTemporaryFolder(const char* path) : before(qgetenv("TMPDIR"))
    {
        qputenv("TMPDIR", path);
    }
    ~CTemporaryFolder() { before.isEmpty() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before); }

private:
    QByteArray before;
};

} // namespace

TEST(TemporaryFile, IsOpenAndVanishes)
{
    QString name;
    {
        const auto file = OpenTemporaryFile();
        ASSERT_TRUE(file);
        EXPECT_TRUE(file->isOpen());
        name = file->fileName();
        EXPECT_TRUE(QFile::exists(name));
    }
    EXPECT_FALSE(QFile::exists(name));
}

TEST(TemporaryFile, IsNullWhereTheFolderTakesNoFiles)
{
    const CTemporaryFolder folder("/proc");
    EXPECT_FALSE(OpenTemporaryFile());
}

TEST(AppendFileContents, CopiesSourceLeftAtItsEnd)
{
    const auto source = OpenTemporaryFile();
    const auto target = OpenTemporaryFile();
    source->write("tail");
    target->write("head ");
    AppendFileContents(*target, *source);
    target->seek(0);
    EXPECT_EQ(target->readAll(), QByteArray("head tail"));
}

TEST(AppendFileContents, CopiesMoreThanOneBuffer)
{
    const QByteArray bytes = Pattern(2 * 1048576 + 12345);
    const auto source = OpenTemporaryFile();
    const auto target = OpenTemporaryFile();
    source->write(bytes);
    AppendFileContents(*target, *source);
    target->seek(0);
    EXPECT_TRUE(target->readAll() == bytes);
}

TEST(AppendFileContents, EmptySourceWritesNothing)
{
    const auto source = OpenTemporaryFile();
    const auto target = OpenTemporaryFile();
    AppendFileContents(*target, *source);
    EXPECT_EQ(target->size(), 0);
}

TEST(AppendFileContents, FullTargetIsNamed)
{
    const auto source = OpenTemporaryFile();
    source->write(Pattern(3000000));
    QFile target(QStringLiteral("/dev/full"));
    ASSERT_TRUE(target.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    try {
        AppendFileContents(target, *source);
        FAIL() << "a full disk passed unnoticed";
    } catch (const FileError& error) {
        EXPECT_EQ(error.fileName, QStringLiteral("/dev/full"));
        EXPECT_NE(error.error, QFile::NoError);
    }
}

TEST(AppendFileContents, TargetThatDoesNotFlushIsNamed)
{
    const auto source = OpenTemporaryFile();
    QFile target(QStringLiteral("/dev/full"));
    ASSERT_TRUE(target.open(QIODevice::WriteOnly));
    target.write("held back in the buffer");
    try {
        AppendFileContents(target, *source);
        FAIL() << "a full disk passed unnoticed";
    } catch (const FileError& error) {
        EXPECT_EQ(error.fileName, QStringLiteral("/dev/full"));
    }
}

TEST(AppendFileContents, SourceThatDoesNotFlushIsNamed)
{
    const auto target = OpenTemporaryFile();
    QFile source(QStringLiteral("/dev/full"));
    ASSERT_TRUE(source.open(QIODevice::ReadWrite));
    source.write("held back in the buffer");
    try {
        AppendFileContents(*target, source);
        FAIL() << "a full disk passed unnoticed";
    } catch (const FileError& error) {
        EXPECT_EQ(error.fileName, QStringLiteral("/dev/full"));
    }
    EXPECT_EQ(target->size(), 0);
}

TEST(AppendFileContents, UnreadableSourceIsNamed)
{
    const auto target = OpenTemporaryFile();
    const auto source = OpenTemporaryFile();
    source->write("something");
    source->flush();
    QFile writeOnly(source->fileName());
    ASSERT_TRUE(writeOnly.open(QIODevice::WriteOnly | QIODevice::Append));
    try {
        AppendFileContents(*target, writeOnly);
        FAIL() << "an unreadable file passed unnoticed";
    } catch (const FileError& error) {
        EXPECT_EQ(error.fileName, source->fileName());
    }
}

// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/read/Read.h"

#include "tests/support/DxfRecorder.h"
#include "tests/support/LocaleCodec.h"

#include <QDir>
#include <QTemporaryDir>

using namespace VelorExchange::test;
using namespace VelorExchange::dxf;

namespace {

// A host that must not hear anything but the questions for its progress.
std::string Told(const QString& path)
{
    CProgressRecorder progress;
    CDxfRecorder recorder;
    recorder.recordsGates = true;
    recorder.progress = &progress;
    const bool result = Read(path, &recorder);
    return progress.text + recorder.text + (result ? "true" : "false");
}

void Write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(bytes), bytes.size());
}

const QByteArray kPoint = Entities("0 POINT\n10 1\n");

} // namespace

TEST(Read, MissingFileIsFalseAndCallsNothing)
{
    const QTemporaryDir folder;
    EXPECT_EQ(Told(folder.filePath(QStringLiteral("missing.dxf"))), "false");
}

TEST(Read, EmptyPathIsFalseAndCallsNothing)
{
    EXPECT_EQ(Told(QString()), "false");
}

TEST(Read, FolderIsFalseAndCallsNothing)
{
    const QTemporaryDir folder;
    EXPECT_EQ(Told(folder.path()), "false");
}

TEST(Read, FileThatCannotBeOpenedAsksForNoProgress)
{
    class CAsked final : public IDXFReader
    {
    public:
        IDXFProgress* GetProgress() override
        {
            asked = true;
            return nullptr;
        }
        bool asked = false;
    };
    CAsked host;
    EXPECT_FALSE(Read(QStringLiteral("/missing/file.dxf"), &host));
    EXPECT_FALSE(host.asked);
}

TEST(Read, EmptyFileIsTrue)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("empty.dxf"));
    Write(path, "");
    EXPECT_EQ(Told(path), "Begin \"\" 0\nPosition 0\nFinish\ntrue");
}

TEST(Read, FileOfBlanksAndLineEndsIsTrue)
{
    EXPECT_EQ(Recorded("\r\n\r\n \r\n\n\r"), "");
}

TEST(Read, ProgressBeginsWithTheSizeAndEndsWithIt)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("end.dxf"));
    Write(path, "  0\r\nEOF\r\nrest\r\n");
    EXPECT_EQ(Told(path), "Begin \"\" 16\nPosition 10\nPosition 16\nFinish\ntrue");
}

TEST(Read, ProgressFinishesAfterAFailureToo)
{
    CProgressRecorder progress;
    CDxfRecorder recorder;
    recorder.progress = &progress;
    EXPECT_FALSE(ReadBytes(Tags("0 SECTION\n2 BLOCKS\n0 BLOCK\n"), recorder));
    EXPECT_EQ(progress.text, "Begin \"\" 39\nPosition 14\nPosition 39\nPosition 39\nFinish\n");
}

TEST(Read, ProgressMayBeAbsent)
{
    CDxfRecorder recorder;
    EXPECT_TRUE(ReadBytes(kPoint, recorder));
}

TEST(Read, ProgressIsAskedForAtEachReport)
{
    class CAsked final : public IDXFReader
    {
    public:
        IDXFProgress* GetProgress() override
        {
            ++times;
            return &progress;
        }
        CProgressRecorder progress;
        int times = 0;
    };
    CAsked host;
    ReadBytes(kPoint, host);
    EXPECT_EQ(host.times, 1 + static_cast<int>(host.progress.positions.size()));
}

TEST(Read, PositionsNeverFall)
{
    CProgressRecorder progress;
    CDxfRecorder recorder;
    recorder.progress = &progress;
    QByteArray entities;
    for (int i = 0; i < 20000; ++i) {
        entities += "  0\r\nPOINT\r\n 10\r\n" + QByteArray::number(i) + "\r\n";
    }
    ReadBytes(Tags("0 SECTION\n2 ENTITIES\n") + entities + Tags("0 ENDSEC\n0 EOF\n"), recorder);
    EXPECT_TRUE(std::is_sorted(progress.positions.begin(), progress.positions.end()));
    EXPECT_GT(progress.positions.size(), 20000U);
}

TEST(Read, PathMayHoldAnyLetters)
{
    const CLocaleCodec codec("UTF-8");
    const QTemporaryDir folder;
    const QString inside = folder.filePath(QString::fromUtf8(u8"Съёмка 2024"));
    ASSERT_TRUE(QDir().mkpath(inside));
    const QString path = inside + QString::fromUtf8(u8"/план участка №1.dxf");
    Write(path, kPoint);
    CDxfRecorder recorder;
    EXPECT_TRUE(Read(path, &recorder));
    EXPECT_EQ(recorder.text, "Point point=(1 0 0)\n");
}

TEST(Read, FileStaysAsItIsAndMayBeReadAgain)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("point.dxf"));
    Write(path, kPoint);
    QFile::setPermissions(path, QFile::ReadOwner);
    const std::string first = Told(path);
    EXPECT_EQ(Told(path), first);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), kPoint);
}

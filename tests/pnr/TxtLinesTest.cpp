// SPDX-License-Identifier: MIT
#include "VelorExchange/pnr/TxtLines_p.h"

#include "PnrLocalCodec.h"

#include <QTemporaryFile>
#include <QTextStream>

#include <random>

using VelorExchange::pnr::CTxtLines;
using VelorExchange::pnr::CTxtSpan;

namespace {

QStringList OurLines(const QString& fileName)
{
    CTxtLines lines;
    EXPECT_TRUE(lines.Open(fileName));
    QStringList all;
    CTxtSpan line;
    while (lines.Next(line)) {
        all += lines.Decode(line);
    }
    return all;
}

QStringList StreamLines(const QString& fileName)
{
    QFile file(fileName);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QTextStream stream(&file);
    QStringList all;
    while (!stream.atEnd()) {
        all += stream.readLine();
    }
    return all;
}

void ExpectAsStream(const QByteArray& bytes)
{
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    file.write(bytes);
    file.flush();
    const QStringList ours = OurLines(file.fileName());
    const QStringList theirs = StreamLines(file.fileName());
    EXPECT_EQ(ours.size(), theirs.size()) << bytes.left(100).toHex(' ').constData();
    EXPECT_TRUE(ours == theirs) << bytes.left(100).toHex(' ').constData();
}

} // namespace

TEST(TxtLines, CutsAsATextStream)
{
    const CLocalCodec codec("windows-1251");
    for (const char* bytes : {"", "a", "a\n", "\n", "\n\n", "a\r\n", "a\r", "a\r\r\n", "a\r\r",
                              "\r", "a\rb\n", "\r\n\r\n", "a\nb", "a\n\r", "\xCA\xE0\n\xF0"})
    {
        ExpectAsStream(bytes);
    }
}

TEST(TxtLines, CutsRandomBytesAsATextStream)
{
    const CLocalCodec codec("windows-1251");
    std::mt19937 random(11);
    const char letters[] = "a\r\nb .";
    for (int round = 0; round < 300; ++round) {
        QByteArray bytes;
        for (auto i = random() % 40; i > 0; --i) {
            bytes += letters[random() % 6];
        }
        ExpectAsStream(bytes);
    }
}

TEST(TxtLines, CutsLinesAcrossAndBeyondBlocks)
{
    const CLocalCodec codec("windows-1251");
    for (const int size : {262143, 262144, 262145, 700001}) {
        ExpectAsStream(QByteArray(size, 'x') + "\r\nrest\n");
        ExpectAsStream(QByteArray("short\r\n") + QByteArray(size - 7, 'x') + "\r\nrest");
    }
    QByteArray many;
    for (int i = 0; i < 60000; ++i) {
        many += QByteArray::number(i) + (i % 3 ? "\n" : "\r\n");
    }
    ExpectAsStream(many);
}

TEST(TxtLines, ReadsAFileWithAByteOrderMarkByItsEncoding)
{
    const CLocalCodec codec("windows-1251");
    QString text;
    for (int i = 0; i < 90000; ++i) {
        text += QStringLiteral("Строка %1 漢").arg(i) + QString::fromUcs4(U"\U0001F5FA", 1)
            + (i % 2 ? QLatin1String("\n") : QLatin1String("\r\n"));
    }
    for (const char* name : {"UTF-8", "UTF-16LE", "UTF-16BE"}) {
        QTextCodec* encoding = QTextCodec::codecForName(name);
        const QByteArray bytes = encoding->fromUnicode(QString(QChar(0xFEFF)) + text.left(200));
        ExpectAsStream(bytes);
        ExpectAsStream(encoding->fromUnicode(QString(QChar(0xFEFF)) + text));
    }
}

TEST(TxtLines, DropsACharacterThatTheEndOfAMarkedFileCutsAsATextStream)
{
    const CLocalCodec codec("windows-1251");
    ExpectAsStream("\xEF\xBB\xBF"
                   "a\nb\xD0");
    ExpectAsStream(QByteArray("\xFF\xFE"
                              "a\0b",
                              5));
}

TEST(TxtLines, KeepsBytesFromALineOn)
{
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    for (int i = 0; i < 100000; ++i) {
        file.write(QByteArray::number(i) + "\n");
    }
    file.flush();
    CTxtLines lines;
    ASSERT_TRUE(lines.Open(file.fileName()));
    CTxtSpan line;
    for (int i = 0; i <= 5; ++i) {
        ASSERT_TRUE(lines.Next(line));
    }
    lines.KeepFrom(line);
    while (lines.Next(line)) {
    }
    EXPECT_EQ(QByteArray(lines.Kept(), 8), "5\n6\n7\n8\n");
}

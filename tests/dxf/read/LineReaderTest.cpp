// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/read/LineReader_p.h"

#include "tests/support/PlainTags.h"

#include <QBuffer>

#include <algorithm>
#include <random>

using VelorExchange::dxf::CLineReader;
using VelorExchange::dxf::CRawLine;
using VelorExchange::test::PlainRawLine;

namespace {

using CLines = std::vector<std::string>;

constexpr int kBlock = 256 * 1024; // bytes read at a time

CLines Lines(QIODevice& device)
{
    CLineReader reader(device);
    CLines lines;
    while (!reader.AtEnd()) {
        const CRawLine line = reader.NextLine();
        lines.emplace_back(line.begin, line.end);
    }
    return lines;
}

CLines Lines(QByteArray bytes)
{
    QBuffer device(&bytes);
    device.open(QIODevice::ReadOnly);
    return Lines(device);
}

CLines PlainLines(QByteArray bytes)
{
    QBuffer device(&bytes);
    device.open(QIODevice::ReadOnly);
    CLines lines;
    while (!device.atEnd()) {
        lines.push_back(PlainRawLine(device).toStdString());
    }
    return lines;
}

// True, so that a test of many files does not print a huge one.
bool GivesPlainLines(const QByteArray& bytes)
{
    return Lines(bytes) == PlainLines(bytes);
}

QByteArray Repeated(char c, int count)
{
    return QByteArray(count, c);
}

// Gives a few bytes at a time, and -1 where `failsAt` is reached.
class CTrickle final : public QIODevice
{
public:
    explicit CTrickle(QByteArray all) : bytes(std::move(all)) { open(ReadOnly | Unbuffered); }

    qint64 failsAt = -1;

    qint64 size() const override { return bytes.size(); }

protected:
    qint64 readData(char* data, qint64 most) override
    {
        constexpr qint64 kAtOnce = 7;
        const qint64 taken = std::min({most, kAtOnce, bytes.size() - at});
        if (failsAt >= 0 && at + taken > failsAt) {
            return -1;
        }
        std::copy_n(bytes.constData() + at, taken, data);
        at += taken;
        return taken;
    }

    qint64 writeData(const char*, qint64) override { return -1; }

private:
    QByteArray bytes;
    qint64 at = 0;
};

// Bytes of which many are line ends and blanks; `rareness` of others.
QByteArray RandomBytes(std::mt19937& random, int size, unsigned long rareness)
{
    QByteArray bytes(size, '\0');
    for (char& c : bytes) {
        c = random() % rareness == 0 ? "\r\n\r\n \t"[random() % 6] : "0a;\xE0"[random() % 4];
    }
    return bytes;
}

} // namespace

TEST(LineReader, EmptyDeviceIsAtEndAtOnce)
{
    EXPECT_EQ(Lines(""), CLines());
}

TEST(LineReader, BehindTheEndThereAreEmptyLines)
{
    QByteArray bytes("a\n");
    QBuffer device(&bytes);
    device.open(QIODevice::ReadOnly);
    CLineReader reader(device);
    reader.Prepare();
    reader.NextLine();
    const CRawLine line = reader.NextLine();
    EXPECT_EQ(line.begin, line.end);
    EXPECT_TRUE(reader.AtEnd());
}

TEST(LineReader, LineEndsBehindLineFeed)
{
    EXPECT_EQ(Lines("one\ntwo\n\nthree"), (CLines{"one\n", "two\n", "\n", "three"}));
}

TEST(LineReader, CarriageReturnBeforeLineFeedBelongsToTheEnd)
{
    EXPECT_EQ(Lines("one\r\ntwo\r\n"), (CLines{"one\r\n", "two\r\n"}));
}

TEST(LineReader, CarriageReturnAloneEndsALine)
{
    EXPECT_EQ(Lines("one\rtwo\rthree\r"), (CLines{"one", "two", "three\r"}));
}

TEST(LineReader, LineEndsMayBeMixed)
{
    EXPECT_EQ(Lines("a\rbb\nccc\r\nd\rr\n"), (CLines{"a", "bb\n", "ccc\r\n", "d", "r\n"}));
}

TEST(LineReader, CarriageReturnInTheLastTwoBytesIsNoEnd)
{
    EXPECT_EQ(Lines("ab\rc"), (CLines{"ab\rc"}));
    EXPECT_EQ(Lines("abc\r"), (CLines{"abc\r"}));
    EXPECT_EQ(Lines("a\rbc"), (CLines{"a", "bc"}));
}

TEST(LineReader, LineOfTwoBytesIsNotSearched)
{
    EXPECT_EQ(Lines("\ra"), (CLines{"\ra"}));
    EXPECT_EQ(Lines("\r\n\r\r"), (CLines{"\r\n", "\r\r"}));
}

TEST(LineReader, SecondOfTwoCarriageReturnsBelongsToTheLineFeed)
{
    EXPECT_EQ(Lines("a\r\r\nb"), (CLines{"a", "\r\n", "b"}));
}

TEST(LineReader, LineIsCutBehind999Bytes)
{
    const CLines lines = Lines(Repeated('x', 1500) + "\nend\n");
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[0], std::string(999, 'x'));
    EXPECT_EQ(lines[1], std::string(501, 'x') + '\n');
    EXPECT_EQ(lines[2], "end\n");
}

TEST(LineReader, LineFeedAsByte999StillBelongsToTheLine)
{
    EXPECT_EQ(Lines(Repeated('x', 998) + "\ny").size(), 2U);
    EXPECT_EQ(Lines(Repeated('x', 999) + "\ny"), (CLines{std::string(999, 'x'), "\n", "y"}));
}

TEST(LineReader, CarriageReturnAtTheCutIsNoEnd)
{
    // The last two of the 999 bytes are not searched, the one before is.
    EXPECT_EQ(Lines(Repeated('x', 998) + "\ryy\n"), (CLines{std::string(998, 'x') + '\r', "yy\n"}));
    EXPECT_EQ(Lines(Repeated('x', 997) + "\ryy\n"), (CLines{std::string(997, 'x') + "\ry", "y\n"}));
    EXPECT_EQ(Lines(Repeated('x', 996) + "\ryy\n"), (CLines{std::string(996, 'x'), "yy\n"}));
}

TEST(LineReader, AllShortFilesOfLineEndsAndLettersAreReadPlainly)
{
    constexpr int kLetters = 4;
    for (int size = 0; size <= 8; ++size) {
        const int count = 1 << (2 * size);
        for (int number = 0; number < count; ++number) {
            QByteArray bytes;
            for (int rest = number, i = 0; i < size; ++i, rest /= kLetters) {
                bytes += "\r\na "[rest % kLetters];
            }
            ASSERT_EQ(Lines(bytes), PlainLines(bytes));
        }
    }
}

TEST(LineReader, CarriageReturnAnywhereInALineOfAnyLengthIsTreatedPlainly)
{
    for (int size = 1; size <= 48; ++size) {
        for (int at = 0; at < size; ++at) {
            QByteArray bytes = Repeated('x', size) + "\n1\n";
            bytes[at] = '\r';
            ASSERT_EQ(Lines(bytes), PlainLines(bytes)) << size << ' ' << at;
        }
    }
}

TEST(LineReader, LineAcrossTheEndOfABlockStaysWhole)
{
    // The line end falls before, on and behind the border of the block, in all its positions.
    for (int before = kBlock - 6; before <= kBlock + 3; ++before) {
        QByteArray bytes;
        while (bytes.size() + 100 < before) {
            bytes += Repeated('x', 98) + '\n';
        }
        bytes += Repeated('y', before - bytes.size());
        ASSERT_TRUE(GivesPlainLines(bytes + "\r\nnext\r\n")) << before;
        ASSERT_TRUE(GivesPlainLines(bytes + "\rnext\r12\r")) << before;
        ASSERT_TRUE(GivesPlainLines(bytes + "\nnext\n")) << before;
    }
}

TEST(LineReader, FileWithoutLineFeedsBeyondABlockIsReadPlainly)
{
    EXPECT_TRUE(GivesPlainLines(Repeated('x', 3 * kBlock + 5)));
    QByteArray bytes;
    while (bytes.size() < kBlock + 2000) {
        bytes += "  0\rLINE\r  8\rA layer\r";
    }
    EXPECT_TRUE(GivesPlainLines(bytes));
}

TEST(LineReader, RandomFilesAreReadPlainly)
{
    std::mt19937 random(1);
    for (int i = 0; i < 4000; ++i) {
        const QByteArray bytes =
            RandomBytes(random, static_cast<int>(random() % 300), 1 + random() % 12);
        ASSERT_EQ(Lines(bytes), PlainLines(bytes)) << bytes.toHex().constData();
    }
}

TEST(LineReader, RandomFilesWithLongLinesAreReadPlainly)
{
    std::mt19937 random(2);
    for (int i = 0; i < 300; ++i) {
        const QByteArray bytes =
            RandomBytes(random, static_cast<int>(random() % 8000), 1 + random() % 1500);
        ASSERT_TRUE(GivesPlainLines(bytes)) << bytes.toHex().constData();
    }
}

TEST(LineReader, RandomFilesOfManyBlocksAreReadPlainly)
{
    std::mt19937 random(3);
    for (const unsigned long rareness : {2U, 5U, 20U, 300U, 3000U}) {
        const int size = 2 * kBlock + static_cast<int>(random() % (2 * kBlock));
        EXPECT_TRUE(GivesPlainLines(RandomBytes(random, size, rareness))) << rareness;
    }
}

TEST(LineReader, DeviceMayGiveAFewBytesAtATime)
{
    std::mt19937 random(4);
    const QByteArray bytes = RandomBytes(random, 20000, 9);
    CTrickle device(bytes);
    EXPECT_TRUE(Lines(device) == PlainLines(bytes));
}

TEST(LineReader, FailingDeviceEndsTheFile)
{
    CTrickle device("first\nsecond\nthird\n");
    device.failsAt = 14;
    EXPECT_EQ(Lines(device), (CLines{"first\n", "second\n", "t"}));
}

TEST(LineReader, PositionIsThatOfTheNextLine)
{
    std::mt19937 random(5);
    QByteArray bytes = RandomBytes(random, kBlock + 5000, 10);
    QBuffer device(&bytes);
    device.open(QIODevice::ReadOnly);
    QBuffer plain(&bytes);
    plain.open(QIODevice::ReadOnly);
    CLineReader reader(device);
    while (!reader.AtEnd()) {
        reader.NextLine();
        PlainRawLine(plain);
        ASSERT_EQ(reader.Position(), plain.pos());
    }
    EXPECT_EQ(reader.Position(), bytes.size());
}

TEST(LineReader, StartsWhereTheDeviceStands)
{
    QByteArray bytes("skipped\nline\n");
    QBuffer device(&bytes);
    device.open(QIODevice::ReadOnly);
    device.seek(8);
    CLineReader reader(device);
    EXPECT_EQ(reader.Position(), 8);
    EXPECT_FALSE(reader.AtEnd());
    const CRawLine line = reader.NextLine();
    EXPECT_EQ(std::string(line.begin, line.end), "line\n");
}

TEST(LineReader, KeptBytesStayOverManyBlocks)
{
    std::mt19937 random(6);
    QByteArray bytes = RandomBytes(random, 5 * kBlock, 20);
    QBuffer device(&bytes);
    device.open(QIODevice::ReadOnly);
    CLineReader reader(device);
    reader.Prepare();
    reader.NextLine();
    const qint64 start = reader.Position();
    reader.Keep();
    while (!reader.AtEnd()) {
        reader.NextLine();
    }
    const auto size = static_cast<std::size_t>(bytes.size() - start);
    EXPECT_TRUE(std::equal(reader.Base(), reader.Base() + size, bytes.constData() + start));
}

TEST(LineReader, BaseIsWhereTheLastKeepWas)
{
    QByteArray bytes("one\ntwo\nthree\n");
    QBuffer device(&bytes);
    device.open(QIODevice::ReadOnly);
    CLineReader reader(device);
    reader.Prepare();
    reader.NextLine();
    reader.Keep();
    reader.NextLine();
    EXPECT_EQ(std::string(reader.Base(), 4), "two\n");
    reader.Keep();
    EXPECT_EQ(std::string(reader.Base(), 6), "three\n");
}

TEST(LineReader, AFewBytesBehindTheEndAreZero)
{
    QByteArray bytes("x");
    QBuffer device(&bytes);
    device.open(QIODevice::ReadOnly);
    CLineReader reader(device);
    reader.Prepare();
    EXPECT_EQ(std::string(reader.Cursor() + 1, 32), std::string(32, '\0'));
}

TEST(LineReader, TakeToGoesOnBehindWhatTheCallerFound)
{
    QByteArray bytes("12\nrest\n");
    QBuffer device(&bytes);
    device.open(QIODevice::ReadOnly);
    CLineReader reader(device);
    reader.Prepare();
    reader.TakeTo(reader.Cursor() + 3);
    EXPECT_EQ(reader.Position(), 3);
    const CRawLine line = reader.NextLine();
    EXPECT_EQ(std::string(line.begin, line.end), "rest\n");
}

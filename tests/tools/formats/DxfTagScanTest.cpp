// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfTagScan.h"

#include <gtest/gtest.h>

#include <QBuffer>

#include <string>

namespace velorx::test {

namespace {

// Hands over a file in pieces of a few bytes, as a slow device does.
class CSlowDevice final : public QIODevice
{
public:
    CSlowDevice(const QByteArray& content, qint64 piece) : bytes(content), most(piece)
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }

protected:
    qint64 readData(char* data, qint64 size) override
    {
        const qint64 count = std::min({size, most, static_cast<qint64>(bytes.size() - at)});
        std::copy_n(bytes.constData() + at, count, data);
        at += static_cast<int>(count);
        return count;
    }
    qint64 writeData(const char* /*data*/, qint64 /*size*/) override { return -1; }

private:
    QByteArray bytes;
    qint64 most;
    int at = 0;
};

// All pairs as "code=value" with a bar behind each.
std::string PairsOf(QIODevice& device)
{
    CDxfTagScan scan(device);
    std::string pairs;
    while (scan.Next()) {
        pairs += std::to_string(scan.Code()) + '=' + std::string(scan.Value()) + '|';
    }
    return pairs;
}

std::string PairsOf(QByteArray content)
{
    QBuffer buffer(&content);
    buffer.open(QIODevice::ReadOnly);
    return PairsOf(buffer);
}

} // namespace

TEST(DxfTagScan, TakesAllThreeKindsOfLineEnds)
{
    const std::string pairs = "0=LINE|8=A|";
    EXPECT_EQ(PairsOf("0\r\nLINE\r\n8\r\nA\r\n"), pairs);
    EXPECT_EQ(PairsOf("0\nLINE\n8\nA\n"), pairs);
    EXPECT_EQ(PairsOf("0\rLINE\r8\rA\r"), pairs);
    EXPECT_EQ(PairsOf("0\r\nLINE\n8\rA\n"), pairs);
}

TEST(DxfTagScan, TakesBlanksOff)
{
    EXPECT_EQ(PairsOf("  0 \n\t LINE  \n"), "0=LINE|");
}

TEST(DxfTagScan, KeepsEmptyValues)
{
    EXPECT_EQ(PairsOf("1\n\n3\n\n0\nEOF\n"), "1=|3=|0=EOF|");
    EXPECT_EQ(PairsOf("1\r\r3\r\r"), "1=|3=|");
}

TEST(DxfTagScan, TakesTheLastLineWithoutALineEnd)
{
    EXPECT_EQ(PairsOf("0\nEOF"), "0=EOF|");
}

TEST(DxfTagScan, EndsWhereACodeHasNoValue)
{
    EXPECT_EQ(PairsOf("0\nEOF\n8\n"), "0=EOF|");
    EXPECT_EQ(PairsOf(""), "");
}

TEST(DxfTagScan, CodeThatIsNoNumberIsMinusOne)
{
    EXPECT_EQ(PairsOf("x\n1\n-5\n2\n1.0\n3\n123456\n4\n\n5\n"), "-1=1|-1=2|-1=3|-1=4|-1=5|");
}

TEST(DxfTagScan, ValueIsCutBehind64KiB)
{
    const std::string pairs = PairsOf("1\n" + QByteArray(1000 * 1000, 'x') + "\n0\nEOF\n");
    EXPECT_GE(pairs.size(), 64U * 1024);
    EXPECT_LT(pairs.size(), 300U * 1024);
    EXPECT_EQ(pairs.substr(pairs.size() - 7), "|0=EOF|");
}

TEST(DxfTagScan, DoesNotMindWhereTheDeviceCutsItsPieces)
{
    const QByteArray content = "0\r\nLINE\r\n8\r\nA long name\r\n1\r\n\r\n0\rEOF\n";
    for (qint64 piece = 1; piece < 12; ++piece) {
        CSlowDevice device(content, piece);
        EXPECT_EQ(PairsOf(device), "0=LINE|8=A long name|1=|0=EOF|") << piece;
    }
}

TEST(DxfTagScan, GoesOverManyPairs)
{
    QByteArray content;
    for (int i = 0; i < 100000; ++i) {
        content += "10\r\n" + QByteArray::number(i) + ".25\r\n";
    }
    QBuffer buffer(&content);
    buffer.open(QIODevice::ReadOnly);
    CDxfTagScan scan(buffer);
    int count = 0;
    while (scan.Next() && scan.Value() == std::to_string(count) + ".25") {
        ++count;
    }
    EXPECT_EQ(count, 100000);
}

} // namespace velorx::test

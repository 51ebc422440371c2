// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/write/TagOutput_p.h"

#include "VelorExchange/foundation/FileError.h"

#include <QTemporaryFile>

using VelorExchange::FileError;
using VelorExchange::dxf::CTagOutput;

namespace {

QByteArray ContentsOf(QTemporaryFile& file)
{
    file.seek(0);
    return file.readAll();
}

// What a few operations write.
template <class Write>
std::string Written(Write write)
{
    QTemporaryFile file;
    EXPECT_TRUE(file.open());
    CTagOutput output;
    output.SetTarget(file);
    write(output);
    output.Flush();
    return ContentsOf(file).toStdString();
}

} // namespace

TEST(TagOutput, CodeStandsUnpaddedBeforeItsValue)
{
    EXPECT_EQ(Written([](CTagOutput& output) { output.WriteTag(0, "SECTION"); }),
              "0\r\nSECTION\r\n");
    EXPECT_EQ(Written([](CTagOutput& output) { output.WriteTag(1071, -12); }), "1071\r\n-12\r\n");
}

TEST(TagOutput, HandleIsInLowerCaseHexadecimal)
{
    EXPECT_EQ(Written([](CTagOutput& output) { output.WriteHandle(5, 0x8F); }), "5\r\n8f\r\n");
}

TEST(TagOutput, RealHasTheDigitsSetOrItsOwn)
{
    EXPECT_EQ(Written([](CTagOutput& output) {
                  output.WriteReal(10, 0.03125);
                  output.SetPrecision(4);
                  output.WriteReal(20, 0.03125);
                  output.WriteReal(42, 0.5, 10);
              }),
              "10\r\n0.031250\r\n20\r\n0.0313\r\n42\r\n0.5000000000\r\n");
}

TEST(TagOutput, PrecisionOutsideTheTableIsAsQt)
{
    for (const int digits : {18, 25, 400, -1, -128}) {
        EXPECT_EQ(Written([digits](CTagOutput& output) {
                      output.SetPrecision(digits);
                      output.WriteReal(10, 0.1);
                  }),
                  "10\r\n" + QString::number(0.1, 'f', digits).toStdString() + "\r\n");
    }
}

TEST(TagOutput, TextIsInWindows1251)
{
    EXPECT_EQ(Written([](CTagOutput& output) { output.WriteTag(1, QStringLiteral("Ёлка é")); }),
              "1\r\n\xA8\xEB\xEA\xE0 ?\r\n");
}

TEST(TagOutput, LineBreakInATextDoesNotEndItsLine)
{
    EXPECT_EQ(Written([](CTagOutput& output) { output.WriteTag(1, QStringLiteral("a\nb\r\nc")); }),
              "1\r\na b  c\r\n");
}

TEST(TagOutput, LongTextIsCutNowhere)
{
    const QString text = QStringLiteral("длинный текст 12345 ").repeated(50000);
    const std::string written = Written([&text](CTagOutput& output) { output.WriteTag(1, text); });
    const QByteArray expected = QTextCodec::codecForName("windows-1251")->fromUnicode(text);
    EXPECT_EQ(written, "1\r\n" + expected.toStdString() + "\r\n");
}

TEST(TagOutput, PairOfSurrogatesOnThePartingLineIsOneLetter)
{
    const QString text = QString(65535, QChar(u'a')) + QStringLiteral("\U0001F600b");
    EXPECT_EQ(Written([&text](CTagOutput& output) { output.WriteTag(1, text); }),
              "1\r\n" + std::string(65535, 'a') + "?b\r\n");
}

TEST(TagOutput, ManyTagsFillTheBufferOverAndOver)
{
    const std::string written = Written([](CTagOutput& output) {
        for (int i = 0; i < 100000; ++i) {
            output.WriteTag(70, i);
        }
    });
    std::string expected;
    for (int i = 0; i < 100000; ++i) {
        expected += "70\r\n" + std::to_string(i) + "\r\n";
    }
    EXPECT_EQ(written, expected);
}

TEST(TagOutput, EachTargetGetsItsOwnTags)
{
    QTemporaryFile a;
    QTemporaryFile b;
    ASSERT_TRUE(a.open() && b.open());
    CTagOutput output;
    output.SetTarget(a);
    output.WriteTag(0, "A");
    output.SetTarget(b);
    output.WriteTag(0, "B");
    output.SetTarget(a);
    output.WriteTag(0, "AA");
    output.SetTarget(b);
    output.Flush();
    EXPECT_EQ(ContentsOf(a), "0\r\nA\r\n0\r\nAA\r\n");
    EXPECT_EQ(ContentsOf(b), "0\r\nB\r\n");
}

TEST(TagOutput, AbandonedTagsAreWrittenNowhere)
{
    QTemporaryFile a;
    QTemporaryFile b;
    ASSERT_TRUE(a.open() && b.open());
    CTagOutput output;
    output.SetTarget(a);
    output.WriteTag(0, "A");
    output.Abandon(b);
    output.Flush();
    EXPECT_EQ(ContentsOf(a), "");
    EXPECT_EQ(ContentsOf(b), "");
}

TEST(TagOutput, FailedWriteThrowsWithCodeAndNameAndIsRemembered)
{
    QFile full(QStringLiteral("/dev/full"));
    if (!full.open(QIODevice::WriteOnly)) {
        GTEST_SKIP() << "no /dev/full here";
    }
    CTagOutput output;
    output.SetTarget(full);
    output.WriteTag(0, "A");
    EXPECT_FALSE(output.HasFailed());
    try {
        output.Flush();
        FAIL();
    } catch (const FileError& error) {
        EXPECT_EQ(error.error, QFile::ResourceError);
        EXPECT_EQ(error.fileName, QStringLiteral("/dev/full"));
    }
    EXPECT_TRUE(output.HasFailed());
    output.Reset();
    EXPECT_FALSE(output.HasFailed());
    EXPECT_EQ(output.Target(), nullptr);
}

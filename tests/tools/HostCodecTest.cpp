// SPDX-License-Identifier: MIT
#include "tools/velorx/HostCodec.h"

#include <gtest/gtest.h>

namespace velorx {

namespace {

constexpr int kWindows1251Mib = 2251;

/// Sets a code page for one test.
class HostCodec : public testing::Test
{
protected:
    void TearDown() override { QTextCodec::setCodecForLocale(nullptr); }
};

std::string AllBytes()
{
    std::string bytes;
    for (int byte = 1; byte < 256; ++byte) {
        bytes += static_cast<char>(byte);
    }
    return bytes;
}

} // namespace

TEST_F(HostCodec, GivesPathsTheirBytesBackInEveryCodePage)
{
    for (const char* name : {"windows-1251", "IBM866", "KOI8-R", "ISO-8859-1", "UTF-8", "GB18030"})
    {
        ASSERT_TRUE(SetCodePage(name)) << name;
        EXPECT_EQ(PathFromBytes(AllBytes()).toLocal8Bit().toStdString(), AllBytes()) << name;
    }
}

TEST_F(HostCodec, TellsPathsAsPeopleReadThem)
{
    ASSERT_TRUE(SetCodePage("windows-1251"));
    EXPECT_EQ(TextOfPath(PathFromBytes("/a/Дом.mif")), QStringLiteral("/a/Дом.mif"));
    EXPECT_EQ(TextOfPath(PathFromBytes("\xC4\xEE\xEC")), QStringLiteral("Дом"));
    EXPECT_EQ(PathOfText(QStringLiteral("Дом")).toLocal8Bit(), "Дом");
}

TEST_F(HostCodec, TellsItsCodePage)
{
    ASSERT_TRUE(SetCodePage("cp1251"));
    EXPECT_EQ(LocalCodePage(), "windows-1251");
}

TEST_F(HostCodec, DecodesLikeTheCodePage)
{
    ASSERT_TRUE(SetCodePage("windows-1251"));
    const QByteArray bytes = QByteArray::fromStdString(AllBytes());
    EXPECT_EQ(QString::fromLocal8Bit(bytes),
              QTextCodec::codecForName("windows-1251")->toUnicode(bytes));
}

TEST_F(HostCodec, EncodesTextLikeTheCodePage)
{
    ASSERT_TRUE(SetCodePage("windows-1251"));
    EXPECT_EQ(QStringLiteral("Ижевск, 5 м").toLocal8Bit(), "\xC8\xE6\xE5\xE2\xF1\xEA, 5 \xEC");
}

TEST_F(HostCodec, EncodesTextBetweenRawBytes)
{
    ASSERT_TRUE(SetCodePage("windows-1251"));
    const QString mixed = QStringLiteral("Я") + PathFromBytes("\x98") + QStringLiteral("Я");
    EXPECT_EQ(mixed.toLocal8Bit(), "\xDF\x98\xDF");
}

TEST_F(HostCodec, LeavesCharactersBeyondTheBasicPlaneAlone)
{
    ASSERT_TRUE(SetCodePage("UTF-8"));
    const QString letter = QString::fromUcs4(U"\U0001F480"); // its low surrogate is U+DC80
    EXPECT_EQ(letter.toLocal8Bit(), "\xF0\x9F\x92\x80");
}

TEST_F(HostCodec, HasTheNumberOfTheCodePage)
{
    ASSERT_TRUE(SetCodePage("windows-1251"));
    EXPECT_EQ(QTextCodec::codecForLocale()->mibEnum(), kWindows1251Mib);
}

TEST_F(HostCodec, RefusesUnknownCodePages)
{
    EXPECT_FALSE(SetCodePage("windows-9999"));
    EXPECT_FALSE(SetCodePage(""));
}

TEST_F(HostCodec, RefusesCodePagesInWhichAsciiIsNotItself)
{
    EXPECT_FALSE(IsCodePage("UTF-16"));
    EXPECT_FALSE(IsCodePage("UTF-32LE"));
}

} // namespace velorx

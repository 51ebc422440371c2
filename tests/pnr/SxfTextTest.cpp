// SPDX-License-Identifier: MIT
#include "VelorExchange/pnr/SxfText_p.h"

#include "PnrLocalCodec.h"

using VelorExchange::pnr::CSxfText;

TEST(SxfText, UsesALocalCodecOfOneByteACharacter)
{
    const CLocalCodec codec("IBM866");
    CSxfText text;
    EXPECT_EQ(text.Encode(QStringLiteral("Карта")), QByteArray("\x8A\xA0\xE0\xE2\xA0"));
    EXPECT_EQ(text.Decode("\x8A\xA0", 2), QStringLiteral("Ка"));
}

TEST(SxfText, UsesWindows1251WhereTheLocalCodecIsOfSeveralBytes)
{
    for (const char* name : {"UTF-8", "Shift_JIS"}) {
        const CLocalCodec codec(name);
        CSxfText text;
        EXPECT_EQ(text.Encode(QStringLiteral("Карта")), QByteArray("\xCA\xE0\xF0\xF2\xE0"));
        EXPECT_EQ(text.Decode("\xCA\xE0", 2), QStringLiteral("Ка"));
    }
}

TEST(SxfText, FollowsAChangeOfTheLocalCodec)
{
    CSxfText text;
    {
        const CLocalCodec codec("IBM866");
        EXPECT_EQ(text.Encode(QStringLiteral("К")), QByteArray("\x8A"));
    }
    const CLocalCodec codec("KOI8-R");
    EXPECT_EQ(text.Encode(QStringLiteral("К")), QByteArray("\xEB"));
    EXPECT_EQ(text.Decode("\xEB", 1), QStringLiteral("К"));
}

TEST(SxfText, WritesOneByteForWhatTheCodecLacks)
{
    const CLocalCodec codec("windows-1251");
    CSxfText text;
    EXPECT_EQ(text.Encode(QStringLiteral("a漢é")), QByteArray("a??"));
    EXPECT_EQ(text.Encode(QString::fromUcs4(U"\U0001F5FA", 1)), QByteArray("??"));
}

TEST(SxfText, EncodesEveryCharacterOfThePlaneAsQt)
{
    for (const char* name : {"windows-1251", "IBM866", "KOI8-R", "ISO-8859-1"}) {
        const CLocalCodec codec(name);
        CSxfText text;
        for (int code = 0; code < 0xFFFE; ++code) {
            const QChar c(static_cast<ushort>(code));
            if (!c.isSurrogate()) {
                const QByteArray bytes = codec.Codec()->fromUnicode(QString(c));
                ASSERT_EQ(text.Encode(QString(c)), bytes.size() == 1 ? bytes : QByteArray("?"))
                    << name << ' ' << code;
            }
        }
    }
}

TEST(SxfText, EncodesAsManyCharactersAsTold)
{
    const CLocalCodec codec("UTF-8");
    CSxfText text;
    std::vector<char> bytes(3, '<');
    text.Encode(QStringLiteral("абв"), 2, bytes.data());
    EXPECT_EQ(bytes, (std::vector<char>{'\xE0', '\xE1', '<'}));
}

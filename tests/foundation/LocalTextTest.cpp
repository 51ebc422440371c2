// SPDX-License-Identifier: MIT
#include "VelorExchange/foundation/LocalText_p.h"

#include <random>

using VelorExchange::CTextDecoder;

namespace {

const char* const kCodecs[] = {"windows-1251", "IBM866",    "KOI8-R",      "ISO-8859-1",
                               "UTF-8",        "Shift_JIS", "ISO-2022-JP", "GB18030"};

QString Trimmed(const CTextDecoder& decoder, const QByteArray& line)
{
    const char* begin = line.constData();
    const char* end = begin + line.size();
    if (decoder.Trim(begin, end)) {
        return decoder.Decode(begin, static_cast<std::size_t>(end - begin));
    }
    const QByteArray recoded = decoder.Recode(begin, static_cast<std::size_t>(end - begin));
    return CTextDecoder::DecodeRecoded(recoded.constData(),
                                       static_cast<std::size_t>(recoded.size()));
}

void ExpectAsQt(const char* codecName, const CTextDecoder& decoder, const QByteArray& line)
{
    const QString whole = decoder.Codec()->toUnicode(line.constData(), line.size());
    EXPECT_EQ(decoder.Decode(line.constData(), static_cast<std::size_t>(line.size())), whole)
        << codecName << ' ' << line.toHex().constData();
    EXPECT_EQ(Trimmed(decoder, line), whole.trimmed())
        << codecName << ' ' << line.toHex().constData();
}

} // namespace

TEST(LocalText, EveryByteDecodesAsQt)
{
    for (const char* name : kCodecs) {
        QTextCodec* codec = QTextCodec::codecForName(name);
        ASSERT_NE(codec, nullptr) << name;
        const CTextDecoder decoder(codec);
        for (int byte = 0; byte < 256; ++byte) {
            ExpectAsQt(name, decoder, QByteArray(1, static_cast<char>(byte)));
            ExpectAsQt(name, decoder, QByteArray("a") + static_cast<char>(byte) + "b ");
        }
    }
}

TEST(LocalText, RandomLinesDecodeAndTrimAsQt)
{
    std::mt19937 random(42);
    for (const char* name : kCodecs) {
        const CTextDecoder decoder(QTextCodec::codecForName(name));
        for (int i = 0; i < 5000; ++i) {
            QByteArray line;
            for (auto length = random() % 12; length > 0; --length) {
                line.append(random() % 3 == 0 ? " \t\r\n;1"[random() % 6]
                                              : static_cast<char>(random()));
            }
            ExpectAsQt(name, decoder, line);
        }
    }
}

TEST(LocalText, SpacesBeyondAsciiAreTrimmedInUtf8)
{
    const CTextDecoder decoder(QTextCodec::codecForName("UTF-8"));
    for (const char* line :
         {"\xC2\xA0x\xC2\xA0", " \xE3\x80\x80x", "x\xE2\x80\x89 ", "\xC2\x85x", "\xE1\x9A\x80x",
          "x\xE2\x81\x9F", "\xE2\x80\xA8x\xE2\x80\xAF", "\xC2\xA0", "\xD0\x90\xC2", "x\xE2\x80"})
    {
        ExpectAsQt("UTF-8", decoder, line);
    }
}

TEST(LocalText, ByteOrderMarkIsAsQt)
{
    const CTextDecoder decoder(QTextCodec::codecForName("UTF-8"));
    for (const char* line :
         {"\xEF\xBB\xBFx", " \xEF\xBB\xBFx", "\xEF\xBB\xBF x ", "\xEF\xBB\xBF\xEF\xBB\xBFx",
          " \xEF\xBB\xBF\xEF\xBB\xBFx", "\xEF\xBB\xBF"})
    {
        ExpectAsQt("UTF-8", decoder, line);
    }
}

TEST(LocalText, NulIsACharacterLikeOthers)
{
    const CTextDecoder decoder(QTextCodec::codecForName("windows-1251"));
    EXPECT_EQ(decoder.Decode("a\0b", 3).size(), 3);
}

TEST(LocalText, LocalFollowsTheProcess)
{
    QTextCodec* before = QTextCodec::codecForLocale();
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("IBM866"));
    EXPECT_EQ(CTextDecoder::Local().Decode("\x80", 1), QString(QChar(0x0410)));
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("windows-1251"));
    EXPECT_EQ(CTextDecoder::Local().Decode("\xC0", 1), QString(QChar(0x0410)));
    QTextCodec::setCodecForLocale(before);
}

TEST(LocalText, KnowsTheCodecsOfOneByteACharacter)
{
    const auto isSingleByte = [](const char* name) {
        return CTextDecoder(QTextCodec::codecForName(name)).IsSingleByte();
    };
    EXPECT_TRUE(isSingleByte("windows-1251"));
    EXPECT_TRUE(isSingleByte("IBM866"));
    EXPECT_TRUE(isSingleByte("KOI8-R"));
    EXPECT_TRUE(isSingleByte("ISO-8859-1"));
    EXPECT_FALSE(isSingleByte("UTF-8"));
    EXPECT_FALSE(isSingleByte("UTF-16"));
    EXPECT_FALSE(isSingleByte("Shift_JIS"));
    EXPECT_FALSE(isSingleByte("GB18030"));
}

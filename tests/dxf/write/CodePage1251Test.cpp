// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/write/CodePage1251_p.h"

using namespace VelorExchange::dxf;

namespace {

std::string Encoded(const QString& text)
{
    QByteArray bytes;
    AppendCodePage1251(bytes, text.constData(), text.size());
    return bytes.toStdString();
}

} // namespace

TEST(CodePage1251, EveryCharacterOfTheBasicPlaneIsAsQtEncodesIt)
{
    QTextCodec* codec = QTextCodec::codecForName("windows-1251");
    ASSERT_NE(codec, nullptr);
    for (int code = 1; code < 0x10000; ++code) {
        const QChar c(static_cast<ushort>(code));
        if (c.isSurrogate() || code == 0x98) {
            continue;
        }
        const QByteArray qt = codec->fromUnicode(&c, 1);
        // Qt's converter may stretch to letters of other widths; they are lacking here.
        if (codec->toUnicode(qt) == QString(c)) {
            ASSERT_EQ(Encoded(QString(c)), qt.toStdString()) << code;
        } else {
            ASSERT_EQ(Encoded(QString(c)), "?") << code;
        }
    }
}

TEST(CodePage1251, AlphabetIsRussian)
{
    EXPECT_EQ(Encoded(QStringLiteral("АЯаяЁё№")), "\xC0\xDF\xE0\xFF\xA8\xB8\xB9");
}

TEST(CodePage1251, LackingLetterIsAQuestionMark)
{
    EXPECT_EQ(Encoded(QStringLiteral("aéb")), "a?b");
    EXPECT_EQ(Encoded(QString(QChar(0x98))), "?");
}

TEST(CodePage1251, LetterBeyondTheBasicPlaneIsOneQuestionMarkAsQtMakesIt)
{
    const QString text = QStringLiteral("a\U0001F600b");
    EXPECT_EQ(Encoded(text), "a?b");
    EXPECT_EQ(Encoded(text),
              QTextCodec::codecForName("windows-1251")->fromUnicode(text).toStdString());
}

TEST(CodePage1251, HalfOfAPairIsAQuestionMark)
{
    EXPECT_EQ(Encoded(QString(QChar(0xD83D)) + QStringLiteral("a")), "?a");
    EXPECT_EQ(Encoded(QStringLiteral("a") + QChar(0xD83D)), "a?");
}

TEST(CodePage1251, NameTakesAnUnderscoreForALackingLetter)
{
    EXPECT_EQ(WithinCodePage1251(QStringLiteral("дом é\U0001F600 1")), QStringLiteral("дом __ 1"));
}

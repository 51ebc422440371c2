// SPDX-License-Identifier: MIT
#include "tools/velorx/features/CodedText.h"
#include "tools/velorx/features/PlainText.h"

#include <gtest/gtest.h>

namespace velorx::test {

namespace {

// Texts that look like codes, and letters of all sorts.
const char16_t* const kTexts[] = {
    u"Main Street",
    u"100%%c %% %%%",
    u"x^2 ^I ^ ^",
    u"\\U+0041 \\M+1XXXX",
    u"a\\b {c} \\P",
    u"日本 Ω",
    u"Улица Ленина",
    u"\\\\U+0041",
    u"^Ω %日 \\日 ^",
    u"{\\fArial;} \\S1/2;",
    u"%",
    u"C:\\new\\folder",
};

} // namespace

TEST(CodedText, IsPlainAgain)
{
    for (const char16_t* text : kTexts) {
        bool isWhole = true;
        const QString plain = QString::fromUtf16(text);
        EXPECT_EQ(PlainOfText(CodedText(plain, isWhole)).text, plain) << plain.toStdString();
        EXPECT_TRUE(isWhole);
    }
}

TEST(CodedText, KeepsBlanksAndLinesThatTheWriterWouldSimplify)
{
    bool isWhole = true;
    const QString plain = QStringLiteral(" a  b\nc\n d ");
    const QString coded = CodedText(plain, isWhole);
    EXPECT_EQ(coded.simplified(), coded);
    EXPECT_EQ(PlainOfText(coded).text, plain);
}

TEST(CodedText, LeavesOrdinaryTextsAlone)
{
    bool isWhole = true;
    EXPECT_EQ(CodedText(QStringLiteral("Дом 5, 20% {a}"), isWhole),
              QStringLiteral("Дом 5, 20% {a}"));
}

TEST(CodedText, TellsOfLettersWithoutACode)
{
    bool isWhole = true;
    CodedText(QString::fromUtf8("\xF0\x9F\x98\x80"), isWhole);
    EXPECT_FALSE(isWhole);
}

TEST(CodedMText, IsPlainAgain)
{
    for (const char16_t* text : kTexts) {
        bool isWhole = true;
        const QString plain = QString::fromUtf16(text);
        const SPlainText decoded = PlainOfMText(CodedMText(plain, isWhole));
        EXPECT_EQ(decoded.text, plain) << plain.toStdString();
        EXPECT_FALSE(decoded.isSimplified);
        EXPECT_TRUE(isWhole);
    }
}

TEST(CodedMText, KeepsBlanksWhereTheWriterPartsIt)
{
    QString text(600, 'x');
    for (const int at : {248, 249, 250, 251, 499, 500}) {
        text[at] = ' ';
    }
    const QString coded = WithCodesAtSeams(text);
    for (int i = 0; i < coded.size(); i += 250) {
        EXPECT_EQ(coded.mid(i, 250).trimmed(), coded.mid(i, 250));
    }
    EXPECT_EQ(PlainOfMText(coded).text, text);
}

TEST(CodedMText, KeepsLines)
{
    bool isWhole = true;
    EXPECT_EQ(CodedMText(QStringLiteral("a\n\nb"), isWhole), "a\\P\\Pb");
}

} // namespace velorx::test

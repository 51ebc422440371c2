// SPDX-License-Identifier: MIT
#include "tools/velorx/features/PlainText.h"

#include <gtest/gtest.h>

#include <QTextCodec>

namespace velorx::test {

namespace {

std::string Text(const char16_t* coded)
{
    return PlainOfText(QString::fromUtf16(coded)).text.toStdString();
}

std::string MText(const char16_t* coded)
{
    return PlainOfMText(QString::fromUtf16(coded)).text.toStdString();
}

SLetters LettersOf(const char16_t* coded)
{
    return PlainOfMText(QString::fromUtf16(coded)).letters;
}

bool IsSimplified(const char16_t* coded)
{
    return PlainOfMText(QString::fromUtf16(coded)).isSimplified;
}

} // namespace

// ---- TEXT --------------------------------------------------------------------------------------

TEST(PlainText, TakesLettersByTheirPercentCodes)
{
    EXPECT_EQ(Text(u"%%c50 45%%d %%p1 %%C %%D %%P"), "Ø50 45° ±1 Ø ° ±");
    EXPECT_EQ(Text(u"100%%%"), "100%");
}

TEST(PlainText, TakesLettersByTheirNumber)
{
    EXPECT_EQ(Text(u"%%065%%066"), "AB");
    EXPECT_EQ(Text(u"%%65 %%999 %%"), "%%65 %%999 %%");
}

TEST(PlainText, TakesNumbersBeyondAsciiInTheLocalCodec)
{
    QTextCodec* before = QTextCodec::codecForLocale();
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("windows-1251"));
    EXPECT_EQ(Text(u"%%192"), "А"); // Cyrillic
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    EXPECT_EQ(Text(u"%%192"), "À"); // no letter by itself there, so Latin-1
    QTextCodec::setCodecForLocale(before);
}

TEST(PlainText, TakesUnderlineOverlineAndStrikeAway)
{
    const SPlainText plain = PlainOfText("%%uabc%%u");
    EXPECT_EQ(plain.text, "abc");
    EXPECT_TRUE(plain.letters.isUnderlined);
    EXPECT_FALSE(plain.isSimplified);
    EXPECT_EQ(Text(u"%%oa%%O %%kb%%K"), "a b");
    EXPECT_TRUE(PlainOfText("%%oa").isSimplified);
    EXPECT_TRUE(PlainOfText("%%ua%%ub").isSimplified);
}

TEST(PlainText, TakesUnicodeByNumber)
{
    EXPECT_EQ(Text(u"\\U+0416\\U+2205x"), "Ж∅x");
    EXPECT_EQ(Text(u"\\U+041"), "\\U+041");
    EXPECT_EQ(Text(u"\\U+zzzz"), "\\U+zzzz");
}

TEST(PlainText, TakesDoubleByteLettersOfTheirCodePages)
{
    EXPECT_EQ(Text(u"\\M+193FA\\M+1967B"), "日本");
    EXPECT_EQ(Text(u"\\M+2A4E9"), "日");
    EXPECT_EQ(Text(u"\\M+3C0CF"), "일");
    EXPECT_EQ(Text(u"\\M+5C8D5"), "日");
    EXPECT_EQ(Text(u"\\M+10041"), "A");
    EXPECT_EQ(Text(u"\\M+9C8D5 \\M+1"), "\\M+9C8D5 \\M+1");
}

TEST(PlainText, TakesCaretsAsControlCharacters)
{
    EXPECT_EQ(Text(u"a^Ib"), "a b");
    EXPECT_EQ(Text(u"a^Jb^Mc^M^Jd"), "a\nb\nc\nd");
    EXPECT_EQ(Text(u"a^ b"), "a^b");
    EXPECT_EQ(Text(u"a^Gb"), "ab");
    EXPECT_EQ(Text(u"m^2 x^y ^"), "m^2 x^y ^");
}

TEST(PlainText, LeavesCodesOfMTextAloneInText)
{
    EXPECT_EQ(Text(u"{\\fArial|b1;a}\\Pb"), "{\\fArial|b1;a}\\Pb");
}

// ---- MTEXT -------------------------------------------------------------------------------------

TEST(PlainMText, KnowsTheCodesOfAllTexts)
{
    EXPECT_EQ(MText(u"%%c\\U+0416\\M+193FA^Jb"), "ØЖ日\nb");
}

TEST(PlainMText, BreaksLines)
{
    EXPECT_EQ(MText(u"a\\Pb\\Nc\\Xd"), "a\nb\nc\nd");
}

TEST(PlainMText, DoesNotEndWithALineFeed)
{
    EXPECT_EQ(MText(u"\\Pa\\P\\P"), "\na");
}

TEST(PlainMText, TakesBlanksThatKeepLinesTogether)
{
    EXPECT_EQ(MText(u"a\\~b"), "a b");
}

TEST(PlainMText, TakesEscapedSignsForThemselves)
{
    EXPECT_EQ(MText(u"\\\\ \\{x\\}"), "\\ {x}");
}

TEST(PlainMText, DropsBracesEvenIfTheyDoNotMatch)
{
    EXPECT_EQ(MText(u"{a{b}c}}d{"), "abcd");
}

TEST(PlainMText, TakesFontAndItsStyle)
{
    const SLetters letters = LettersOf(u"{\\fTimes New Roman|b1|i1|c204|p18;abc}");
    EXPECT_EQ(letters.font, "Times New Roman");
    EXPECT_TRUE(letters.isBold);
    EXPECT_TRUE(letters.isItalic);
    EXPECT_EQ(MText(u"{\\fTimes New Roman|b1|i1|c204|p18;abc}"), "abc");
}

TEST(PlainMText, FontOfShapesIsNoTypeface)
{
    EXPECT_EQ(LettersOf(u"\\FSimplex.shx;abc").font, "");
}

TEST(PlainMText, TakesUnderline)
{
    EXPECT_TRUE(LettersOf(u"\\Labc\\l").isUnderlined);
    EXPECT_FALSE(LettersOf(u"abc").isUnderlined);
}

TEST(PlainMText, TakesHeightsAndFactors)
{
    EXPECT_EQ(LettersOf(u"\\H2.5;a").height, 2.5);
    EXPECT_EQ(LettersOf(u"\\H0.5x;\\H0.5x;a").heightFactor, 0.25);
    EXPECT_EQ(LettersOf(u"\\H0.5x;\\H3;a").heightFactor, 1);
    EXPECT_EQ(LettersOf(u"\\W0.8;a").widthFactor, 0.8);
    EXPECT_NEAR(LettersOf(u"\\Q-90;a").slant, -1.5707963, 1e-7);
}

TEST(PlainMText, TakesColours)
{
    EXPECT_EQ(LettersOf(u"\\C1;a").colour, 1);
    EXPECT_EQ(LettersOf(u"\\C257;a").colour, -1);
    EXPECT_EQ(LettersOf(u"\\c16711680;a").trueColour, 0xFF0000);
}

TEST(PlainMText, TakesNumbersWithoutTheirSemicolon)
{
    EXPECT_EQ(MText(u"\\H2.5a\\C1b"), "ab");
}

TEST(PlainMText, DropsSpacingAlignmentAndParagraphs)
{
    EXPECT_EQ(MText(u"\\A1;\\T1.2;\\pxqc,t4;a"), "a");
    EXPECT_FALSE(IsSimplified(u"\\A1;a"));
    EXPECT_TRUE(IsSimplified(u"\\pxqc;a"));
}

TEST(PlainMText, DropsOverlineAndStrike)
{
    EXPECT_EQ(MText(u"\\Oa\\o\\Kb\\k"), "ab");
    EXPECT_TRUE(IsSimplified(u"\\Oa\\o"));
}

TEST(PlainMText, PutsStackedLettersInARow)
{
    EXPECT_EQ(MText(u"\\S1/2;"), "1/2");
    EXPECT_EQ(MText(u"\\S1#2;"), "1/2");
    EXPECT_EQ(MText(u"\\S+0.1^ -0.2;"), "+0.1/-0.2");
    EXPECT_EQ(MText(u"m\\S2^ ;"), "m2");
    EXPECT_EQ(MText(u"a\\S^ 2;"), "a2");
    EXPECT_EQ(MText(u"5\\S1/2;"), "5 1/2");
    EXPECT_EQ(MText(u"\\Sa\\/b/c\\;d;"), "a/b/c;d");
}

TEST(PlainMText, LeavesWhatIsNoCodeAsItIs)
{
    EXPECT_EQ(MText(u"C:\\temp\\Hello\\x \\"), "C:\\temp\\Hello\\x \\");
    EXPECT_EQ(MText(u"\\fArial"), "\\fArial");
    EXPECT_EQ(MText(u"\\S1/2"), "\\S1/2");
    EXPECT_EQ(MText(u"\\C;a"), "\\C;a");
}

TEST(PlainMText, TakesTheLooksOfTheFirstLetter)
{
    const SLetters letters = LettersOf(u"{\\C1;} {\\C2;a}\\C3;b");
    EXPECT_EQ(letters.colour, 2);
    EXPECT_TRUE(IsSimplified(u"{\\C2;a}b"));
    EXPECT_FALSE(IsSimplified(u"{\\C2;a b}"));
}

TEST(PlainMText, BracesEndWhatBeginsInThem)
{
    EXPECT_EQ(LettersOf(u"{\\H5;}a").height, 0);
}

} // namespace velorx::test

// SPDX-License-Identifier: MIT
#include "VelorExchange/mif/Tokens_p.h"

#include "tests/support/MifRecorder.h"
#include "VelorExchange/mif/LineText_p.h"
#include "VelorExchange/mif/RemoveQuotes_p.h"

#include <QRegExp>
#include <QStringList>

#include <random>

using namespace VelorExchange::mif;
using VelorExchange::test::CLocalCodec;

namespace {

struct CPattern
{
    const CSeparators* separators;
    const char* expression;
};

const CPattern kPatterns[] = {{&kBlanks, "[\t ]"},
                              {&kBlankOrBracket, "[ \\x0028\\x0029]"},
                              {&kBracketOrComma, "[\\x0028\\x0029,]"},
                              {&kBrackets, "[\\x0029\\x0028]"},
                              {&kComma, "[,]"},
                              {&kCommaOrQuote, "[,\"]"},
                              {&kQuote, "[\"]"},
                              {&kAnyQuote, "[\"']"}};

const char* const kCodecs[] = {"UTF-8", "windows-1251", "ISO-8859-1", "Shift_JIS"};

QByteArray RandomLine(std::mt19937& random, int bytesOf256)
{
    static const char kTelling[] = "  \t\t((),,\"\"''\r+-.0123456789eExyPen";
    QByteArray line;
    for (auto length = random() % 24; length > 0; --length) {
        const bool isAny = static_cast<int>(random() % 256) < bytesOf256;
        line.append(isAny ? static_cast<char>(1 + random() % 255)
                          : kTelling[random() % (sizeof(kTelling) - 1)]);
    }
    return line.replace('\n', 'x');
}

// A line as Qt alone makes it.
QString LineByQt(const QByteArray& raw)
{
    return QString::fromLocal8Bit(QString::fromLocal8Bit(raw).trimmed().toLocal8Bit());
}

CSpan SpanOf(const QByteArray& bytes)
{
    return {bytes.constData(), bytes.constData() + bytes.size()};
}

void ExpectSplitAsQt(const QByteArray& raw, const CPattern& pattern)
{
    CLineText line;
    line.SetLine(SpanOf(raw));
    line.Remove('\r');
    const CTokens tokens = Split(line.Span(), *pattern.separators);
    QString expected = LineByQt(raw);
    expected.remove(QLatin1Char('\r')).remove(QLatin1Char('\n'));
    const QStringList parts =
        expected.split(QRegExp(QLatin1String(pattern.expression)), Qt::SkipEmptyParts);
    ASSERT_EQ(tokens.count, static_cast<std::size_t>(parts.size())) << raw.toHex().constData();
    for (std::size_t i = 0; i < std::min(tokens.count, CTokens::kKept); ++i) {
        const QString& part = parts.at(static_cast<int>(i));
        EXPECT_EQ(line.Text(tokens[i]), part) << raw.toHex().constData();
        const double value = part.toDouble();
        EXPECT_TRUE(line.ToDouble(tokens[i]) == value || value != value) << part.toStdString();
        EXPECT_EQ(line.ToInt(tokens[i]), part.toInt());
        EXPECT_EQ(line.ToShort(tokens[i]), part.toShort());
    }
}

} // namespace

TEST(Split, CutsAsRegularExpressionsDo)
{
    std::mt19937 random(7);
    for (const char* codec : kCodecs) {
        const CLocalCodec local(codec);
        for (int i = 0; i < 600; ++i) {
            const QByteArray raw = RandomLine(random, i % 3 == 0 ? 64 : 0);
            for (const CPattern& pattern : kPatterns) {
                ExpectSplitAsQt(raw, pattern);
            }
        }
    }
}

TEST(Split, CountsBeyondWhatItKeeps)
{
    const QByteArray bytes = "1 2 3 4 5 6 7 8 9";
    const CTokens tokens = Split(SpanOf(bytes), kBlanks);
    EXPECT_EQ(tokens.count, 9U);
    EXPECT_EQ(*tokens[6].begin, '7');
}

TEST(LineText, NumbersWithOddSpacesReadAsInQt)
{
    const CLocalCodec local("windows-1251");
    for (const char* token :
         {"5\xA0",
          "\xA0"
          "5",
          "+5", "5.", ".5", "1e3", "1e400", "nan", "inf", "-inf", "0x10", "", "1,5",
          "12345678901234567890", "2147483648", "-2147483648", "1e", "\x98"})
    {
        CLineText line;
        const QByteArray raw = QByteArray("a,") + token + ",b";
        line.SetLine(SpanOf(raw));
        const CSpan part{raw.constData() + 2, raw.constData() + raw.size() - 2};
        const QString text = QString::fromLocal8Bit(token);
        const double value = text.toDouble();
        EXPECT_TRUE(line.ToDouble(part) == value || (value != value)) << token;
        EXPECT_EQ(line.ToInt(part), text.toInt()) << token;
        EXPECT_EQ(line.ToShort(part), text.toShort()) << token;
    }
}

TEST(LineText, LinesAreTrimmedAndMakeTheRoundTripAsInQt)
{
    std::mt19937 random(11);
    for (const char* codec : {"UTF-8", "windows-1251", "IBM866", "GB18030", "ISO-2022-JP"}) {
        const CLocalCodec local(codec);
        CLineText line;
        for (int i = 0; i < 3000; ++i) {
            const QByteArray raw = RandomLine(random, 128);
            line.SetLine(SpanOf(raw));
            EXPECT_EQ(line.Text(), LineByQt(raw)) << codec << ' ' << raw.toHex().constData();
        }
    }
}

TEST(LineText, ByteOrderMarksGoAsInQt)
{
    const CLocalCodec local("UTF-8");
    for (const char* raw : {"\xEF\xBB\xBFVersion 300", "\xEF\xBB\xBF\xEF\xBB\xBFx",
                            " \xEF\xBB\xBFx", "\xEF\xBB\xBF", "x\xEF\xBB\xBF", "a \xEF\xBB\xBF"})
    {
        CLineText line;
        const QByteArray bytes = raw;
        line.SetLine(SpanOf(bytes));
        EXPECT_EQ(line.Text(), LineByQt(bytes)) << bytes.toHex().constData();
    }
}

TEST(LineText, RowsAreDecodedOnceAsInQt)
{
    std::mt19937 random(13);
    for (const char* codec : {"UTF-8", "windows-1251", "Shift_JIS"}) {
        const CLocalCodec local(codec);
        CLineText line;
        for (int i = 0; i < 2000; ++i) {
            const QByteArray raw = RandomLine(random, 128);
            line.SetRow(SpanOf(raw));
            EXPECT_EQ(line.Text(), QString::fromLocal8Bit(raw).remove(QLatin1Char('\r')))
                << codec << ' ' << raw.toHex().constData();
        }
    }
}

TEST(LineText, BrokenCharacterAtTheEndMeetsTheLineFeedAsInQt)
{
    for (const char* codec : {"GB18030", "GBK", "Big5", "Shift_JIS", "EUC-JP", "windows-1251"}) {
        const CLocalCodec local(codec);
        for (const char* bytes : {"a\xEF\n", "\xEF\n", "a\xFF\n", "a\xE0\r\n", "\xEF\xBB\xBF\n"}) {
            const QByteArray raw = bytes;
            const CSpan withoutLineFeed{raw.constData(), raw.constData() + raw.size() - 1};
            CLineText line;
            line.SetLine(withoutLineFeed, true);
            EXPECT_EQ(line.Text(), LineByQt(raw)) << codec << ' ' << raw.toHex().constData();
            CLineText row;
            row.SetRow(withoutLineFeed, true);
            const QString expected =
                QString::fromLocal8Bit(raw).remove(QLatin1Char('\r')).remove(QLatin1Char('\n'));
            EXPECT_EQ(row.Text(), expected) << codec << ' ' << raw.toHex().constData();
        }
    }
}

TEST(LineText, ContainsAsQtWithoutRegardToCase)
{
    const CLocalCodec local("UTF-8");
    for (const char* raw :
         {"REGION 1", "xregionx", "Regio n", "p\xC5\xBFymbol", "\xC5\xBFymbol (1,2,3)",
          "Bru\xC5\xBFh", "\xE2\x84\xAA", "Symbo", "SYMBOL", "sYmBoL", "@ymbol", "brus`", "BRUSH"})
    {
        CLineText line;
        const QByteArray bytes = raw;
        line.SetLine(SpanOf(bytes));
        for (const char* word : {"Region", "Symbol", "Brush"}) {
            EXPECT_EQ(line.Contains(CWord(word)),
                      LineByQt(bytes).contains(QLatin1String(word), Qt::CaseInsensitive))
                << raw << ' ' << word;
        }
    }
}

TEST(LineText, FindsDigitsOfAllScriptsAsQt)
{
    const CLocalCodec local("UTF-8");
    for (const char* raw : {"Point", "Point 1", "Point \xD9\xA1", "Point \xC2\xB2", "\xD0\x90"}) {
        CLineText line;
        const QByteArray bytes = raw;
        line.SetLine(SpanOf(bytes));
        EXPECT_EQ(line.HasDigit(), LineByQt(bytes).contains(QRegExp(QStringLiteral("\\d+"))))
            << raw;
    }
}

TEST(RemoveQuotes, TakesSpaceAroundAsTheExpressionDoes)
{
    std::mt19937 random(17);
    const QString alphabet = QStringLiteral("\"\" \t\u00A0ab'");
    for (int i = 0; i < 3000; ++i) {
        QString text;
        for (auto length = random() % 12; length > 0; --length) {
            text += alphabet.at(static_cast<int>(random() % 8));
        }
        EXPECT_EQ(RemoveQuotes(text), QString(text).remove(QRegExp(QStringLiteral("(\\s*\"\\s*)"))))
            << text.toStdString();
    }
}

TEST(ToRadians, MultipliesBeforeItDivides)
{
    int tellingApart = 0;
    for (double degrees = 0.1; degrees < 360.0; degrees += 0.7) {
        EXPECT_EQ(ToRadians(degrees), degrees * 3.141592653589793 / 180.0);
        tellingApart += ToRadians(degrees) != degrees * (3.141592653589793 / 180.0) ? 1 : 0;
    }
    EXPECT_GT(tellingApart, 0);
}

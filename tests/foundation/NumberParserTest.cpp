// SPDX-License-Identifier: MIT
#include "VelorExchange/foundation/NumberParser_p.h"

#include <cstring>
#include <random>

using VelorExchange::ParsePlainDouble;
using VelorExchange::ParsePlainInt;

namespace {

bool SameBits(double a, double b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}

// Wherever the quick way answers, Qt must convert too and give the same bits.
void ExpectAsQt(const QByteArray& text)
{
    double quick = -1;
    if (ParsePlainDouble(text.constData(), static_cast<std::size_t>(text.size()), quick)) {
        bool ok = false;
        const double qt = QString::fromLatin1(text).toDouble(&ok);
        EXPECT_TRUE(ok) << text.constData();
        EXPECT_TRUE(SameBits(quick, qt)) << text.constData() << ' ' << quick << ' ' << qt;
    }
    int number = -1;
    if (ParsePlainInt(text.constData(), static_cast<std::size_t>(text.size()), number)) {
        bool ok = false;
        EXPECT_EQ(number, QString::fromLatin1(text).toInt(&ok)) << text.constData();
        EXPECT_TRUE(ok) << text.constData();
    }
}

bool TakesDouble(const char* text)
{
    double value = 0;
    return ParsePlainDouble(text, std::strlen(text), value);
}

bool TakesInt(const char* text)
{
    int value = 0;
    return ParsePlainInt(text, std::strlen(text), value);
}

} // namespace

TEST(NumberParser, AnswersForOrdinaryNumbers)
{
    for (const char* text : {"0", "-0", "12.5", "-12.5", "1e5", "1E-05", "123456.789012", "0.1",
                             "4503599627370496.5", "1e308", "5e-324", "+3", "00012.50"})
    {
        EXPECT_TRUE(TakesDouble(text)) << text;
        ExpectAsQt(text);
    }
    for (const char* text : {"0", "-7", "+12", "370", "999999999"}) {
        EXPECT_TRUE(TakesInt(text)) << text;
    }
}

TEST(NumberParser, LeavesEverythingElseToQt)
{
    for (const char* text : {"", "-", ".", "e5", "1e", "1e+", " 1", "1 ", "1,5", "0x10", "1;2",
                             "abc", "--1", "1e400", "1..2", "1e99999", "nan", "inf"})
    {
        EXPECT_FALSE(TakesDouble(text)) << text;
    }
    for (const char* text : {"", "-", "+", " 1", "1.0", "1000000000", "12a", "0x1"}) {
        EXPECT_FALSE(TakesInt(text)) << text;
    }
}

TEST(NumberParser, EveryShortTextIsAsQt)
{
    const char alphabet[] = "019.-+eE ";
    constexpr int kLetters = sizeof alphabet - 1;
    int all = 1;
    for (int length = 1; length <= 5; ++length) {
        all *= kLetters;
        for (int n = 0; n < all; ++n) {
            QByteArray text;
            for (int i = 0, rest = n; i < length; ++i, rest /= kLetters) {
                text.append(alphabet[rest % kLetters]);
            }
            ExpectAsQt(text);
        }
    }
}

TEST(NumberParser, RandomDoublesAreAsQt)
{
    std::mt19937_64 random(20260101);
    for (int i = 0; i < 200000; ++i) {
        const quint64 bits = random();
        double value = 0;
        std::memcpy(&value, &bits, sizeof value);
        ExpectAsQt(QByteArray::number(value, 'g', static_cast<int>(random() % 18) + 1));
        if (std::abs(value) < 1e30 && std::abs(value) > 1e-30) {
            ExpectAsQt(QByteArray::number(value, 'f', static_cast<int>(random() % 20)));
        }
    }
}

TEST(NumberParser, CoordinatesWithAnyNumberOfDigitsAreAsQt)
{
    std::mt19937_64 random(7);
    for (int i = 0; i < 200000; ++i) {
        QByteArray text = QByteArray::number(static_cast<qulonglong>(random() % 10000000));
        text += '.';
        for (quint64 digits = random() % 24; digits > 0; --digits) {
            text += static_cast<char>('0' + random() % 10);
        }
        ExpectAsQt(text);
        ExpectAsQt('-' + text);
    }
}

TEST(NumberParser, HalfwayCasesAreAsQt)
{
    for (const char* text :
         {"9007199254740993", "9007199254740992.5", "1.00000000000000011102230246251565",
          "2.2250738585072011e-308", "4.9406564584124654e-324", "2.4703282292062327e-324",
          "1.7976931348623157e308", "179769313486231580793728971405301e276"})
    {
        ExpectAsQt(text);
    }
}

// SPDX-License-Identifier: MIT
#include "VelorExchange/foundation/NumberFormatter_p.h"

#include <cmath>
#include <cstring>
#include <limits>
#include <random>

using namespace VelorExchange;

namespace {

QByteArray Fixed(double value, int digits)
{
    QByteArray text;
    AppendFixed(text, value, digits);
    return text;
}

std::string FixedText(double value, int digits)
{
    return Fixed(value, digits).toStdString();
}

bool IsAsQt(double value, int digits)
{
    const QByteArray ours = Fixed(value, digits);
    const QString theirs = QString::number(value, 'f', digits);
    if (theirs == QLatin1String(ours)) {
        return true;
    }
    ADD_FAILURE() << ours.constData() << " is not " << theirs.toStdString() << " with " << digits
                  << " digits";
    return false;
}

double FromBits(quint64 bits)
{
    double value = 0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

} // namespace

TEST(NumberFormatter, TiesOfTheBinaryValueGoAwayFromZero)
{
    EXPECT_EQ(FixedText(0.03125, 4), "0.0313");
    EXPECT_EQ(FixedText(-0.03125, 4), "-0.0313");
    EXPECT_EQ(FixedText(0.5, 0), "1");
    EXPECT_EQ(FixedText(2.5, 0), "3");
    EXPECT_EQ(FixedText(0.125, 2), "0.13");
    EXPECT_EQ(FixedText(1.005, 2), "1.00"); // the double lies below the tie
}

TEST(NumberFormatter, ZeroHasNoSignAndWhatRoundsToZeroKeepsIt)
{
    EXPECT_EQ(FixedText(-0.0, 6), "0.000000");
    EXPECT_EQ(FixedText(-0.0000001, 6), "-0.000000");
    EXPECT_EQ(FixedText(-0.25, 0), "-0");
    EXPECT_EQ(FixedText(-std::numeric_limits<double>::denorm_min(), 2), "-0.00");
}

TEST(NumberFormatter, CarriesIntoTheWholePart)
{
    EXPECT_EQ(FixedText(9.9999996, 6), "10.000000");
    EXPECT_EQ(FixedText(-99.5, 0), "-100");
    EXPECT_EQ(FixedText(0.99999999999999999, 17), "1.00000000000000000");
}

TEST(NumberFormatter, NotANumberAndInfinityAreAsQt)
{
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
    for (const double value : {kInfinity, -kInfinity, kNan, -kNan}) {
        EXPECT_TRUE(IsAsQt(value, 6));
        EXPECT_TRUE(IsAsQt(value, 0));
    }
}

TEST(NumberFormatter, EdgesOfEachMagnitudeAreAsQt)
{
    for (int exponent = -1074; exponent < 1024; ++exponent) {
        const double power = std::ldexp(1.0, exponent);
        for (const double value :
             {power, std::nextafter(power, 0.0), std::nextafter(power, 1e308), power * 1.5})
        {
            for (int digits = 0; digits <= kMostFixedDigits; digits += exponent > 70 ? 17 : 1) {
                ASSERT_TRUE(IsAsQt(value, digits));
            }
        }
    }
}

TEST(NumberFormatter, PowersOfTenAndTheirNeighboursAreAsQt)
{
    for (int exponent = -18; exponent <= 22; ++exponent) {
        const double power = std::pow(10.0, exponent);
        for (const double value : {power, std::nextafter(power, 0.0), std::nextafter(power, 1e308)})
        {
            for (int digits = 0; digits <= kMostFixedDigits; ++digits) {
                ASSERT_TRUE(IsAsQt(value, digits));
                ASSERT_TRUE(IsAsQt(-value, digits));
            }
        }
    }
}

TEST(NumberFormatter, RandomBitsAreAsQt)
{
    std::mt19937_64 random(1);
    for (int i = 0; i < 20000; ++i) {
        ASSERT_TRUE(IsAsQt(FromBits(random()), static_cast<int>(random() % 18)));
    }
}

TEST(NumberFormatter, RandomOrdinaryMagnitudesAreAsQt)
{
    std::mt19937_64 random(2);
    for (int i = 0; i < 200000; ++i) {
        const quint64 bits = random();
        const quint64 exponent = 1023 - 70 + (bits >> 52U) % 140; // 2^-70 to 2^70
        const double value = FromBits((bits & 0x800FFFFFFFFFFFFFU) | exponent << 52U);
        ASSERT_TRUE(IsAsQt(value, static_cast<int>(random() % 18)));
    }
}

TEST(NumberFormatter, RandomTiesAreAsQt)
{
    std::mt19937_64 random(3);
    for (int i = 0; i < 500000; ++i) {
        // An odd number of halves, quarters, ... of the last digit: exactly between two texts.
        const int digits = static_cast<int>(random() % 18);
        const double odd = static_cast<double>((random() >> (20 + random() % 40)) | 1U);
        ASSERT_TRUE(IsAsQt(std::ldexp(odd, -digits - 1), digits));
    }
}

TEST(NumberFormatter, DecimalCoordinatesAreAsQt)
{
    std::mt19937_64 random(4);
    for (int i = 0; i < 500000; ++i) {
        const int places = static_cast<int>(random() % 10);
        const auto units = static_cast<double>(static_cast<qint64>(random() >> (random() % 64)));
        ASSERT_TRUE(IsAsQt(units / std::pow(10.0, places), static_cast<int>(random() % 10)));
    }
}

TEST(NumberFormatter, DigitCountsBeyondTheTableAreAsQt)
{
    for (const int digits : {18, 20, 40, -1, -2, -128}) {
        for (const double value : {0.1, -2.5, 1e22, 123456.789, 5e-324}) {
            EXPECT_TRUE(IsAsQt(value, digits));
        }
    }
}

TEST(NumberFormatter, LongestValueFitsTheRoom)
{
    char text[kFixedRoom];
    EXPECT_EQ(PutFixed(text, std::numeric_limits<double>::lowest(), kMostFixedDigits) - text,
              static_cast<std::ptrdiff_t>(kFixedRoom));
}

TEST(NumberFormatter, IntegersAreAsQt)
{
    std::mt19937_64 random(5);
    for (int i = 0; i < 100000; ++i) {
        const auto value = static_cast<qint64>(random()) >> (random() % 64);
        QByteArray text;
        AppendInt(text, value);
        ASSERT_EQ(text, QByteArray::number(value));
        char hex[kIntRoom];
        const quint64 bits = random() >> (random() % 64);
        ASSERT_EQ(QByteArray(hex, static_cast<int>(PutHex(hex, bits) - hex)),
                  QByteArray::number(bits, 16));
    }
    for (const qint64 value : {std::numeric_limits<qint64>::min(),
                               std::numeric_limits<qint64>::max(), qint64{0}, qint64{-1}})
    {
        QByteArray text;
        AppendInt(text, value);
        EXPECT_EQ(text, QByteArray::number(value));
    }
}

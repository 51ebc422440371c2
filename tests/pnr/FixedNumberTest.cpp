// SPDX-License-Identifier: MIT
#include "VelorExchange/pnr/FixedNumber_p.h"

#include <cmath>
#include <random>

using VelorExchange::pnr::ParseFixed;

namespace {

// What is not read whole is left to QString; what is read equals it, the sign of zero included.
bool ExpectAsQt(const QByteArray& token)
{
    double value = 0;
    const char* end = ParseFixed(token.constData(), value);
    if (!end || end != token.constData() + token.size()) {
        return false;
    }
    bool converts = false;
    const double expected = QString::fromLatin1(token).toDouble(&converts);
    EXPECT_TRUE(converts) << token.constData();
    EXPECT_EQ(value, expected) << token.constData();
    EXPECT_EQ(std::signbit(value), std::signbit(expected)) << token.constData();
    return true;
}

} // namespace

TEST(FixedNumber, ReadsPlainNumbersAsQt)
{
    for (const char* token : {"0", "-0", "1", "-1.5", "007", "0.1", ".5", "5.", "-.25",
                              "6174392.2500", "9007199254740992", "0.000000000000000001"})
    {
        EXPECT_TRUE(ExpectAsQt(token)) << token;
    }
}

TEST(FixedNumber, LeavesAllElseAlone)
{
    for (const char* token :
         {"", "-", ".", "-.", "+1", "1e5", "nan", "inf", "x", "--1", "1x", " 1", "9007199254740993",
          "12345678901234567890", "0x10", "0.0000000000000000001"})
    {
        EXPECT_FALSE(ExpectAsQt(token)) << token;
    }
}

TEST(FixedNumber, ReadsRandomNumbersAsQt)
{
    std::mt19937_64 random(3);
    for (int i = 0; i < 200000; ++i) {
        const double value = static_cast<double>(static_cast<qint64>(random()))
            / std::pow(10, static_cast<double>(random() % 18));
        ExpectAsQt(QByteArray::number(value, 'f', static_cast<int>(random() % 12)));
    }
}

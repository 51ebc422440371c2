// SPDX-License-Identifier: MIT
#include "VelorExchange/pnr/Checksum_p.h"

#include <random>

using VelorExchange::pnr::SumSignedBytes;

namespace {

quint32 PlainSum(const std::vector<char>& bytes)
{
    quint32 sum = 0;
    for (const char c : bytes) {
        sum += static_cast<quint32>(static_cast<signed char>(c));
    }
    return sum;
}

} // namespace

TEST(Checksum, EqualsThePlainSumForEveryLength)
{
    std::mt19937 random(5);
    for (std::size_t size = 0; size < 3000; size = size < 40 ? size + 1 : size * 2 - 13) {
        std::vector<char> bytes(size);
        for (char& c : bytes) {
            c = static_cast<char>(random());
        }
        EXPECT_EQ(SumSignedBytes(bytes.data(), size), PlainSum(bytes)) << size;
    }
}

TEST(Checksum, LanesDoNotOverflowOnLargestAndSmallestBytes)
{
    for (const int value : {127, -128, -1, 0}) {
        const std::vector<char> bytes(100003, static_cast<char>(value));
        EXPECT_EQ(SumSignedBytes(bytes.data(), bytes.size()), PlainSum(bytes)) << value;
    }
}

TEST(Checksum, NeedsNoAlignment)
{
    std::vector<char> bytes(77, 'x');
    bytes.erase(bytes.begin(), bytes.begin() + 3);
    EXPECT_EQ(SumSignedBytes(bytes.data() + 1, 73), 73U * 'x');
}

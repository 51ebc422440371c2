// SPDX-License-Identifier: MIT
#include "VelorExchange/foundation/NumberParser_p.h"

#include <charconv>
#include <cstdint>
#include <cstring>

namespace VelorExchange {

namespace {

// Powers of ten that a double holds exactly.
constexpr double kExactPowers[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                   1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                   1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
constexpr std::int64_t kLargestExactPower = 22;
constexpr std::uint64_t kLargestExactInteger = std::uint64_t{1} << 53U;
constexpr std::ptrdiff_t kMostDigits = 19; // always fit 64 bits
constexpr int kMostExponentDigits = 4;

bool IsDigit(char c)
{
    return static_cast<unsigned char>(c - '0') < 10;
}

#if defined(__BYTE_ORDER__) && __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__
bool TakeEightDigits(const char* p, std::uint64_t& value)
{
    std::uint64_t chunk = 0;
    std::memcpy(&chunk, p, sizeof chunk);
    constexpr std::uint64_t kHighNibbles = 0xF0F0F0F0F0F0F0F0U;
    constexpr std::uint64_t kZeros = 0x3030303030303030U;
    constexpr std::uint64_t kSixes = 0x0606060606060606U;
    if ((chunk & kHighNibbles) != kZeros || ((chunk + kSixes) & kHighNibbles) != kZeros) {
        return false;
    }
    // Neighbouring digits are joined to pairs, pairs to fours, fours to the eight.
    chunk -= kZeros;
    chunk = chunk * 10 + (chunk >> 8U);
    constexpr std::uint64_t kPairMask = 0x000000FF000000FFU;
    constexpr std::uint64_t kHundreds = 0x000F424000000064U; // 100 + (1000000 << 32)
    constexpr std::uint64_t kOnes = 0x0000271000000001U; // 1 + (10000 << 32)
    value = (((chunk & kPairMask) * kHundreds) + (((chunk >> 16U) & kPairMask) * kOnes)) >> 32U;
    return true;
}
#else
bool TakeEightDigits(const char*, std::uint64_t&)
{
    return false;
}
#endif

// Leading zeros count as digits here; a number with too many of them only takes the slower road.
const char* TakeDigits(const char* p, const char* end, std::uint64_t& mantissa)
{
    std::uint64_t eight = 0;
    while (end - p >= 8 && TakeEightDigits(p, eight)) {
        mantissa = mantissa * 100000000 + eight;
        p += 8;
    }
    while (p != end && IsDigit(*p)) {
        mantissa = mantissa * 10 + static_cast<std::uint64_t>(*p - '0');
        ++p;
    }
    return p;
}

// After the "e". False when there is no digit, or more digits than any double needs.
bool TakeExponent(const char* p, const char* end, std::int64_t& exponent)
{
    const bool negative = p != end && *p == '-';
    if (p != end && (*p == '-' || *p == '+')) {
        ++p;
    }
    if (p == end || end - p > kMostExponentDigits) {
        return false;
    }
    int written = 0;
    for (; p != end; ++p) {
        if (!IsDigit(*p)) {
            return false;
        }
        written = written * 10 + (*p - '0');
    }
    exponent += negative ? -written : written;
    return true;
}

bool ParseExactly(const char* first, const char* end, bool negative, double& value)
{
    double magnitude = 0.0;
    const auto [stop, error] = std::from_chars(first, end, magnitude);
    if (error != std::errc() || stop != end) {
        return false;
    }
    value = negative ? -magnitude : magnitude;
    return true;
}

} // namespace

bool ParsePlainDouble(const char* data, std::size_t size, double& value)
{
    const char* p = data;
    const char* const end = data + size;
    const bool negative = p != end && *p == '-';
    if (p != end && (*p == '-' || *p == '+')) {
        ++p;
    }
    const char* const first = p;
    std::uint64_t mantissa = 0;
    p = TakeDigits(p, end, mantissa);
    std::ptrdiff_t digits = p - first;
    std::int64_t exponent = 0;
    if (p != end && *p == '.') {
        const char* const fraction = ++p;
        p = TakeDigits(p, end, mantissa);
        exponent = fraction - p;
        digits += p - fraction;
    }
    if (digits == 0) {
        return false;
    }
    if (p != end) {
        if ((*p != 'e' && *p != 'E') || !TakeExponent(p + 1, end, exponent)) {
            return false;
        }
    }
    // Both operands exact means that the one rounding of the operation is the right one.
    if (digits <= kMostDigits && mantissa <= kLargestExactInteger && exponent >= -kLargestExactPower
        && exponent <= kLargestExactPower)
    {
        const auto whole = static_cast<double>(mantissa);
        const double magnitude =
            exponent < 0 ? whole / kExactPowers[-exponent] : whole * kExactPowers[exponent];
        value = negative ? -magnitude : magnitude;
        return true;
    }
    return ParseExactly(first, end, negative, value);
}

bool ParsePlainInt(const char* data, std::size_t size, int& value)
{
    constexpr std::ptrdiff_t kSafeDigits = 9; // 999,999,999 is below 2^31
    const char* p = data;
    const char* const end = data + size;
    const bool negative = p != end && *p == '-';
    if (p != end && (*p == '-' || *p == '+')) {
        ++p;
    }
    if (p == end || end - p > kSafeDigits) {
        return false;
    }
    int magnitude = 0;
    for (; p != end; ++p) {
        if (!IsDigit(*p)) {
            return false;
        }
        magnitude = magnitude * 10 + (*p - '0');
    }
    value = negative ? -magnitude : magnitude;
    return true;
}

} // namespace VelorExchange

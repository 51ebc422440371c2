// SPDX-License-Identifier: MIT
#include "VelorExchange/foundation/NumberParser_p.h"

#include <cfloat>
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
// Takes up to eight digits at once, whatever bytes follow them. Returns how many.
unsigned TakeDigitChunk(const char* p, std::uint64_t& value)
{
    std::uint64_t chunk = 0;
    std::memcpy(&chunk, p, sizeof chunk);
    chunk ^= 0x3030303030303030U; // digits become 0 to 9
    const std::uint64_t others =
        ((chunk + 0x7676767676767676U) | chunk) & 0x8080808080808080U; // exact up to the first
    const unsigned digits = others == 0 ? 8U : static_cast<unsigned>(__builtin_ctzll(others)) / 8U;
    if (digits == 0) {
        return 0;
    }
    chunk <<= 8U * (8U - digits); // leading zeros
    // Neighbouring digits are joined to pairs, pairs to fours, fours to the eight.
    chunk = chunk * 10 + (chunk >> 8U);
    constexpr std::uint64_t kPairMask = 0x000000FF000000FFU;
    constexpr std::uint64_t kHundreds = 0x000F424000000064U; // 100 + (1000000 << 32)
    constexpr std::uint64_t kOnes = 0x0000271000000001U; // 1 + (10000 << 32)
    value = (((chunk & kPairMask) * kHundreds) + (((chunk >> 16U) & kPairMask) * kOnes)) >> 32U;
    return digits;
}
#else
unsigned TakeDigitChunk(const char* p, std::uint64_t& value)
{
    unsigned digits = 0;
    for (value = 0; digits < 8 && IsDigit(p[digits]); ++digits) {
        value = value * 10 + static_cast<std::uint64_t>(p[digits] - '0');
    }
    return digits;
}
#endif

constexpr std::uint64_t kChunkPowers[] = {1,      10,      100,      1000,     10000,
                                          100000, 1000000, 10000000, 100000000};

// Leading zeros count as digits here; a number with too many of them only takes the slower road.
const char* TakeDigits(const char* p, const char* end, std::uint64_t& mantissa)
{
    for (;;) {
        std::uint64_t value = 0;
        const unsigned digits = TakeDigitChunk(p, value);
        if (digits == 0) {
            return p;
        }
        mantissa = mantissa * kChunkPowers[digits] + value;
        p += digits;
        if (digits < 8 || p >= end) {
            return p;
        }
    }
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

bool ParseExactly(const char* first, const char* end, double& magnitude)
{
    const auto [stop, error] = std::from_chars(first, end, magnitude);
    return error == std::errc() && stop == end;
}

#if LDBL_MANT_DIG == 64 && defined(__x86_64__)
// The quotient or product of two numbers that 64 bits of mantissa hold exactly, rounded to 64 bits.
// Rounding that to a double is the right rounding of the true value, unless it lies half way between
// two doubles, where it may have come by its own rounding. False then.
bool ScaleInExtended(std::uint64_t mantissa, std::int64_t exponent, double& magnitude)
{
    static constexpr long double kPowers[] = {1e0L,  1e1L,  1e2L,  1e3L,  1e4L,  1e5L,  1e6L,
                                              1e7L,  1e8L,  1e9L,  1e10L, 1e11L, 1e12L, 1e13L,
                                              1e14L, 1e15L, 1e16L, 1e17L, 1e18L, 1e19L};
    constexpr std::int64_t kLargestPower = 19;
    constexpr std::uint64_t kBeyondDouble = 0x7FF;
    constexpr std::uint64_t kHalfWay = 0x400;
    if (mantissa > static_cast<std::uint64_t>(INT64_MAX) || exponent < -kLargestPower
        || exponent > kLargestPower)
    {
        return false;
    }
    const auto whole = static_cast<long double>(static_cast<std::int64_t>(mantissa));
    const long double scaled =
        exponent < 0 ? whole / kPowers[-exponent] : whole * kPowers[exponent];
    std::uint64_t bits = 0;
    std::memcpy(&bits, &scaled, sizeof bits);
    magnitude = static_cast<double>(scaled);
    return (bits & kBeyondDouble) != kHalfWay;
}
#else
bool ScaleInExtended(std::uint64_t, std::int64_t, double&)
{
    return false;
}
#endif

// Both operands exact means that the one rounding of the operation is the right one.
bool Scale(std::uint64_t mantissa, std::int64_t exponent, double& magnitude)
{
    if (mantissa > kLargestExactInteger || exponent < -kLargestExactPower
        || exponent > kLargestExactPower)
    {
        return ScaleInExtended(mantissa, exponent, magnitude);
    }
    const auto whole = static_cast<double>(static_cast<std::int64_t>(mantissa));
    magnitude = exponent < 0 ? whole / kExactPowers[-exponent] : whole * kExactPowers[exponent];
    return true;
}

} // namespace

bool ParsePaddedDouble(const char* data, std::size_t size, double& value)
{
    const char* p = data;
    const char* const end = data + size;
    const bool negative = p != end && *p == '-';
    if (negative || (p != end && *p == '+')) {
        ++p;
    }
    const char* const first = p;
    std::uint64_t mantissa = 0;
    p = TakeDigits(p, end, mantissa);
    std::ptrdiff_t digits = p - first;
    std::int64_t exponent = 0;
    if (p < end && *p == '.') {
        const char* const fraction = ++p;
        p = TakeDigits(p, end, mantissa);
        exponent = fraction - p;
        digits += p - fraction;
    }
    if (digits == 0 || p > end) {
        return false;
    }
    if (p != end && ((*p != 'e' && *p != 'E') || !TakeExponent(p + 1, end, exponent))) {
        return false;
    }
    double magnitude = 0.0;
    if ((digits > kMostDigits || !Scale(mantissa, exponent, magnitude))
        && !ParseExactly(first, end, magnitude))
    {
        return false;
    }
    value = negative ? -magnitude : magnitude;
    return true;
}

// Longer numbers than this are left to Qt: they are rare, and not plain.
bool ParsePlainDouble(const char* data, std::size_t size, double& value)
{
    constexpr std::size_t kLongest = 48;
    char padded[kLongest + kNumberPadding];
    if (size > kLongest) {
        return false;
    }
    std::memcpy(padded, data, size);
    std::memset(padded + size, 0, kNumberPadding);
    return ParsePaddedDouble(padded, size, value);
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

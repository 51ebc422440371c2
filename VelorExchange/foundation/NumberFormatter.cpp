// SPDX-License-Identifier: MIT
#include "VelorExchange/foundation/NumberFormatter_p.h"

#include <QString>

#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace VelorExchange {

namespace {

__extension__ using CWide = unsigned __int128;

// A double is mantissa * 2^exponent with a mantissa of up to 53 bits.
constexpr unsigned kMantissaBits = 52;
constexpr std::uint64_t kMantissaMask = (std::uint64_t{1} << kMantissaBits) - 1;
constexpr int kExponentMask = 0x7FF;
constexpr int kExponentBias = 1075;
// Mantissa times 10^17 stays below 2^110: shifted right by more, it rounds to zero.
constexpr unsigned kLargestUsefulShift = 111;
constexpr unsigned kWordBits = 64;
// Mantissas with a larger exponent than this don't fit 64 bits.
constexpr int kLargestWordExponent = 11;

constexpr std::uint64_t kPowers[] = {1,
                                     10,
                                     100,
                                     1000,
                                     10000,
                                     100000,
                                     1000000,
                                     10000000,
                                     100000000,
                                     1000000000,
                                     10000000000,
                                     100000000000,
                                     1000000000000,
                                     10000000000000,
                                     100000000000000,
                                     1000000000000000,
                                     10000000000000000,
                                     100000000000000000,
                                     1000000000000000000,
                                     10000000000000000000U};

constexpr char kPairs[] = "00010203040506070809101112131415161718192021222324"
                          "25262728293031323334353637383940414243444546474849"
                          "50515253545556575859606162636465666768697071727374"
                          "75767778798081828384858687888990919293949596979899";

// Writes exactly `count` digits, zeros in front, and returns their end.
template <class Integer>
char* PutDigits(char* out, Integer value, int count)
{
    char* p = out + count;
    while (p - out >= 2) {
        p -= 2;
        std::memcpy(p, &kPairs[value % 100 * 2], 2);
        value /= 100;
    }
    if (p != out) {
        *out = static_cast<char>('0' + value % 10);
    }
    return out + count;
}

char* PutPadded(char* out, std::uint64_t value, int count)
{
    return value <= UINT32_MAX ? PutDigits(out, static_cast<std::uint32_t>(value), count)
                               : PutDigits(out, value, count);
}

int DigitCount(std::uint64_t value)
{
    // 1233 / 4096 is the logarithm of 2: the guess is right or one too low.
    const int bits = static_cast<int>(kWordBits) - __builtin_clzll(value | 1U);
    const int guess = bits * 1233 >> 12;
    return guess + static_cast<int>((value | 1U) >= kPowers[guess]);
}

char* PutWord(char* out, std::uint64_t value)
{
    return PutPadded(out, value, DigitCount(value));
}

// From here on the value is a whole number.
char* PutHuge(char* out, double value, int digits)
{
    out = std::to_chars(out, out + kFixedRoom, value, std::chars_format::fixed, 0).ptr;
    if (digits == 0 || !std::isfinite(value)) {
        return out;
    }
    *out++ = '.';
    std::memset(out, '0', static_cast<std::size_t>(digits));
    return out + digits;
}

struct CParts
{
    std::uint64_t whole;
    std::uint64_t fraction; // in units of the last digit
};

// mantissa / 2^shift, rounded half up: what lies behind the point is an exact binary fraction, so that
// one multiplication and one shift round it as the value itself rounds.
CParts Split(std::uint64_t mantissa, unsigned shift, std::uint64_t power)
{
    CParts parts{0, 0};
    if (shift < kWordBits) {
        parts.whole = mantissa >> shift;
        mantissa &= (std::uint64_t{1} << shift) - 1;
    }
    if (shift < kLargestUsefulShift) {
        const CWide scaled = static_cast<CWide>(mantissa) * power + (CWide{1} << (shift - 1));
        parts.fraction = static_cast<std::uint64_t>(scaled >> shift);
    }
    if (parts.fraction >= power) {
        parts.fraction -= power;
        ++parts.whole;
    }
    return parts;
}

} // namespace

char* PutFixed(char* out, double value, int digits)
{
    std::uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    const int biased = static_cast<int>(bits >> kMantissaBits) & kExponentMask;
    std::uint64_t mantissa = bits & kMantissaMask;
    if (biased != 0) {
        mantissa |= std::uint64_t{1} << kMantissaBits;
    }
    const int exponent = (biased == 0 ? 1 : biased) - kExponentBias;
    if (exponent > kLargestWordExponent) {
        // A value that is not a number has no sign in Qt's text.
        return PutHuge(out, std::isnan(value) ? std::fabs(value) : value, digits);
    }
    // A zero has no sign; what only rounds to zero keeps it.
    if ((bits >> (kWordBits - 1)) != 0 && mantissa != 0) {
        *out++ = '-';
    }
    const CParts parts = exponent >= 0
        ? CParts{mantissa << static_cast<unsigned>(exponent), 0}
        : Split(mantissa, static_cast<unsigned>(-exponent), kPowers[digits]);
    out = PutWord(out, parts.whole);
    if (digits == 0) {
        return out;
    }
    *out++ = '.';
    return PutPadded(out, parts.fraction, digits);
}

char* PutInt(char* out, qint64 value)
{
    auto magnitude = static_cast<std::uint64_t>(value);
    if (value < 0) {
        *out++ = '-';
        magnitude = 0 - magnitude;
    }
    return PutWord(out, magnitude);
}

char* PutHex(char* out, quint64 value)
{
    return std::to_chars(out, out + kIntRoom, value, 16).ptr;
}

void AppendFixed(QByteArray& out, double value, int digits)
{
    if (digits < 0 || digits > kMostFixedDigits) {
        out += QByteArray::number(value, 'f', digits);
        return;
    }
    char text[kFixedRoom];
    out.append(text, static_cast<int>(PutFixed(text, value, digits) - text));
}

void AppendInt(QByteArray& out, qint64 value)
{
    char text[kIntRoom];
    out.append(text, static_cast<int>(PutInt(text, value) - text));
}

} // namespace VelorExchange

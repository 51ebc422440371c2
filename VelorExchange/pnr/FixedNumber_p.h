// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <cstddef>

namespace VelorExchange::pnr {

/// Reads `[-] digits [. digits]` as far as it goes and returns its end, or null where that is not
/// exactly what the whole conversion gives: no digits, too many of them, or an exponent. Needs a
/// byte that is no digit somewhere behind. The caller looks whether the token ends there too.
inline const char* ParseFixed(const char* p, double& value)
{
    // Powers of ten that a double holds exactly: with an exact mantissa the one rounding is right.
    constexpr double kPowers[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,
                                  1e10, 1e11, 1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19};
    constexpr std::ptrdiff_t kMostDigits = 19; // always fit 64 bits
    constexpr quint64 kLargestExact = quint64{1} << 53U;
    constexpr unsigned kBase = 10;
    const bool negative = *p == '-';
    p += negative ? 1 : 0;
    const char* const first = p;
    quint64 mantissa = 0;
    unsigned digit = 0;
    while ((digit = static_cast<unsigned char>(*p) - unsigned{'0'}) < kBase) {
        mantissa = mantissa * kBase + digit;
        ++p;
    }
    std::ptrdiff_t digits = p - first;
    std::ptrdiff_t fraction = 0;
    if (*p == '.') {
        const char* const point = p++;
        while ((digit = static_cast<unsigned char>(*p) - unsigned{'0'}) < kBase) {
            mantissa = mantissa * kBase + digit;
            ++p;
        }
        fraction = p - point - 1;
        digits += fraction;
    }
    if (digits == 0 || digits > kMostDigits || mantissa > kLargestExact) {
        return nullptr;
    }
    const double magnitude = static_cast<double>(mantissa) / kPowers[fraction];
    value = negative ? -magnitude : magnitude;
    return p;
}

} // namespace VelorExchange::pnr

// SPDX-License-Identifier: MIT
#include "VelorExchange/mif/Tokens_p.h"

namespace VelorExchange::mif {

namespace {

constexpr double kPi = 3.141592653589793;
constexpr double kHalfTurn = 180.0;

} // namespace

CTokens Split(CSpan span, const CSeparators& separators)
{
    CTokens tokens;
    const char* p = span.begin;
    for (;;) {
        while (p != span.end && separators.Has(*p)) {
            ++p;
        }
        if (p == span.end) {
            return tokens;
        }
        const char* const begin = p;
        while (p != span.end && !separators.Has(*p)) {
            ++p;
        }
        if (tokens.count < CTokens::kKept) {
            tokens.kept[tokens.count] = {begin, p};
        }
        ++tokens.count;
    }
}

double ToRadians(double degrees)
{
    return degrees * kPi / kHalfTurn;
}

} // namespace VelorExchange::mif

// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/mif/LineScanner_p.h"

#include <QtGlobal>

#include <array>
#include <cstddef>
#include <string_view>

namespace VelorExchange::mif {

/// A set of ASCII characters that separate tokens.
struct CSeparators
{
    std::array<bool, 256> isSeparator{};

    constexpr explicit CSeparators(std::string_view characters)
    {
        for (const char c : characters) {
            isSeparator[static_cast<unsigned char>(c)] = true;
        }
    }

    constexpr bool Has(char c) const { return isSeparator[static_cast<unsigned char>(c)]; }
};

constexpr CSeparators kBlanks("\t ");
constexpr CSeparators kBlankOrBracket(" ()");
constexpr CSeparators kBracketOrComma("(),");
constexpr CSeparators kBrackets(")(");
constexpr CSeparators kComma(",");
constexpr CSeparators kCommaOrQuote(",\"");
constexpr CSeparators kQuote("\"");
constexpr CSeparators kAnyQuote("\"'");

/// The tokens of a line: how many there are, and as many of them as any clause looks at.
struct CTokens
{
    static constexpr std::size_t kKept = 7;

    std::array<CSpan, kKept> kept;
    std::size_t count = 0;

    CSpan operator[](std::size_t index) const { return kept[index]; }
};

/// Cuts `span` at the separators. Empty tokens are passed over.
CTokens Split(CSpan span, const CSeparators& separators);

/// What a missing background is.
constexpr quint32 kWhite = 0xFFFFFF;

/// A colour as the records hold it, with red in the low byte, from the file's 0xRRGGBB; and back.
constexpr quint32 SwapRedAndBlue(quint32 color)
{
    return ((color & 0xFFU) << 16U) | (color & 0xFF00U) | ((color >> 16U) & 0xFFU);
}

/// Radians of degrees. The multiplication comes first.
double ToRadians(double degrees);

} // namespace VelorExchange::mif

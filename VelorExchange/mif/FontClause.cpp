// SPDX-License-Identifier: MIT
#include "VelorExchange/mif/MIFReader_p.h"

namespace VelorExchange::mif {

// Font ("name", style, size, color [, backColor]). Names lose their blanks.
void CMIFReader::ReadFont(CTextMIF& text)
{
    constexpr std::size_t kLeastParts = 4;
    constexpr std::size_t kAllParts = 5;
    line.Remove(' ');
    const CTokens parts = Split(SplitLine(kBrackets, 2)[1], kCommaOrQuote);
    if (parts.count < kLeastParts) {
        return;
    }
    text.font.name = line.Text(parts[0]);
    text.font.style = line.ToShort(parts[1]);
    text.font.size = line.ToDouble(parts[2]);
    text.font.color = line.ToColor(parts[3]);
    const bool hasBack = parts.count == kAllParts && line.ToInt(parts[4]) != 0;
    text.font.backColor = hasBack ? line.ToColor(parts[4]) : kWhite;
}

} // namespace VelorExchange::mif

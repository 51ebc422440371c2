// SPDX-License-Identifier: MIT
#include "VelorExchange/mif/MIFReader_p.h"
#include "VelorExchange/mif/Texts_p.h"

namespace VelorExchange::mif {

namespace {

constexpr std::size_t kPictureParts = 4;
constexpr std::size_t kFontParts = 6;
constexpr std::size_t kLeastParts = 3;

QString Unquoted(QString name)
{
    return name.remove(QLatin1Char('"')).trimmed();
}

} // namespace

// Symbol (shape, color, size), (shape, color, size, "font", style, angle) or ("file", color, size,
// style). Any other number of parts from three on counts as the first form.
void CMIFReader::ReadSymbol(CSymbolMIF& symbol)
{
    const CTokens parts = Split(SplitLine(kBrackets, 2)[1], kComma);
    if (parts.count < kLeastParts) {
        return;
    }
    if (parts.count == kPictureParts) {
        symbol.font = Unquoted(line.Text(parts[0]));
        symbol.color = line.ToColor(parts[1]);
        symbol.size = line.ToInt(parts[2]);
        symbol.style = line.ToInt(parts[3]);
        return;
    }
    symbol.shape = line.ToInt(parts[0]);
    symbol.color = line.ToColor(parts[1]);
    symbol.size = line.ToInt(parts[2]);
    symbol.font = texts::NoFont();
    if (parts.count == kFontParts) {
        symbol.font = Unquoted(line.Text(parts[3]));
        symbol.style = line.ToInt(parts[4]);
        symbol.angle = ToRadians(line.ToDouble(parts[5]));
    }
}

} // namespace VelorExchange::mif

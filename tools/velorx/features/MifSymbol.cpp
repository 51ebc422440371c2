// SPDX-License-Identifier: MIT
#include "tools/velorx/features/MifSymbol.h"

#include <algorithm>
#include <cmath>

namespace velorx {

using VelorExchange::mif::CSymbolMIF;

namespace {

constexpr int kFilledCircle = 34;
constexpr int kSmall = 4; // points
constexpr int kUsual = 12; // points
constexpr int kLargest = 240; // points

// The library's font of symbols of the standard set, which their clause does not tell.
QString NoFont()
{
    return QStringLiteral("шрифт не задан");
}

} // namespace

bool HasPicture(const CSymbolMIF& symbol)
{
    return symbol.shape == 0 && !symbol.font.isEmpty() && symbol.font != NoFont();
}

SFeatureSymbol SymbolOfMif(const CSymbolMIF& symbol)
{
    SFeatureSymbol mark;
    mark.color = symbol.color;
    if (symbol.shape <= 0) {
        return mark;
    }
    mark.shape = symbol.shape;
    mark.font = symbol.font == NoFont() ? QString() : symbol.font;
    mark.size = symbol.size;
    mark.angle = symbol.angle;
    return mark;
}

CSymbolMIF MifSymbolOf(const SFeatureSymbol& mark, SMifSymbolLosses& losses)
{
    CSymbolMIF symbol;
    const bool isPlain = mark.shape <= 0;
    symbol.shape = isPlain ? kFilledCircle : mark.shape;
    symbol.color = mark.color;
    symbol.font = isPlain ? QString() : mark.font;
    losses.hasSize = mark.size > kLargest;
    const double size = mark.size > 0.0 ? mark.size : (isPlain ? kSmall : kUsual);
    symbol.size = static_cast<int>(std::lround(std::clamp<double>(size, 1.0, kLargest)));
    losses.hasAngle = symbol.font.isEmpty() && mark.angle != 0.0;
    symbol.angle = losses.hasAngle ? 0.0 : mark.angle;
    return symbol;
}

} // namespace velorx

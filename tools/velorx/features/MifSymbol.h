// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/Feature.h"
#include "VelorExchange/mif/Symbol.h"

namespace velorx {

/// The mark that a symbol of a table draws. A picture becomes a plain point.
SFeatureSymbol SymbolOfMif(const VelorExchange::mif::CSymbolMIF& symbol);

/// Whether a symbol is a picture from a file.
bool HasPicture(const VelorExchange::mif::CSymbolMIF& symbol);

/// What a table cannot tell of a mark.
struct SMifSymbolLosses
{
    bool hasAngle = false; ///< Symbols of the standard set stand upright.
    bool hasSize = false; ///< Beyond 240 points.
};

/// A symbol for a mark. A plain point becomes a small filled circle of its colour, since a point without
/// a symbol is shown as a large black star.
VelorExchange::mif::CSymbolMIF MifSymbolOf(const SFeatureSymbol& symbol, SMifSymbolLosses& losses);

} // namespace velorx

// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/foundation/Point.h"
#include "VelorExchange/mif/Attribute.h"
#include "VelorExchange/mif/Symbol.h"

namespace VelorExchange::mif {

/// A point.
struct CPointMIF : CAttributeHolderMIF
{
    CPoint2D position; ///< File units.
    CSymbolMIF symbol; ///< How it is drawn.
};

} // namespace VelorExchange::mif

// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/foundation/Point.h"
#include "VelorExchange/mif/Attribute.h"
#include "VelorExchange/mif/Brush.h"
#include "VelorExchange/mif/Pen.h"

namespace VelorExchange::mif {

/// A rectangle, or the ellipse that fills it: the operation that delivers it tells which.
struct CRectMIF : CAttributeHolderMIF
{
    CPoint2D corner1; ///< File units.
    CPoint2D corner2; ///< The corner opposite to it.
    CPenMIF pen{1, 2, 0}; ///< How the line is drawn; thin, solid and black without a clause.
    CBrushMIF brush{2, 0xFFFFFF, 0}; ///< How it is filled; solid and black without a clause.
};

} // namespace VelorExchange::mif

// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/foundation/Point.h"
#include "VelorExchange/mif/Attribute.h"
#include "VelorExchange/mif/Brush.h"
#include "VelorExchange/mif/Pen.h"

namespace VelorExchange::mif {

/// A rectangle with rounded corners.
struct CRoundRectMIF : CAttributeHolderMIF
{
    CPoint2D corner1; ///< File units.
    CPoint2D corner2; ///< The corner opposite to it.
    CPenMIF pen{1, 2, 0}; ///< How the line is drawn; thin, solid and black without a clause.
    CBrushMIF brush{2, 0xFFFFFF, 0}; ///< How it is filled; solid and black without a clause.
    double radius = 0.0; ///< The file's value times π / 180, although it is a distance.
};

} // namespace VelorExchange::mif

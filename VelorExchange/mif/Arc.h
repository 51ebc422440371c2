// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/foundation/Point.h"
#include "VelorExchange/mif/Attribute.h"
#include "VelorExchange/mif/Pen.h"

namespace VelorExchange::mif {

/// An arc of the ellipse that fills a rectangle.
struct CArcMIF : CAttributeHolderMIF
{
    CPoint2D corner1; ///< A corner of the rectangle, in file units.
    CPoint2D corner2; ///< The corner opposite to it.
    double startAngle = 0.0; ///< Radians, counter-clockwise.
    double endAngle = 0.0; ///< Radians, counter-clockwise.
    CPenMIF pen{1, 2, 0}; ///< How the line is drawn; thin, solid and black without a clause.
};

} // namespace VelorExchange::mif

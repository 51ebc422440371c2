// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/foundation/Point.h"
#include "VelorExchange/mif/Attribute.h"
#include "VelorExchange/mif/Font.h"

#include <QString>

namespace VelorExchange::mif {

/// A text. Its rectangle tells place and height.
struct CTextMIF : CAttributeHolderMIF
{
    QString text; ///< As it stands in the file; line breaks are the two characters "\n".
    CPoint2D corner1; ///< A corner of the rectangle of the unturned text, in file units.
    CPoint2D corner2; ///< The corner opposite to it.
    double angle = 0.0; ///< Radians, counter-clockwise.
    double spacing = 0.0; ///< Distance of the lines, in line heights.
    CFontMIF font; ///< How it is written.
    int justify = 0; ///< 0 left, 1 centre, 2 right.
    int labelArrow = 0; ///< 1 if a line with an arrow leads to `labelPoint`, else 0.
    CPoint2D labelPoint; ///< File units.
};

} // namespace VelorExchange::mif

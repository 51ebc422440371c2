// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/foundation/Point.h"
#include "VelorExchange/mif/Attribute.h"
#include "VelorExchange/mif/Pen.h"

#include <vector>

namespace VelorExchange::mif {

/// A line, or one section of a polyline.
struct CPolylineMIF : CAttributeHolderMIF
{
    std::vector<CPoint2D> points; ///< File units. From a file they may be any number, also none.
    CPenMIF pen{1, 2, 0}; ///< How the line is drawn; thin, solid and black without a clause.
    bool smooth = false; ///< To be drawn as a curve. Not written.
};

} // namespace VelorExchange::mif

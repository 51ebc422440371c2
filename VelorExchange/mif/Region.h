// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/foundation/Point.h"
#include "VelorExchange/mif/Attribute.h"
#include "VelorExchange/mif/Brush.h"
#include "VelorExchange/mif/Pen.h"

#include <vector>

namespace VelorExchange::mif {

/// One ring of a region. The rings of one object arrive apart, and nothing marks a hole.
struct CRegionMIF : CAttributeHolderMIF
{
    std::vector<CPoint2D> points; ///< File units, three at least. Closed or not, as in the file.
    CBrushMIF brush{1, 0xFFFFFF, 0}; ///< How it is filled; not at all without a clause.
    CPenMIF pen{1, 2, 0}; ///< Not written: regions go out with the pen (1, 1, 0).
    CPoint2D center; ///< File units; (0, 0) where the file has none. Not written.
};

} // namespace VelorExchange::mif

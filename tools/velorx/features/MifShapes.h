// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/Feature.h"
#include "VelorExchange/mif/Arc.h"
#include "VelorExchange/mif/Rect.h"
#include "VelorExchange/mif/RoundRect.h"

namespace velorx {

/// The shapes of a table as chains of straight segments, which are off by no more than `chord` (file
/// units, above 0). Rings do not end with their first vertex and run counter-clockwise.
CFeatureLine MifArcLine(const VelorExchange::mif::CArcMIF& arc, double chord);
CFeatureLine MifEllipseRing(const VelorExchange::mif::CRectMIF& ellipse, double chord);
CFeatureLine MifRectRing(const VelorExchange::CPoint2D& corner1,
                         const VelorExchange::CPoint2D& corner2);
CFeatureLine MifRoundRectRing(const VelorExchange::mif::CRoundRectMIF& rect, double chord);

} // namespace velorx

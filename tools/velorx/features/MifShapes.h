// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/Chords.h"
#include "tools/velorx/features/Feature.h"
#include "VelorExchange/mif/Arc.h"
#include "VelorExchange/mif/Rect.h"
#include "VelorExchange/mif/RoundRect.h"

namespace velorx {

// The shapes of a table as chains of straight segments. Rings do not end with their first vertex and run
// counter-clockwise. Curves are empty if an angle or a radius is no finite number.
CFeatureLine MifArcLine(const VelorExchange::mif::CArcMIF& arc, CChords& chords);
CFeatureLine MifEllipseRing(const VelorExchange::mif::CRectMIF& ellipse, CChords& chords);
CFeatureLine MifRectRing(const VelorExchange::CPoint2D& corner1,
                         const VelorExchange::CPoint2D& corner2);
CFeatureLine MifRoundRectRing(const VelorExchange::mif::CRoundRectMIF& rect, CChords& chords);

} // namespace velorx

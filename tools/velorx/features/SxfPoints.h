// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/Feature.h"
#include "VelorExchange/Pnr.h"

namespace velorx {

/// The vertices of a contour as features have them: the map's x counts to the north.
CFeatureLine SxfPoints(const VelorExchange::pnr::CAbstractVertexHolder& contour);

/// Where the first two vertices point, radians counter-clockwise from the east; 0 where there are fewer.
double SxfDirection(const CFeatureLine& points);

} // namespace velorx

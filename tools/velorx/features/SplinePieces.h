// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/records/Spline.h"
#include "VelorExchange/foundation/Point.h"

#include <vector>

namespace velorx {

/// The points of a Bezier curve, one more than its degree.
using CBezier = std::vector<VelorExchange::CPoint3D>;

/// The Bezier curves that make up `spline` exactly, each beginning where the one before ends.
///
/// The degree is what the knots tell; where they make no sense, or tell one above 25, they are put evenly
/// for the third degree. A spline of fit points alone is a smooth curve through them. Empty if there are
/// fewer than two points.
std::vector<CBezier> PiecesOf(const VelorExchange::dxf::CSplineDXF& spline);

} // namespace velorx

// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/records/Ellipse.h"
#include "VelorExchange/dxf/records/Spline.h"
#include "VelorExchange/foundation/Point.h"

#include <vector>

namespace velorx {

/// What had to be done to a spline.
enum class ECubic {
    AsItWas, ///< It was of the third degree already.
    Raised, ///< It was of another degree: exact for the first and second, near for higher ones.
    Fitted, ///< It had fit points alone and is a smooth curve through them now.
    Impossible, ///< It has fewer than two points and is left alone.
};

/// Makes `spline` one of the third degree. The degree is what its knots tell.
ECubic MakeCubic(VelorExchange::dxf::CSplineDXF& spline);

/// An ellipse, or an arc of one (parameters in radians), as a spline of the third degree, off by less than
/// one part in 100,000 of the major axis. The ellipse lies in the plan, turned about its major axis as
/// far as that rises. Without points if a parameter is no number.
VelorExchange::dxf::CSplineDXF SplineOf(const VelorExchange::dxf::CEllipseDXF& ellipse);

/// The control points of a chain of Bezier curves, four for the first and three for each further one, that
/// run like `spline`, which is of the third degree.
std::vector<VelorExchange::CPoint3D> BezierChain(const VelorExchange::dxf::CSplineDXF& spline);

} // namespace velorx

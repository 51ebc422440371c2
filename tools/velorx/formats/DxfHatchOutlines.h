// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/records/Hatch.h"
#include "VelorExchange/foundation/Point.h"

#include <vector>

namespace velorx {

/// A closed line in the plan; z is the bulge of the way to the next vertex. The first does not come again.
using CHatchRing = std::vector<VelorExchange::CPoint3D>;

/// The boundaries of a hatch in the form of the writer.
struct SHatchRings
{
    std::vector<CHatchRing> rings; ///< Those that enclose something, the largest first.
    int curvedEdges = 0; ///< Elliptic and spline edges that were turned into chords.
    int dropped = 0; ///< Boundaries that enclose nothing.
};

/// Joins the edges of each boundary of `hatch`, as the reader delivers it, in their order, each in the
/// direction that meets its neighbours best. Arcs become bulges, ellipses and splines become chords that
/// are off by no more than a thousandth of the edge's own extent. Vertices nearer than `tolerance` are one.
SHatchRings RingsOf(const VelorExchange::dxf::CHatchDXF& hatch, double tolerance);

/// Lines for a hatch whose pattern is not known: at 45 degrees to its angle (degrees), and across where it
/// is double, a fortieth of the extent of `ring` apart.
std::vector<VelorExchange::dxf::CHatchLineDXF>
PlainLines(const VelorExchange::dxf::CHatchDXF& hatch, const CHatchRing& ring);

} // namespace velorx

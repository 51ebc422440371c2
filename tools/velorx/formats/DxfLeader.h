// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/formats/DxfGroups.h"
#include "tools/velorx/formats/DxfRawObject.h"

namespace velorx {

/// The length of an arrow head where no dimension style tells it, in file units.
constexpr double kUsualArrowSize = 0.18;

/// The length of the arrow heads of a DIMSTYLE record, in file units.
double ArrowSizeIn(const CDxfRawObject& style);

/// Whether the leader with these groups has an arrow head.
bool HasArrow(const CDxfGroups& leader);

/// Whether the leader with these groups is a curve.
bool IsCurve(const CDxfGroups& leader);

/// Makes of the LEADER `leader` the objects that draw it: an LWPOLYLINE through its points, or a SPLINE where
/// it is a curve; and a SOLID of the length `arrowSize` if it has an arrow head. Layer, colour, line type and
/// weight go along.
void DrawLeader(CDxfRawObject& leader, double arrowSize);

} // namespace velorx

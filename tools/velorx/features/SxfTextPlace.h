// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/Feature.h"
#include "VelorExchange/foundation/Point.h"

#include <QString>

namespace velorx {

/// How large `height`, thousandths of a millimetre on paper, is on the ground at a scale of 1 to `scale`.
double OnGround(double height, int scale);

/// How many thousandths of a millimetre `length` on the ground has on paper.
double OnPaper(double length, int scale);

/// How long a text will be, about: no font is at hand. `height` is that of capital letters.
double TextLength(const QString& text, double height);

/// The line of two vertices along which a text stands: where its place lies along it depends on the text's
/// alignment. Coordinates are those of the map, x to the north.
struct SSxfTextLine
{
    VelorExchange::CPoint2D first;
    VelorExchange::CPoint2D last;
};

/// The line of a text `length` long at `place` whose direction is `rotation`, radians counter-clockwise from
/// the east.
SSxfTextLine MakeTextLine(const VelorExchange::CPoint2D& place, double rotation, double length,
                          EFeatureAlign along);

/// Where a text's place lies on its line.
VelorExchange::CPoint2D PointAlong(const SSxfTextLine& line, EFeatureAlign along);

} // namespace velorx

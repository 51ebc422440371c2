// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/foundation/Point.h"

namespace VelorExchange::dxf {
struct CInsertDXF;
}

namespace velorx {

/// Where the contents of a block stand in the drawing: scaled, turned, mirrored and moved in the plan,
/// scaled and moved in height. Placements of blocks in blocks go together exactly.
class CPlacement
{
public:
    /// Everything stays where it is.
    CPlacement() = default;

    /// Where `insert` puts a block with the base point `base`.
    CPlacement(const VelorExchange::dxf::CInsertDXF& insert, const VelorExchange::CPoint3D& base);

    /// `inner` first, then this.
    CPlacement Around(const CPlacement& inner) const;

    VelorExchange::CPoint3D operator()(const VelorExchange::CPoint3D& p) const;

    /// A direction: not moved.
    VelorExchange::CPoint2D Turned(const VelorExchange::CPoint2D& v) const;

    /// Where the direction `angle` points to. Both are radians, counter-clockwise; the result is 0 or above.
    /// Exactly `angle` where nothing is placed.
    double TurnedAngle(double angle) const;

    /// The factor on lengths in the direction in which it is greatest.
    double GreatestScale() const;

    /// The factor on lengths if there is one, else the mean of those along and across.
    double MeanScale() const;

    bool IsMirrored() const { return xx * yy - xy * yx < 0; }

private:
    // x' = xx x + xy y + moveX and so on
    double xx = 1.0;
    double xy = 0.0;
    double yx = 0.0;
    double yy = 1.0;
    double zz = 1.0;
    VelorExchange::CPoint3D move;
};

} // namespace velorx

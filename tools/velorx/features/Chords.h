// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/Feature.h"
#include "VelorExchange/foundation/Point.h"

#include <vector>

namespace velorx {

/// An ellipse or a circle in space: the point of the parameter t (radians) is
/// `center` + cos t * `major` + sin t * `minor`.
struct SEllipse
{
    VelorExchange::CPoint3D center;
    VelorExchange::CPoint3D major; ///< From the centre.
    VelorExchange::CPoint3D minor; ///< From the centre, at a right angle to `major`, of any length.
};

/// Turns curves into chords that are off by no more than a tolerance, as long as that takes no more than
/// `kMostChords` of them for one curve. All that a whole turn gives has eight chords or more.
class CChords
{
public:
    static constexpr int kMostChords = 10000;
    static constexpr double kUsualTolerance = 0.01;

    /// File units. What is no number above 0 becomes `kUsualTolerance`.
    explicit CChords(double distance) { SetTolerance(distance); }

    void SetTolerance(double distance);
    double Tolerance() const { return tolerance; }

    /// How many curves would have wanted more chords than they got.
    int Coarse() const { return coarse; }

    /// From the parameter `start` on, `sweep` far, both ends included. A whole turn ends exactly where it
    /// starts. Empty if an angle is no number.
    CFeatureLine EllipseArc(const SEllipse& ellipse, double start, double sweep);

    /// The circle around `center` in the plan, as above; angles in radians, counter-clockwise.
    CFeatureLine Arc(const VelorExchange::CPoint3D& center, double radius, double start,
                     double sweep);

    /// Appends the way from the end of `line`, which is not empty, to `end`: the arc with `bulge`, the tangent
    /// of a quarter of its angle, positive counter-clockwise. Heights change evenly.
    void AppendBulge(CFeatureLine& line, const VelorExchange::CPoint3D& end, double bulge);

    /// Appends the Bezier curve with `points`, of any degree, from its second point on.
    void AppendBezier(CFeatureLine& line, std::vector<VelorExchange::CPoint3D> points);

private:
    int CountFor(double radius, double sweep);
    int Limited(double count);

    double tolerance = kUsualTolerance;
    int coarse = 0;
};

} // namespace velorx

// SPDX-License-Identifier: MIT
#include "tools/velorx/features/SplinePieces.h"

#include "tools/velorx/formats/DxfCurves.h"

#include <algorithm>
#include <cmath>

namespace velorx {

using VelorExchange::CPoint3D;
using VelorExchange::dxf::CSplineDXF;

namespace {

constexpr std::size_t kUsualDegree = 3;
constexpr std::size_t kHighestDegree = 25;

CPoint3D Between(const CPoint3D& a, const CPoint3D& b, double part)
{
    return {a.x + (b.x - a.x) * part, a.y + (b.y - a.y) * part, a.z + (b.z - a.z) * part};
}

void PutKnotsEvenly(CSplineDXF& spline, std::size_t degree)
{
    const std::size_t spans = spline.controlPoints.size() - degree;
    spline.knots.assign(degree, 0.0);
    for (std::size_t i = 0; i <= spans; ++i) {
        spline.knots.push_back(static_cast<double>(i));
    }
    spline.knots.insert(spline.knots.end(), degree, static_cast<double>(spans));
}

// The degree that the knots tell, 0 if they make no sense.
std::size_t DegreeOf(const CSplineDXF& spline)
{
    const std::vector<double>& knots = spline.knots;
    const std::size_t points = spline.controlPoints.size();
    if (knots.size() < points + 2 || knots.size() > 2 * points) {
        return 0;
    }
    const std::size_t degree = knots.size() - points - 1;
    const bool isSound = degree <= kHighestDegree
        && std::all_of(knots.begin(), knots.end(), [](double knot) { return std::isfinite(knot); })
        && std::is_sorted(knots.begin(), knots.end()) && knots[degree] < knots[points];
    return isSound ? degree : 0;
}

// The polar form of the spline's polynomial in a span.
class CBlossom
{
public:
    CBlossom(const CSplineDXF& whole, std::size_t itsDegree, std::size_t firstKnot)
        : spline(whole), degree(itsDegree), span(firstKnot), points(itsDegree + 1)
    {
    }

    // At the span's start but for the last `atEnd` arguments, which are its end.
    CPoint3D operator()(std::size_t atEnd)
    {
        const std::vector<double>& knots = spline.knots;
        for (std::size_t i = 0; i <= degree; ++i) {
            points[i] = spline.controlPoints[span - degree + i];
        }
        for (std::size_t round = 1; round <= degree; ++round) {
            const double at = round + atEnd > degree ? knots[span + 1] : knots[span];
            for (std::size_t i = degree; i >= round; --i) {
                const double from = knots[span - degree + i];
                const double to = knots[span + 1 + i - round];
                const double part = to > from ? (at - from) / (to - from) : 0.0;
                points[i] = Between(points[i - 1], points[i], part);
            }
        }
        return points[degree];
    }

private:
    const CSplineDXF& spline;
    std::size_t degree;
    std::size_t span;
    std::vector<CPoint3D> points;
};

} // namespace

std::vector<CBezier> PiecesOf(const CSplineDXF& source)
{
    CSplineDXF spline = source;
    std::vector<CBezier> pieces;
    if (spline.controlPoints.size() < 2 && MakeCubic(spline) == ECubic::Impossible) {
        return pieces;
    }
    std::size_t degree = DegreeOf(spline);
    if (degree == 0) {
        degree = std::min(kUsualDegree, spline.controlPoints.size() - 1);
        PutKnotsEvenly(spline, degree);
    }
    for (std::size_t span = degree; span < spline.controlPoints.size(); ++span) {
        if (!(spline.knots[span] < spline.knots[span + 1])) {
            continue;
        }
        CBlossom blossom(spline, degree, span);
        CBezier& piece = pieces.emplace_back();
        for (std::size_t atEnd = 0; atEnd <= degree; ++atEnd) {
            piece.push_back(blossom(atEnd));
        }
    }
    return pieces;
}

} // namespace velorx

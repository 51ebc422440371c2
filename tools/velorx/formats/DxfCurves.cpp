// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfCurves.h"

#include <algorithm>
#include <cmath>

namespace velorx {

using VelorExchange::CPoint3D;
using namespace VelorExchange::dxf;

namespace {

constexpr double kPi = 3.141592653589793;
constexpr double kTwoPi = 2 * kPi;
constexpr std::size_t kDegree = 3;
constexpr std::size_t kHighestDegree =
    25; // that a drawing program knows, and that takes bearable time
constexpr std::size_t kPartsOfHighDegree = 16; // pieces for each span of a degree above the third

CPoint3D Along(const CPoint3D& a, const CPoint3D& b, double part)
{
    return {a.x + (b.x - a.x) * part, a.y + (b.y - a.y) * part, a.z + (b.z - a.z) * part};
}

CPoint3D Sum(const CPoint3D& a, double factor, const CPoint3D& b)
{
    return {a.x + factor * b.x, a.y + factor * b.y, a.z + factor * b.z};
}

CPoint3D Difference(const CPoint3D& a, const CPoint3D& b)
{
    return Sum(a, -1.0, b);
}

std::vector<double> EvenKnots(std::size_t points, std::size_t degree)
{
    std::vector<double> knots(degree + 1, 0.0);
    for (std::size_t i = 1; i < points - degree; ++i) {
        knots.push_back(static_cast<double>(i));
    }
    knots.insert(knots.end(), degree + 1, static_cast<double>(points - degree));
    return knots;
}

// The degree that the knots tell; where they make no sense, they are put evenly for a degree that the
// points allow.
std::size_t DegreeOf(CSplineDXF& spline)
{
    const std::size_t points = spline.controlPoints.size();
    const std::size_t knots = spline.knots.size();
    const bool isSound = knots > points + 1 && knots <= 2 * points
        && knots - points - 1 <= kHighestDegree
        && std::is_sorted(spline.knots.begin(), spline.knots.end())
        && spline.knots[knots - points - 1] < spline.knots[points];
    if (isSound) {
        return knots - points - 1;
    }
    const std::size_t degree = std::min(kDegree, points - 1);
    spline.knots = EvenKnots(points, degree);
    return degree;
}

struct STangent
{
    CPoint3D point;
    CPoint3D derivative;
};

// The spline at `at` within the span that begins at knot `span`.
STangent Evaluate(const CSplineDXF& spline, std::size_t degree, std::size_t span, double at)
{
    const std::vector<double>& knots = spline.knots;
    const auto first = spline.controlPoints.begin() + static_cast<std::ptrdiff_t>(span - degree);
    std::vector<CPoint3D> points(first, first + static_cast<std::ptrdiff_t>(degree + 1));
    STangent tangent;
    for (std::size_t round = 1; round <= degree; ++round) {
        if (round == degree) {
            const double length = knots[span + 1] - knots[span];
            const CPoint3D step = Difference(points[degree], points[degree - 1]);
            tangent.derivative = Sum(CPoint3D{}, static_cast<double>(degree) / length, step);
        }
        for (std::size_t j = degree; j >= round; --j) {
            const double from = knots[span + j - degree];
            const double to = knots[span + 1 + j - round];
            const double part = to > from ? (at - from) / (to - from) : 0.0;
            points[j] = Along(points[j - 1], points[j], part);
        }
    }
    tangent.point = points[degree];
    return tangent;
}

// Appends a piece from one tangent to the other, `length` of the parameter long.
void AppendPiece(std::vector<CPoint3D>& chain, const STangent& from, const STangent& to,
                 double length)
{
    constexpr double kThird = 1.0 / 3.0;
    if (chain.empty()) {
        chain.push_back(from.point);
    }
    chain.push_back(Sum(from.point, length * kThird, from.derivative));
    chain.push_back(Sum(to.point, -length * kThird, to.derivative));
    chain.push_back(to.point);
}

std::vector<CPoint3D> ChainOf(const CSplineDXF& spline, std::size_t degree)
{
    const std::size_t parts = degree > kDegree ? kPartsOfHighDegree : 1;
    std::vector<CPoint3D> chain;
    for (std::size_t span = degree; span < spline.controlPoints.size(); ++span) {
        const double from = spline.knots[span];
        const double length = (spline.knots[span + 1] - from) / static_cast<double>(parts);
        for (std::size_t i = 0; i < parts && length > 0; ++i) {
            const double at = from + static_cast<double>(i) * length;
            AppendPiece(chain, Evaluate(spline, degree, span, at),
                        Evaluate(spline, degree, span, at + length), length);
        }
    }
    return chain;
}

// A chain of Bezier curves is a spline whose inner knots are threefold.
void TakeChain(CSplineDXF& spline, std::vector<CPoint3D> chain)
{
    const std::size_t pieces = (chain.size() - 1) / kDegree;
    spline.knots.assign(1, 0.0);
    for (std::size_t i = 0; i <= pieces; ++i) {
        spline.knots.insert(spline.knots.end(), kDegree, static_cast<double>(i));
    }
    spline.knots.push_back(static_cast<double>(pieces));
    spline.controlPoints = std::move(chain);
}

// In each fit point the curve runs like the line between its neighbours.
std::vector<CPoint3D> ChainThrough(const std::vector<CPoint3D>& points)
{
    std::vector<STangent> tangents;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const CPoint3D& before = points[i == 0 ? 0 : i - 1];
        const CPoint3D& behind = points[std::min(i + 1, points.size() - 1)];
        const bool isEnd = i == 0 || i + 1 == points.size();
        const CPoint3D way = Difference(behind, before);
        tangents.push_back({points[i], Sum(CPoint3D{}, isEnd ? 1.0 : 0.5, way)});
    }
    std::vector<CPoint3D> chain;
    for (std::size_t i = 1; i < tangents.size(); ++i) {
        AppendPiece(chain, tangents[i - 1], tangents[i], 1.0);
    }
    return chain;
}

} // namespace

ECubic MakeCubic(CSplineDXF& spline)
{
    if (spline.controlPoints.size() < 2) {
        if (spline.fitPoints.size() < 2) {
            return ECubic::Impossible;
        }
        TakeChain(spline, ChainThrough(spline.fitPoints));
        return ECubic::Fitted;
    }
    const std::size_t degree = DegreeOf(spline);
    if (degree == kDegree) {
        return ECubic::AsItWas;
    }
    TakeChain(spline, ChainOf(spline, degree));
    return ECubic::Raised;
}

CSplineDXF SplineOf(const CEllipseDXF& ellipse)
{
    constexpr double kLongestPiece = kPi / 4;
    CSplineDXF spline;
    static_cast<CEntityDXF&>(spline) = ellipse;
    const CPoint3D& major = ellipse.majorAxis;
    const double flat = std::hypot(major.x, major.y);
    const double length = std::hypot(flat, major.z);
    const double factor = ellipse.ratio * (flat > 0 ? length / flat : 0.0);
    const CPoint3D minor = flat > 0 ? CPoint3D{-major.y * factor, major.x * factor, 0.0}
                                    : CPoint3D{length * ellipse.ratio, 0.0, 0.0};
    const auto at = [&](double parameter, double scale) {
        const double cosine = std::cos(parameter);
        const double sine = std::sin(parameter);
        return STangent{Sum(Sum(ellipse.center, cosine, major), sine, minor),
                        Sum(Sum(CPoint3D{}, -sine * scale, major), cosine * scale, minor)};
    };
    double sweep = std::fmod(ellipse.endParameter - ellipse.startParameter, kTwoPi);
    sweep += sweep <= 1e-9 ? kTwoPi : 0.0; // equal ends are a whole ellipse
    const double pieces = std::ceil(sweep / kLongestPiece - 1e-9);
    const double step = sweep / pieces;
    const double reach = 4 * std::tan(step / 4); // a third of it leads to the next control point
    std::vector<CPoint3D> chain;
    for (double i = 0; i < pieces; ++i) {
        const double from = ellipse.startParameter + i * step;
        AppendPiece(chain, at(from, reach), at(from + step, reach), 1.0);
    }
    if (!chain.empty()) { // as it is where a parameter is no number
        TakeChain(spline, std::move(chain));
    }
    return spline;
}

std::vector<CPoint3D> BezierChain(const CSplineDXF& spline)
{
    return ChainOf(spline, kDegree);
}

} // namespace velorx

// SPDX-License-Identifier: MIT
#include "tools/velorx/features/DxfHatchChords.h"

#include "tools/velorx/features/Chords.h"
#include "tools/velorx/features/RingOrder.h"
#include "tools/velorx/features/SplinePieces.h"

#include <boost/variant2/variant.hpp>

#include <algorithm>
#include <cmath>

namespace velorx {

using namespace VelorExchange::dxf;
using VelorExchange::CPoint3D;

namespace {

constexpr double kPi = 3.141592653589793;
constexpr double kTwoPi = 2 * kPi;
constexpr double kDegree = kPi / 180.0;
constexpr double kLeastTurn = 1e-9;
constexpr double kLeastBulge = 1e-10;

bool IsBulged(const CVertexDXF& vertex)
{
    return std::fabs(vertex.bulge) >= kLeastBulge;
}

CLWPolylineDXF PolylineOf(const CFeatureLine& line)
{
    CLWPolylineDXF polyline;
    polyline.vertices.reserve(line.size());
    for (const CPoint3D& point : line) {
        polyline.vertices.push_back({point, 0.0});
    }
    return polyline;
}

// An edge's angles are directions from its centre, and clockwise ones are told with the other sign.
double ParameterOf(double degrees, double ratio)
{
    const double angle = degrees * kDegree;
    const double turns = std::round(angle / kTwoPi) * kTwoPi;
    return turns + std::atan2(std::sin(angle), std::cos(angle) * ratio);
}

CFeatureLine LineOf(const CEllipseDXF& edge, CChords& chords)
{
    const double start = ParameterOf(edge.startParameter, edge.ratio);
    const double end = ParameterOf(edge.endParameter, edge.ratio);
    double sweep = std::fmod(end - start, kTwoPi);
    sweep += sweep < 0 ? kTwoPi : 0.0;
    sweep += sweep <= kLeastTurn ? kTwoPi : 0.0; // equal ends are a whole turn
    const CPoint3D major{edge.majorAxis.x, edge.majorAxis.y, 0.0};
    const CPoint3D minor{-major.y * edge.ratio, major.x * edge.ratio, 0.0};
    const double way = edge.counterClockwise ? 1.0 : -1.0;
    return chords.EllipseArc({edge.center, major, minor}, start * way, sweep * way);
}

CFeatureLine LineOf(const CSplineDXF& edge, CChords& chords)
{
    CFeatureLine line;
    for (const CBezier& piece : PiecesOf(edge)) {
        if (line.empty()) {
            line.push_back(piece.front());
        }
        chords.AppendBezier(line, piece);
    }
    return line;
}

void StraightenEdge(CHatchEdgeDXF& edge, CChords& chords)
{
    if (const auto* ellipse = boost::variant2::get_if<CEllipseDXF>(&edge)) {
        edge = PolylineOf(LineOf(*ellipse, chords));
    } else if (const auto* spline = boost::variant2::get_if<CSplineDXF>(&edge)) {
        edge = PolylineOf(LineOf(*spline, chords));
    }
}

bool IsCurve(const CHatchEdgeDXF& edge)
{
    const auto* polyline = boost::variant2::get_if<CLWPolylineDXF>(&edge);
    return polyline == nullptr
        || std::any_of(polyline->vertices.begin(), polyline->vertices.end(), IsBulged);
}

} // namespace

CHatchDXF WithChords(const CHatchDXF& hatch, CChords& chords)
{
    CHatchDXF straight = hatch;
    for (CHatchLoopDXF& loop : straight.loops) {
        for (CHatchEdgeDXF& edge : loop) {
            StraightenEdge(edge, chords);
        }
    }
    return straight;
}

CFeatureLine RingWithChords(const CHatchRing& ring, double elevation, CChords& chords)
{
    CFeatureLine line;
    line.reserve(ring.size() + 1);
    for (std::size_t i = 0; i <= ring.size() && !ring.empty(); ++i) {
        const CPoint3D& vertex = ring[i % ring.size()];
        const CPoint3D point{vertex.x, vertex.y, elevation};
        if (i == 0) {
            line.push_back(point);
        } else {
            chords.AppendBulge(line, point, ring[i - 1].z);
        }
    }
    DropRepeats(line);
    return line;
}

bool HasCurves(const CHatchDXF& hatch)
{
    return std::any_of(hatch.loops.begin(), hatch.loops.end(), [](const CHatchLoopDXF& loop) {
        return std::any_of(loop.begin(), loop.end(), IsCurve);
    });
}

} // namespace velorx

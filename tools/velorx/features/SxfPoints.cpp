// SPDX-License-Identifier: MIT
#include "tools/velorx/features/SxfPoints.h"

#include <cmath>

namespace velorx {

using namespace VelorExchange::pnr;
using VelorExchange::CPoint2D;
using VelorExchange::CPoint3D;

namespace {

CPoint3D ToFeature(const CPoint2D& vertex)
{
    return {vertex.y, vertex.x, 0.0};
}

CPoint3D ToFeature(const CPoint3D& vertex)
{
    return {vertex.y, vertex.x, vertex.z};
}

template <class Holder>
CFeatureLine Points(const CAbstractVertexHolder& contour)
{
    CFeatureLine points;
    points.reserve(contour.Count());
    for (const auto& vertex : static_cast<const Holder&>(contour).vertices) {
        points.push_back(ToFeature(vertex));
    }
    return points;
}

} // namespace

CFeatureLine SxfPoints(const CAbstractVertexHolder& contour)
{
    return contour.Is2D() ? Points<CVertexHolder2D>(contour) : Points<CVertexHolder3D>(contour);
}

double SxfDirection(const CFeatureLine& points)
{
    return points.size() < 2 ? 0.0
                             : std::atan2(points[1].y - points[0].y, points[1].x - points[0].x);
}

} // namespace velorx

// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/records/Vertex.h"
#include "VelorExchange/foundation/Coincidence_p.h"

#include <cstddef>
#include <vector>

namespace VelorExchange::dxf {

/// Appends a vertex; one that coincides with the last in space takes its place, with its own bulge.
inline void AppendVertex(std::vector<CVertexDXF>& vertices, const CVertexDXF& vertex)
{
    if (!vertices.empty() && CoincideInSpace(vertices.back().point, vertex.point)) {
        vertices.back() = vertex;
    } else {
        vertices.push_back(vertex);
    }
}

/// Appends a point; one that coincides with the last in the plan takes its place.
inline void AppendPoint(std::vector<CPoint3D>& points, const CPoint3D& point)
{
    if (!points.empty() && CoincideInPlan(points.back(), point)) {
        points.back() = point;
    } else {
        points.push_back(point);
    }
}

/// What closes a polyline: the first vertex again, with its bulge as the height and no bulge. The
/// exchange is meant, and hosts rely on it.
inline CVertexDXF ClosingVertex(const CVertexDXF& first)
{
    return {{first.point.x, first.point.y, first.bulge}, 0.0};
}

/// The item, or 0 past the end of the list.
inline double ItemOrZero(const std::vector<double>& items, std::size_t i)
{
    return i < items.size() ? items[i] : 0.0;
}

} // namespace VelorExchange::dxf

// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/write/HatchOutline_p.h"

#include <cmath>

namespace VelorExchange::dxf {

namespace {

constexpr double kLeastBulge = 0.0000000001;

bool AreNear(const CPoint3D& a, const CPoint3D& b, double tolerance)
{
    return std::fabs(a.x - b.x) <= tolerance && std::fabs(a.y - b.y) <= tolerance;
}

} // namespace

CHatchOutline PrepareOutline(const std::vector<CPoint3D>& in, IDXFWriter::IContext* context,
                             double tolerance)
{
    CHatchOutline boundary;
    std::vector<CPoint3D>& kept = boundary.vertices;
    kept.reserve(in.size());
    for (const CPoint3D& vertex : in) {
        const CPoint2D plan{vertex.x, vertex.y};
        const CPoint2D placed = context != nullptr ? context->TransformPoint(plan) : plan;
        const CPoint3D out{placed.x, placed.y, vertex.z};
        boundary.hasBulges = boundary.hasBulges || std::fabs(out.z) >= kLeastBulge;
        if (kept.empty() || !AreNear(kept.back(), out, tolerance)) {
            kept.push_back(out);
        }
    }
    if (kept.size() > 1 && AreNear(kept.back(), kept.front(), tolerance)) {
        kept.pop_back();
    }
    return boundary;
}

} // namespace VelorExchange::dxf

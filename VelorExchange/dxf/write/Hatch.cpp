// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/write/Angles_p.h"
#include "VelorExchange/dxf/write/CodePage1251_p.h"
#include "VelorExchange/dxf/write/DXFWriterImpl_p.h"
#include "VelorExchange/dxf/write/Finite_p.h"
#include "VelorExchange/dxf/write/Texts_p.h"

#include <algorithm>

namespace VelorExchange::dxf {

namespace {

constexpr int kLongestName = 34;
constexpr int kOuterLoop = 7;
constexpr int kHole = 22;

// Three vertices, or a circle of two arcs.
bool CanEnclose(const std::vector<CPoint3D>& outline)
{
    return outline.size() >= 3
        || (outline.size() == 2 && outline[0].z != 0.0 && outline[1].z != 0.0);
}

CPoint2D MeanOf(const std::vector<CPoint3D>& vertices)
{
    CPoint2D sum;
    for (const CPoint3D& vertex : vertices) {
        sum.x += vertex.x;
        sum.y += vertex.y;
    }
    const auto count = static_cast<double>(vertices.size());
    return {sum.x / count, sum.y / count};
}

bool IsFinite(const CHatchOutline& boundary)
{
    CFiniteCheck check;
    for (const CPoint3D& vertex : boundary.vertices) {
        check << vertex;
    }
    return check.IsPassed();
}

bool IsPatternFinite(const CHatchDXF& record, const CPoint2D& origin)
{
    CFiniteCheck check;
    check << DegreesOf(record.angle) << record.scale;
    for (const CHatchLineDXF& line : record.style.lines) {
        check << line.angle << line.baseX + origin.x << line.baseY + origin.y << line.offsetX
              << line.offsetY;
        for (const double dash : line.dashes) {
            check << dash;
        }
    }
    return check.IsPassed();
}

} // namespace

bool CDXFWriterImpl::AddHatch(const CHatchDXF& record)
{
    if (record.style.name.isEmpty() || !CanEnclose(record.outline)) {
        return false;
    }
    const CHatchOutline outer = PrepareOutline(record.outline, context, tolerance);
    if ((!outer.hasBulges && outer.vertices.size() < 3) || !IsFinite(outer)) {
        return false;
    }
    const CPoint2D origin = MeanOf(outer.vertices);
    const bool isSolid = record.style.lines.empty();
    std::vector<CHatchOutline> holes;
    if ((!isSolid && !IsPatternFinite(record, origin)) || !PrepareHoles(record, holes)) {
        return false;
    }
    WriteStart("HATCH", Layer(record.layer));
    WriteColor(record.color);
    output.WriteTag(100, "AcDbHatch");
    WritePoint(10, CPoint3D{});
    WritePoint(210, CPoint3D{0, 0, 1});
    output.WriteTag(2, WithinCodePage1251(record.style.name.left(kLongestName)));
    output.WriteTag(70, isSolid ? 1 : 0);
    output.WriteTag(71, isSolid ? 1 : 0);
    // Counts the holes that are left out too: held by Hatch.CountKeepsAHoleThatIsLeftOut.
    output.WriteTag(91, static_cast<int>(record.markedBoundaries.size()) + 1);
    WriteHatchLoop(outer, kOuterLoop);
    for (const CHatchOutline& hole : holes) {
        WriteHatchLoop(hole, kHole);
    }
    output.WriteTag(75, 0);
    output.WriteTag(76, isSolid ? 1 : 0);
    if (!isSolid) {
        WriteHatchPattern(record, origin);
    }
    output.WriteReal(47, 1.0);
    output.WriteTag(98, 0);
    Count(texts::Hatches());
    return true;
}

// Keeps the holes that still have more than one vertex.
bool CDXFWriterImpl::PrepareHoles(const CHatchDXF& record, std::vector<CHatchOutline>& holes) const
{
    for (const std::vector<CPoint3D>& boundary : record.markedBoundaries) {
        CHatchOutline hole = PrepareOutline(boundary, context, tolerance);
        if (hole.vertices.size() > 1) {
            if (!IsFinite(hole)) {
                return false;
            }
            holes.push_back(std::move(hole));
        }
    }
    return true;
}

void CDXFWriterImpl::WriteHatchLoop(const CHatchOutline& boundary, int flags)
{
    output.WriteTag(92, flags);
    output.WriteTag(72, boundary.hasBulges ? 1 : 0);
    output.WriteTag(73, 1);
    output.WriteTag(93, static_cast<int>(boundary.vertices.size()));
    for (const CPoint3D& vertex : boundary.vertices) {
        WritePoint(10, CPoint2D{vertex.x, vertex.y});
        if (boundary.hasBulges) {
            output.WriteReal(42, vertex.z);
        }
    }
    output.WriteTag(97, 0);
}

void CDXFWriterImpl::WriteHatchPattern(const CHatchDXF& record, const CPoint2D& origin)
{
    output.WriteReal(52, DegreesOf(record.angle));
    output.WriteReal(41, record.scale);
    output.WriteTag(77, record.style.isDouble ? 1 : 0);
    output.WriteTag(78, static_cast<int>(record.style.lines.size()));
    for (const CHatchLineDXF& line : record.style.lines) {
        output.WriteReal(53, line.angle);
        output.WriteReal(43, line.baseX + origin.x);
        output.WriteReal(44, line.baseY + origin.y);
        output.WriteReal(45, line.offsetX);
        output.WriteReal(46, line.offsetY);
        output.WriteTag(79, static_cast<int>(line.dashes.size()));
        for (const double dash : line.dashes) {
            output.WriteReal(49, dash);
        }
    }
}

} // namespace VelorExchange::dxf

// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/read/HatchBoundary_p.h"

#include "VelorExchange/dxf/read/VertexList_p.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>

namespace VelorExchange::dxf {

namespace {

constexpr CDXFTagMap::CCodes kHeaderCodes = {92, 93, 97, 72, 330};
constexpr CDXFTagMap::CCodes kPolylineCodes = {72, 73, 93, 10, 20, 42};
constexpr CDXFTagMap::CCodes kLineCodes = {10, 11, 20, 21};
constexpr CDXFTagMap::CCodes kArcCodes = {10, 20, 40, 50, 51, 73};
constexpr CDXFTagMap::CCodes kEllipseCodes = {10, 20, 40, 50, 51, 73, 11, 21};
constexpr CDXFTagMap::CCodes kSplineCodes = {10, 20, 11, 21, 12, 22, 13, 23,
                                             40, 42, 73, 74, 94, 95, 96, 97};

constexpr int kPolylineFlag = 2;
constexpr int kMarkedFlags = 8 | 16; // text box, outermost

bool IsIn(int code, CDXFTagMap::CCodes codes)
{
    return std::find(codes.begin(), codes.end(), code) != codes.end();
}

std::vector<CPoint3D> PointsOf(const std::vector<CVertexDXF>& vertices)
{
    std::vector<CPoint3D> points;
    points.reserve(vertices.size());
    for (const CVertexDXF& vertex : vertices) {
        AppendPoint(points, vertex.point);
    }
    return points;
}

} // namespace

CHatchBoundary::CHatchBoundary(CTagReader& reader) : input(reader), header(reader), edge(reader) { }

CDXFTag CHatchBoundary::ReadPaths(CDXFTag tag, int count, const CObjectCoordinates& coordinates,
                                  CHatchDXF& hatch)
{
    CPath path{tag, 0, 0, coordinates, {}, hatch};
    for (int i = 0; i < count && ReadPath(path); ++i) {
        hatch.loops.push_back(std::move(path.loop));
        path.loop.clear();
    }
    return path.tag;
}

// False if there is no path: then nothing of it was stored, and the next one would fare no better.
bool CHatchBoundary::ReadPath(CPath& path)
{
    header.Clear();
    if (IsIn(path.tag.code, kHeaderCodes)) {
        header.Store(path.tag);
    }
    path.tag = header.ReadWhile(kHeaderCodes);
    if (header.IsEmpty()) {
        return false;
    }
    path.flags = header.Int(92);
    if ((path.flags & kPolylineFlag) != 0) {
        ReadPolyline(path);
    } else {
        ReadEdges(path);
    }
    return true;
}

// A path that is one polyline. It always goes to its loop, marked or not.
void CHatchBoundary::ReadPolyline(CPath& path)
{
    edge.Clear();
    if (IsIn(path.tag.code, kPolylineCodes)) {
        edge.Store(path.tag);
    }
    path.tag = edge.ReadWhile(kPolylineCodes);
    edge.SplitDoubles(10, xs);
    edge.SplitDoubles(20, ys);
    edge.SplitDoubles(42, bulges);
    CLWPolylineDXF polyline;
    std::vector<CVertexDXF>& vertices = polyline.vertices;
    for (std::size_t i = 0; xs.size() == ys.size() && i < xs.size(); ++i) {
        AppendVertex(vertices, {path.coordinates.ToWorldFlat(xs[i], ys[i]), ItemOrZero(bulges, i)});
    }
    if (edge.Int(73) != 0 && !vertices.empty()
        && !CoincideInPlan(vertices.front().point, vertices.back().point))
    {
        vertices.push_back(ClosingVertex(vertices.front()));
    }
    path.loop.emplace_back(std::move(polyline));
}

// A count that the file does not back ends where a pass finds nothing to read: no later one would.
void CHatchBoundary::ReadEdges(CPath& path)
{
    const int count = header.Int(93);
    path.edges = 0;
    while (path.edges < count && !input.AtEnd()) {
        const qint64 position = input.Position();
        const int before = path.edges;
        if (input.CodeContains(path.tag, 72)) {
            path.tag = input.ReadTag();
        }
        ReadEdge(path);
        if (IsIn(path.tag.code, kHeaderCodes)) {
            header.Store(path.tag, true); // a group 72 sets the kind of the next edge
        }
        path.edges = std::max(path.edges, before + 1);
        if (input.Position() == position) {
            return;
        }
    }
}

void CHatchBoundary::ReadEdge(CPath& path)
{
    constexpr CEdgeReader kReaders[] = {&CHatchBoundary::ReadLines, &CHatchBoundary::ReadArc,
                                        &CHatchBoundary::ReadEllipse, &CHatchBoundary::ReadSpline};
    const auto kind = static_cast<std::size_t>(header.Int(72)) - 1;
    if (kind < std::size(kReaders)) {
        (this->*kReaders[kind])(path);
    }
}

// Starts the map of an edge with the tag in hand and reads on; false, and nothing read, if the tag is of
// no edge of this kind.
bool CHatchBoundary::StartEdge(CPath& path, CDXFTagMap::CCodes codes)
{
    if (!IsIn(path.tag.code, codes)) {
        return false;
    }
    edge.Clear();
    edge.Store(path.tag);
    path.tag = edge.ReadWhile(codes);
    return true;
}

CPoint3D CHatchBoundary::FlatPoint(const CPath& path, int xCode, int yCode) const
{
    return path.coordinates.ToWorldFlat(edge.Double(xCode), edge.Double(yCode));
}

// Line edges one behind the other become one polyline, also beyond the count that the path tells.
void CHatchBoundary::ReadLines(CPath& path)
{
    CLWPolylineDXF polyline;
    const auto isNextLine = [&] {
        return path.tag.code == 72 && input.Bytes(path.tag.value) == "1";
    };
    while (IsIn(path.tag.code, kLineCodes) || isNextLine()) {
        edge.Clear();
        if (path.tag.code == 10) {
            edge.Store(path.tag);
        }
        path.tag = edge.ReadWhile(kLineCodes);
        AppendVertex(polyline.vertices, {FlatPoint(path, 10, 20), 0.0});
        AppendVertex(polyline.vertices, {FlatPoint(path, 11, 21), 0.0});
        ++path.edges;
        if (!isNextLine()) {
            break;
        }
    }
    if (polyline.vertices.empty()) {
        return;
    }
    if ((path.flags & kMarkedFlags) != 0) {
        path.hatch.markedBoundaries.push_back(PointsOf(polyline.vertices));
    } else {
        path.loop.emplace_back(std::move(polyline));
    }
}

void CHatchBoundary::ReadArc(CPath& path)
{
    if (!StartEdge(path, kArcCodes) || (path.flags & kMarkedFlags) != 0) {
        return;
    }
    CArcDXF arc;
    arc.center = path.coordinates.ToWorld({edge.Double(10), edge.Double(20), 0.0});
    arc.radius = edge.Double(40);
    arc.startAngle = edge.Double(50);
    arc.endAngle = edge.Double(51);
    arc.counterClockwise = edge.Int(73) != 0;
    path.loop.emplace_back(std::move(arc));
}

void CHatchBoundary::ReadEllipse(CPath& path)
{
    if (!StartEdge(path, kEllipseCodes) || (path.flags & kMarkedFlags) != 0) {
        return;
    }
    CEllipseDXF ellipse;
    ellipse.center = path.coordinates.ToWorld({edge.Double(10), edge.Double(20), 0.0});
    ellipse.majorAxis = path.coordinates.ToWorld({edge.Double(11), edge.Double(21), 0.0});
    ellipse.ratio = edge.Double(40);
    ellipse.startParameter = edge.Double(50);
    ellipse.endParameter = edge.Double(51);
    ellipse.counterClockwise = edge.Int(73) != 0;
    path.loop.emplace_back(std::move(ellipse));
}

// The tag in hand, as a rule group 94, is not looked at.
void CHatchBoundary::ReadSpline(CPath& path)
{
    edge.Clear();
    path.tag = edge.ReadWhile(kSplineCodes);
    if ((path.flags & kMarkedFlags) != 0) {
        return;
    }
    CSplineDXF spline;
    FillFlatPoints(spline.controlPoints, 10, 20, &path.coordinates);
    FillFlatPoints(spline.fitPoints, 11, 21, nullptr);
    edge.SplitDoubles(40, spline.knots);
    path.loop.emplace_back(std::move(spline));
}

// Lists of unequal length are of no use. Without `coordinates` the points are taken as they stand.
void CHatchBoundary::FillFlatPoints(std::vector<CPoint3D>& points, int xCode, int yCode,
                                    const CObjectCoordinates* coordinates)
{
    edge.SplitDoubles(xCode, xs);
    edge.SplitDoubles(yCode, ys);
    for (std::size_t i = 0; xs.size() == ys.size() && i < xs.size(); ++i) {
        const CPoint3D point{xs[i], ys[i], 0.0};
        points.push_back(coordinates != nullptr ? coordinates->ToWorld(point) : point);
    }
}

} // namespace VelorExchange::dxf

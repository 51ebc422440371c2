// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/read/DXFReaderImpl_p.h"
#include "VelorExchange/dxf/read/VertexList_p.h"

#include <cstddef>

namespace VelorExchange::dxf {

namespace {

constexpr int kClosedFlag = 1;
constexpr std::size_t kFewestToClose = 3;

} // namespace

// LWPOLYLINE: the groups of its vertices are kept in step by the chain. A file whose lists do not match
// its own vertex count gives a polyline without vertices, which is delivered all the same.
CDXFTag CDXFReaderImpl::ReadLWPolyline()
{
    const CDXFTag next = tags.ReadObject({10, 20, 30, 40, 41, 42});
    if (IsPaperSpace()) {
        return next;
    }
    CLWPolylineDXF polyline;
    FillStyledHead(polyline);
    polyline.elevation = tags.Double(38);
    polyline.width = LWPolylineWidth();
    FillLWPolylineVertices(polyline);
    if ((tags.Int(70) & kClosedFlag) != 0 && polyline.vertices.size() >= kFewestToClose) {
        AppendVertex(polyline.vertices, ClosingVertex(polyline.vertices.front()));
    }
    Deliver(polyline, &IDXFReader::OnLWPolyline);
    return next;
}

// The constant width, or else the mean of the start and end widths of the segments. With a single vertex
// that divides by zero, and the result stands as the arithmetic gives it.
double CDXFReaderImpl::LWPolylineWidth()
{
    const double constant = tags.Double(43);
    if (constant != 0.0) {
        return constant;
    }
    double width = tags.Double(40);
    std::vector<double>& starts = lists[0];
    std::vector<double>& ends = lists[1];
    tags.SplitDoubles(40, starts);
    tags.SplitDoubles(41, ends);
    if (starts.size() == ends.size()) {
        for (std::size_t i = 0; i + 1 < starts.size(); ++i) {
            width += starts[i] + ends[i];
        }
        width /= 2.0 * static_cast<double>(starts.size()) - 2.0;
    }
    return width;
}

void CDXFReaderImpl::FillLWPolylineVertices(CLWPolylineDXF& polyline)
{
    std::vector<double>& xs = lists[0];
    std::vector<double>& ys = lists[1];
    std::vector<double>& bulges = lists[2];
    tags.SplitDoubles(10, xs);
    tags.SplitDoubles(20, ys);
    tags.SplitDoubles(42, bulges);
    const int count = tags.Int(90);
    if (count <= 0 || xs.size() != ys.size() || xs.size() != static_cast<std::size_t>(count)) {
        return;
    }
    const CObjectCoordinates coordinates = Coordinates();
    polyline.vertices.reserve(xs.size() + 1);
    for (std::size_t i = 0; i < xs.size(); ++i) {
        AppendVertex(polyline.vertices,
                     {coordinates.ToWorldFlat(xs[i], ys[i]), ItemOrZero(bulges, i)});
    }
}

} // namespace VelorExchange::dxf

// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/read/DXFReaderImpl_p.h"
#include "VelorExchange/dxf/read/VertexList_p.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace VelorExchange::dxf {

namespace {

constexpr int kClosedFlag = 2;
constexpr std::size_t kFewestToClose = 3;
constexpr int kListCodes[] = {11, 21, 31, 12, 22, 32, 13, 23, 33};

enum ETriple : std::size_t { Vertices = 0, Directions = 3, Miters = 6 };

// Past the end of its lists every vertex is zero, and equal neighbours are one: two more change the
// result, and no further ones do, whatever count the file tells.
constexpr std::size_t kTellingPastEnd = 2;

// The three lists of a triple are usable only together.
void DropUnequal(std::vector<double> (&lists)[9], ETriple triple)
{
    std::vector<double>* const list = lists + triple;
    if (list[0].size() != list[1].size() || list[0].size() != list[2].size()) {
        std::for_each(list, list + 3, [](std::vector<double>& items) { items.clear(); });
    }
}

CPoint3D TripleAt(const std::vector<double> (&lists)[9], ETriple triple, std::size_t i)
{
    const std::vector<double>* const list = lists + triple;
    return {ItemOrZero(list[0], i), ItemOrZero(list[1], i), ItemOrZero(list[2], i)};
}

void AppendSegment(CMLineDXF& mline, const CVertexDXF& vertex, const CMLineSegmentDXF& segment)
{
    AppendVertex(mline.vertices, vertex);
    if (mline.vertices.size() == mline.segments.size() + 1) {
        mline.segments.push_back(segment);
    }
}

} // namespace

CMLineSegmentDXF CDXFReaderImpl::MLineSegment(std::size_t i) const
{
    return {TripleAt(lists, Directions, i), TripleAt(lists, Miters, i)};
}

// MLINE: an axis, and two directions at each of its vertices.
CDXFTag CDXFReaderImpl::ReadMLine()
{
    const CDXFTag next = tags.ReadObject();
    if (IsPaperSpace()) {
        return next;
    }
    std::size_t longest = 0;
    for (std::size_t i = 0; i < std::size(kListCodes); ++i) {
        tags.SplitDoubles(kListCodes[i], lists[i]);
        longest = std::max(longest, lists[i].size());
    }
    DropUnequal(lists, Vertices);
    DropUnequal(lists, Directions);
    DropUnequal(lists, Miters);
    CMLineDXF mline;
    FillLayerAndColor(mline.layer, mline.color);
    mline.lineWeight = tags.Double(370);
    mline.style.name = tags.Value(2, QStringLiteral("BYLAYER"));
    const CObjectCoordinates coordinates = Coordinates();
    const auto told = static_cast<std::size_t>(std::max(tags.Int(72), 0));
    const std::size_t count = std::min(told, longest + kTellingPastEnd);
    for (std::size_t i = 0; i < count; ++i) {
        const bool given = i < lists[Vertices].size();
        const CPoint3D point = TripleAt(lists, Vertices, i);
        AppendSegment(mline, {given ? coordinates.ToWorld(point) : point, 0.0}, MLineSegment(i));
    }
    if ((tags.Int(71) & kClosedFlag) != 0 && mline.vertices.size() >= kFewestToClose) {
        // Copies: the lists may move while they grow.
        AppendSegment(mline, CVertexDXF(mline.vertices.front()),
                      CMLineSegmentDXF(mline.segments.front()));
    }
    Deliver(mline, &IDXFReader::OnMLine);
    return next;
}

} // namespace VelorExchange::dxf

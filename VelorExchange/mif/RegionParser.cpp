// SPDX-License-Identifier: MIT
#include "VelorExchange/mif/MIFReader_p.h"

#include <utility>

namespace VelorExchange::mif {

// Region rings, then for each ring its number of vertices and the vertices. Each ring of more than two
// vertices goes out as a region of its own; the others are dropped, and the row is taken all the same.
void CMIFReader::ReadRegion(QFile& file)
{
    constexpr std::size_t kLeastRing = 2; // its line with the count
    constexpr int kMostDropped = 2;
    const int ringCount = line.ToInt(SplitLine(kBlanks, 2)[1]);
    std::vector<std::vector<CPoint2D>> rings;
    rings.reserve(RoomFor(ringCount, sizeof(CRegionMIF), kLeastRing));
    for (int i = 0; i < ringCount; ++i) {
        const int vertexCount = ReadCount(file);
        rings.emplace_back(std::move(spare));
        ReadVertices(file, vertexCount, rings.back());
        if (vertexCount <= kMostDropped) {
            spare = std::move(rings.back());
            rings.pop_back();
        }
    }
    CRegionMIF record;
    ReadClauses(file, [this, &record] {
        return TryClause(CWord("Pen"), Bind(&CMIFReader::ReadPen, record.pen))
            || TryClause(CWord("Brush"), Bind(&CMIFReader::ReadBrush, record.brush))
            || TryClause(CWord("Center"), Bind(&CMIFReader::ReadCenter, record.center));
    });
    midFile->NextRecord();
    FillAttributes(record);
    for (std::vector<CPoint2D>& ring : rings) {
        record.points = std::move(ring);
        sink->AddRegion(record);
    }
    spare = std::move(record.points);
}

} // namespace VelorExchange::mif

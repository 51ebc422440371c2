// SPDX-License-Identifier: MIT
#include "VelorExchange/mif/MIFReader_p.h"

#include <utility>

namespace VelorExchange::mif {

// PLine [Multiple sections | vertices]. `firstCount` gets the number of vertices if this line tells
// it, else 0: it stands on the next line then, as it always does for more sections.
int CMIFReader::TakeSectionCount(int& firstCount)
{
    firstCount = 0;
    const CTokens tokens = SplitLine(kBlanks, 1);
    if (tokens.count == 3 && line.Contains(CWord("Multiple"))) {
        return line.ToInt(tokens[2]);
    }
    if (tokens.count == 2) {
        firstCount = line.ToInt(tokens[1]);
    }
    return 1;
}

// Each section goes out as a polyline of its own, whatever its number of vertices. All have the pen
// and the attributes of the object.
void CMIFReader::ReadPLine(QFile& file)
{
    constexpr std::size_t kLeastSection = 2; // its line with the count
    int vertexCount = 0;
    const int sectionCount = TakeSectionCount(vertexCount);
    std::vector<std::vector<CPoint2D>> sections;
    sections.reserve(RoomFor(sectionCount, sizeof(CPolylineMIF), kLeastSection));
    for (int i = 0; i < sectionCount; ++i) {
        sections.emplace_back(std::move(spare));
        ReadVertices(file, vertexCount != 0 ? vertexCount : ReadCount(file), sections.back());
    }
    CPolylineMIF record;
    ReadClauses(file, [this, &record] {
        if (TryClause(CWord("Pen"), Bind(&CMIFReader::ReadPen, record.pen))) {
            return true;
        }
        const bool isSmooth = line.Contains(CWord("smooth"));
        record.smooth = record.smooth || isSmooth;
        return isSmooth;
    });
    midFile->NextRecord();
    FillAttributes(record);
    for (std::vector<CPoint2D>& section : sections) {
        record.points = std::move(section);
        sink->AddPolyline(record);
    }
    spare = std::move(record.points);
}

} // namespace VelorExchange::mif

// SPDX-License-Identifier: MIT
#include "VelorExchange/mif/MIFReader_p.h"

#include <utility>

namespace VelorExchange::mif {

// Multipoint count, then a line for each point. Each goes out as a point of its own; all have the
// symbol and the attributes of the object.
void CMIFReader::ReadMultipoint(QFile& file)
{
    const int count = line.ToInt(SplitLine(kBlanks, 2)[1]);
    std::vector<CPoint2D> points = std::move(spare);
    ReadVertices(file, count, points);
    CPointMIF record;
    ReadSingleClause(file, CWord("Symbol"), Bind(&CMIFReader::ReadSymbol, record.symbol));
    midFile->NextRecord();
    FillAttributes(record);
    for (const CPoint2D& point : points) {
        record.position = point;
        sink->AddPoint(record);
    }
    spare = std::move(points);
}

} // namespace VelorExchange::mif

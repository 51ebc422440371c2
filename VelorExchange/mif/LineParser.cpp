// SPDX-License-Identifier: MIT
#include "VelorExchange/mif/MIFReader_p.h"

namespace VelorExchange::mif {

// Line x1 y1 x2 y2: a polyline of two points.
void CMIFReader::ReadLine(QFile& file)
{
    CPolylineMIF record;
    const CTokens tokens = SplitLine(kBlanks, 5);
    record.points = {PointAt(tokens, 1), PointAt(tokens, 3)};
    ReadSingleClause(file, CWord("Pen"), Bind(&CMIFReader::ReadPen, record.pen));
    Deliver(record, &IMIFReader::AddPolyline);
}

} // namespace VelorExchange::mif

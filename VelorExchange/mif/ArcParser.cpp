// SPDX-License-Identifier: MIT
#include "VelorExchange/mif/MIFReader_p.h"

namespace VelorExchange::mif {

// Arc x1 y1 x2 y2 [start end], in degrees. Angles that don't make exactly seven tokens are looked for
// on the next line.
void CMIFReader::ReadArc(QFile& file)
{
    constexpr std::size_t kWithAngles = 7;
    CArcMIF record;
    CTokens tokens = SplitLine(kBlanks, 5);
    TakeCorners(tokens, record);
    std::size_t first = 5;
    if (tokens.count != kWithAngles) {
        NextLine(file, true);
        tokens = SplitLine(kBlanks, 2);
        first = 0;
    }
    record.startAngle = ToRadians(line.ToDouble(tokens[first]));
    record.endAngle = ToRadians(line.ToDouble(tokens[first + 1]));
    ReadSingleClause(file, CWord("Pen"), Bind(&CMIFReader::ReadPen, record.pen));
    Deliver(record, &IMIFReader::AddArc);
}

} // namespace VelorExchange::mif

// SPDX-License-Identifier: MIT
#include "VelorExchange/mif/MIFReader_p.h"

namespace VelorExchange::mif {

// Point x y, or Point with x and y on the next line.
void CMIFReader::ReadPoint(QFile& file)
{
    CPointMIF record;
    if (line.HasDigit()) {
        record.position = PointAt(SplitLine(kBlanks, 3), 1);
    } else {
        record.position = ReadVertex(file);
    }
    ReadSingleClause(file, CWord("Symbol"), Bind(&CMIFReader::ReadSymbol, record.symbol));
    Deliver(record, &IMIFReader::AddPoint);
}

} // namespace VelorExchange::mif

// SPDX-License-Identifier: MIT
#include "VelorExchange/mif/MIFReader_p.h"

namespace VelorExchange::mif {

// Ellipse x1 y1 x2 y2: the rectangle that it fills.
void CMIFReader::ReadEllipse(QFile& file)
{
    CRectMIF record;
    TakeCorners(SplitLine(kBlanks, 5), record);
    ReadPenAndBrush(file, record.pen, record.brush);
    Deliver(record, &IMIFReader::AddEllipse);
}

} // namespace VelorExchange::mif

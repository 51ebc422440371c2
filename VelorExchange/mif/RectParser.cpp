// SPDX-License-Identifier: MIT
#include "VelorExchange/mif/MIFReader_p.h"

namespace VelorExchange::mif {

// Rect x1 y1 x2 y2
void CMIFReader::ReadRect(QFile& file)
{
    CRectMIF record;
    TakeCorners(SplitLine(kBlanks, 5), record);
    ReadPenAndBrush(file, record.pen, record.brush);
    Deliver(record, &IMIFReader::AddRect);
}

} // namespace VelorExchange::mif

// SPDX-License-Identifier: MIT
#include "VelorExchange/mif/MIFReader_p.h"

namespace VelorExchange::mif {

// Pen (width, pattern, color)
void CMIFReader::ReadPen(CPenMIF& pen)
{
    const CTokens tokens = SplitLine(kBracketOrComma, 4);
    pen.width = line.ToInt(tokens[1]);
    pen.pattern = line.ToInt(tokens[2]);
    pen.color = line.ToColor(tokens[3]);
}

} // namespace VelorExchange::mif

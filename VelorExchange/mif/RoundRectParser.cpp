// SPDX-License-Identifier: MIT
#include "VelorExchange/mif/MIFReader_p.h"

namespace VelorExchange::mif {

// RoundRect x1 y1 x2 y2 [radius]. The radius is scaled like an angle although it is a distance: see
// RoundRectParser.ScalesRadiusLikeAnAngle.
void CMIFReader::ReadRoundRect(QFile& file)
{
    constexpr std::size_t kWithRadius = 6;
    CRoundRectMIF record;
    const CTokens tokens = SplitLine(kBlanks, 5);
    TakeCorners(tokens, record);
    CSpan radius = tokens[5];
    if (tokens.count != kWithRadius) {
        NextLine(file, true);
        radius = line.Span();
    }
    record.radius = ToRadians(line.ToDouble(radius));
    ReadPenAndBrush(file, record.pen, record.brush);
    Deliver(record, &IMIFReader::AddRoundRect);
}

} // namespace VelorExchange::mif

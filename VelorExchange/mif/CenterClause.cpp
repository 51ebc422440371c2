// SPDX-License-Identifier: MIT
#include "VelorExchange/mif/MIFReader_p.h"

namespace VelorExchange::mif {

// Center x y
void CMIFReader::ReadCenter(CPoint2D& center)
{
    center = PointAt(SplitLine(kBlanks, 3), 1);
}

} // namespace VelorExchange::mif

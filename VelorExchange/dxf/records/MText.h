// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/records/Text.h"

namespace VelorExchange::dxf {

/// MTEXT.
struct CMTextDXF : CTextDXF
{
    double rectWidth = 0.0; ///< Width of the column in drawing units, 0 for none.
};

} // namespace VelorExchange::dxf

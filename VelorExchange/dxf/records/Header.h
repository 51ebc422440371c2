// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/foundation/Point.h"

namespace VelorExchange::dxf {

/// What is read of the HEADER section.
struct CHeaderDXF
{
    int version = 1009; ///< The number of `$ACADVER`: 1015 for AC1015; 1009 where it is absent.
    CPoint3D extMin; ///< Lower corner of the drawing as the file tells it, zero if absent.
    CPoint3D extMax; ///< Upper corner of the drawing as the file tells it, zero if absent.
};

} // namespace VelorExchange::dxf

// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/foundation/Export.h"

namespace VelorExchange::dxf {

/// The colour of an AutoCAD Color Index as 0x00BBGGRR. Index 7 is black (0), and so is every index
/// below 0 or above 255.
VELOREXCHANGE_EXPORT unsigned long NumColACAD2RGB(int index);

/// The index, 1 to 255, of the table colour nearest to `rgb` (0x00BBGGRR, the high byte plays no part);
/// of two equally near the lower one. Three values are markers: 0 gives 250, 256 gives 256 (by layer)
/// and 257 gives 257.
VELOREXCHANGE_EXPORT int RGB2NumColACAD(unsigned long rgb);

} // namespace VelorExchange::dxf

// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace VelorExchange::mif {

/// How a line is drawn. The numbers are those of the format and aren't checked.
struct CPenMIF
{
    int width = 1; ///< Pixels up to 7, above 10 tenths of a point.
    int pattern = 2; ///< 1 is invisible, 2 is solid.
    quint32 color = 0; ///< 0x00BBGGRR.
};

} // namespace VelorExchange::mif

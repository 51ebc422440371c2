// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace VelorExchange::mif {

/// How an area is filled. The numbers are those of the format and aren't checked.
struct CBrushMIF
{
    int pattern = 2; ///< 1 is no fill, 2 is solid.
    quint32 backColor = 0xFFFFFF; ///< 0x00BBGGRR. White where the file tells none.
    quint32 foreColor = 0; ///< 0x00BBGGRR.
};

} // namespace VelorExchange::mif

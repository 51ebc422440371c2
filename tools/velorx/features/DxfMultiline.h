// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/Feature.h"
#include "tools/velorx/formats/DxfMLineStyle.h"
#include "VelorExchange/dxf/records/MLine.h"

#include <QString>

#include <vector>

namespace velorx {

/// One of the lines of a multiline.
struct SMultilineElement
{
    double offset = 0.0; ///< From the axis, to its left, file units.
    int colour = 256; ///< Index of the colour table; 256 and 0 for that of the multiline.
    QString lineType; ///< Name; can be a marker such as "BYLAYER".
};

/// The lines of a style, `scale` times as far from the axis as its groups tell; two lines one unit apart times
/// `scale` where `groups` is null or tells none.
std::vector<SMultilineElement> ElementsOf(const CMLineStyleGroups* groups, double scale);

/// The line that runs `offset` beside the axis of `mline`, bent where the axis bends.
CFeatureLine LineBeside(const VelorExchange::dxf::CMLineDXF& mline, double offset);

} // namespace velorx

// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/records/TextStyle.h"
#include "VelorExchange/foundation/Point.h"

#include <QString>
#include <QtGlobal>

namespace VelorExchange::dxf {

/// TEXT, and what MTEXT and ATTRIB have in common with it.
struct CTextDXF
{
    QString text; ///< As it stands in the file, formatting codes included.
    QString layer; ///< Name of the layer.
    CPoint2D position; ///< First alignment point.
    double height = 0.0; ///< Drawing units.
    double rotation = 0.0; ///< Radians, counter-clockwise.
    quint32 color = 0; ///< Resolved, 0x00BBGGRR; 0xFFFFFFFF means by block.
    int alignment = 12; ///< Group 72 of TEXT, group 71 of MTEXT.
    /// The reader fills name, slant (radians) and `height`, which takes the relative width of a TEXT.
    CTextStyleDXF style;
};

} // namespace VelorExchange::dxf

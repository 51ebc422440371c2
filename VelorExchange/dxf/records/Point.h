// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/foundation/Point.h"

#include <QString>
#include <QtGlobal>

namespace VelorExchange::dxf {

/// POINT.
struct CPointDXF
{
    QString layer; ///< Name of the layer.
    quint32 color = 0; ///< Resolved, 0x00BBGGRR; 0xFFFFFFFF means by block.
    CPoint3D point; ///< Position in world coordinates.
    double thickness = 0.0; ///< Extent along the extrusion, drawing units.
};

} // namespace VelorExchange::dxf

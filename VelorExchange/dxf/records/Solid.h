// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/foundation/Point.h"

#include <QString>
#include <QtGlobal>

#include <vector>

namespace VelorExchange::dxf {

/// SOLID, a filled triangle or quadrangle.
struct CSolidDXF
{
    QString layer; ///< Name of the layer.
    quint32 color = 0; ///< Resolved, 0x00BBGGRR; 0xFFFFFFFF means by block.
    double lineWeight = 0.0; ///< Not filled by the reader.
    /// Corners in the order of the file, which stores the third and the fourth crosswise; equal
    /// neighbours are one, and the first stands at the end again.
    std::vector<CPoint3D> points;
};

} // namespace VelorExchange::dxf

// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/records/Attrib.h"
#include "VelorExchange/dxf/records/LineStyle.h"
#include "VelorExchange/foundation/Point.h"

#include <QString>
#include <QtGlobal>

#include <vector>

namespace VelorExchange::dxf {

/// INSERT, a reference to a block.
///
/// The reader delivers degrees as they stand in the file; the writer takes radians.
struct CInsertDXF
{
    QString name; ///< Name of the block.
    std::vector<CAttribDXF> attributes; ///< The ATTRIB records that follow, in file order.
    QString layer; ///< Name of the layer.
    CPoint3D point; ///< Insertion point in world coordinates.
    double rotation = 0.0; ///< Counter-clockwise.
    double scaleX = 1.0; ///< Factor along X; negative mirrors.
    double scaleY = 1.0; ///< Factor along Y; negative mirrors.
    double scaleZ = 1.0; ///< Factor along Z.
    quint32 color = 0; ///< Resolved, 0x00BBGGRR; 0xFFFFFFFF means by block.
    CLineStyleDXF lineStyle; ///< What entities by block inherit.
};

} // namespace VelorExchange::dxf

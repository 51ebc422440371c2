// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/records/MLineStyle.h"
#include "VelorExchange/dxf/records/Vertex.h"
#include "VelorExchange/foundation/Point.h"

#include <QString>
#include <QtGlobal>

#include <vector>

namespace VelorExchange::dxf {

/// Directions at one vertex of a multiline.
struct CMLineSegmentDXF
{
    CPoint3D direction; ///< Direction of the segment that starts here.
    CPoint3D miter; ///< Direction of the joint.
};

/// MLINE.
struct CMLineDXF
{
    std::vector<CVertexDXF> vertices; ///< The axis; bulges are 0.
    QString layer; ///< Name of the layer.
    quint32 color = 0; ///< Resolved, 0x00BBGGRR; 0xFFFFFFFF means by block.
    double lineWeight = 0.0; ///< Hundredths of a millimetre as in the file.
    CMLineStyleDXF style; ///< The reader fills its name alone.
    std::vector<CMLineSegmentDXF> segments; ///< One for each vertex.
};

} // namespace VelorExchange::dxf

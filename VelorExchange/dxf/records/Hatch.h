// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/records/Arc.h"
#include "VelorExchange/dxf/records/Ellipse.h"
#include "VelorExchange/dxf/records/HatchStyle.h"
#include "VelorExchange/dxf/records/LWPolyline.h"
#include "VelorExchange/dxf/records/Spline.h"
#include "VelorExchange/foundation/Point.h"

#include <QString>
#include <QtGlobal>

#include <boost/variant2/variant.hpp>

#include <vector>

namespace VelorExchange::dxf {

/// An edge of a boundary: 0 arc (degrees), 1 spline, 2 polyline, 3 ellipse (degrees).
using CHatchEdgeDXF = boost::variant2::variant<CArcDXF, CSplineDXF, CLWPolylineDXF, CEllipseDXF>;

/// One boundary loop.
using CHatchLoopDXF = std::vector<CHatchEdgeDXF>;

/// HATCH. The reader fills `loops`, the writer takes `outline` and the holes in `markedBoundaries`.
struct CHatchDXF
{
    QString layer; ///< Name of the layer.
    /// The writer's outer boundary; z carries the bulge. The reader leaves it empty.
    std::vector<CPoint3D> outline;
    /// The writer's holes in the same form; from the reader, the line edges of text boxes and
    /// outermost paths.
    std::vector<std::vector<CPoint3D>> markedBoundaries;
    std::vector<CHatchLoopDXF> loops; ///< Boundaries as the file tells them; a loop can be empty.
    quint32 color = 0; ///< Resolved, 0x00BBGGRR; 0xFFFFFFFF means by block.
    double angle = 0.0; ///< Of the pattern: degrees from the reader, radians for the writer.
    double scale = 1.0; ///< Of the pattern; the reader never sets it.
    CHatchStyleDXF style; ///< The reader fills `name` and `isDouble`.
    double elevation = 0.0; ///< Height of the plane.
};

} // namespace VelorExchange::dxf

// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/write/IDXFWriter.h"
#include "VelorExchange/foundation/Point.h"

#include <vector>

namespace VelorExchange::dxf {

/// A boundary of a hatch as it is written; z carries the bulge.
struct CHatchOutline
{
    std::vector<CPoint3D> vertices;
    bool hasBulges = false; ///< Tested on all vertices, also those that coincide and go.
};

/// Transforms `in` through `context`, which may be null, and leaves out each vertex that lies within
/// `tolerance` of the one kept before it, and the last if it lies so near the first.
CHatchOutline PrepareOutline(const std::vector<CPoint3D>& in, IDXFWriter::IContext* context,
                             double tolerance);

} // namespace VelorExchange::dxf

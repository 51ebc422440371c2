// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/records/EntityVariant.h"

#include <QtGlobal>

#include <array>
#include <cstddef>

namespace velorx {

/// Kinds of entities: the positions in `CEntityVariantDXF`, and CIRCLE behind them, which travels as
/// an arc of equal angles.
enum EDxfKind : std::size_t {
    kPoint,
    kLine,
    kXLine,
    kArc,
    kSpline,
    kLWPolyline,
    kPolyline,
    kText,
    kMText,
    kSolid,
    kHatch,
    k3DFace,
    kImage,
    kRay,
    kMLine,
    kAttDef,
    kInsert,
    kEllipse,
    kCircle,
    kDxfKinds
};

/// Counts of entities by kind.
using CEntityCounts = std::array<qint64, kDxfKinds>;

/// Name of the kind `index` as it stands in a drawing, "LWPOLYLINE".
const char* EntityName(std::size_t index);

/// Name of the operation that delivers the kind `index`, "OnLWPolyline"; null for ATTDEF, which has
/// none.
const char* EntityOperation(std::size_t index);

/// ARC or CIRCLE.
EDxfKind KindOf(const VelorExchange::dxf::CArcDXF& arc);

/// The kind of an entity of a block.
EDxfKind KindOf(const VelorExchange::dxf::CEntityVariantDXF& entity);

} // namespace velorx

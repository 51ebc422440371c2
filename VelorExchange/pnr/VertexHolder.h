// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/foundation/Export.h"
#include "VelorExchange/foundation/Point.h"

#include <QtGlobal>

#include <vector>

namespace VelorExchange::pnr {

/// The vertices of one contour, in the plan or in space. `Is2D` tells to which of the two derived
/// structures a pointer may be cast.
struct VELOREXCHANGE_EXPORT CAbstractVertexHolder
{
    virtual ~CAbstractVertexHolder();

    /// The number of vertices.
    virtual quint32 Count() const = 0;

    /// True for `CVertexHolder2D`, false for `CVertexHolder3D`.
    virtual bool Is2D() const = 0;
};

/// Vertices of one type of point, in the units of the file and in file order.
template <class T>
struct CVertexHolderT : CAbstractVertexHolder
{
    /// The size of `vertices`.
    quint32 Count() const override { return static_cast<quint32>(vertices.size()); }

    std::vector<T> vertices; ///< Free to be filled and changed by the host.
};

/// A contour in the plan.
struct VELOREXCHANGE_EXPORT CVertexHolder2D : CVertexHolderT<CPoint2D>
{
    ~CVertexHolder2D() override;
    bool Is2D() const override; ///< Always true.
};

/// A contour in space.
struct VELOREXCHANGE_EXPORT CVertexHolder3D : CVertexHolderT<CPoint3D>
{
    ~CVertexHolder3D() override;
    bool Is2D() const override; ///< Always false.
};

} // namespace VelorExchange::pnr

// SPDX-License-Identifier: MIT
#include "VelorExchange/pnr/Objects.h"

namespace VelorExchange::pnr {

namespace {

// Side of the rectangle that stands for a vertex. That it differs by dimension is meant to be so
// (UniteBounds.TakesAVertexInSpaceAsATwoByTwoSquare).
constexpr double kSide2D = 1.0;
constexpr double kSide3D = 2.0;

// One axis of a rectangle that is kept as start and extent, as QRectF does; the sums are rounded
// after each vertex just as QRectF::united rounds them.
void UniteAxis(double& start, double& extent, double low, double side)
{
    const double end = start + extent;
    const double high = low + side;
    start = qMin(start, low);
    extent = qMax(end, high) - start;
}

template <class T>
void UniteVertices(const std::vector<T>& vertices, double side, QRectF& bounds)
{
    double x = bounds.x();
    double y = bounds.y();
    double width = bounds.width();
    double height = bounds.height();
    for (const T& vertex : vertices) {
        const double left = vertex.x - 1.0;
        const double top = vertex.y - 1.0;
        if (width <= 0.0 || height <= 0.0) {
            x = left;
            y = top;
            width = side;
            height = side;
            continue;
        }
        UniteAxis(x, width, left, side);
        UniteAxis(y, height, top, side);
    }
    bounds = QRectF(x, y, width, height);
}

} // namespace

CBaseObject::CBaseObject() = default;
CBaseObject::~CBaseObject() = default;
CLineObject::CLineObject() = default;
CLineObject::~CLineObject() = default;
CSquareObject::CSquareObject() = default;
CSquareObject::~CSquareObject() = default;
CPointObject::CPointObject() = default;
CPointObject::~CPointObject() = default;
CTextObject::CTextObject() = default;
CTextObject::~CTextObject() = default;

void CBaseObject::UniteBounds(QRectF& bounds) const
{
    for (const auto& holder : holders) {
        if (holder->Is2D()) {
            UniteVertices(static_cast<const CVertexHolder2D&>(*holder).vertices, kSide2D, bounds);
        } else {
            UniteVertices(static_cast<const CVertexHolder3D&>(*holder).vertices, kSide3D, bounds);
        }
    }
}

bool CLineObject::IsValid() const
{
    return image || code != 0;
}

bool CSquareObject::IsValid() const
{
    return image || code != 0;
}

bool CPointObject::IsValid() const
{
    return (holders.size() == 1 && image) || code != 0;
}

bool CTextObject::IsValid() const
{
    return holders.size() == 1 && holders.front()->Is2D();
}

} // namespace VelorExchange::pnr

// SPDX-License-Identifier: MIT
#include "tools/velorx/render/PathPainter.h"

#include <QPainter>

namespace velorx {

void CPathPainter::Count(double points)
{
    constexpr double kFrame = 330.0; // around each path
    constexpr double kPoint = 20.0;
    weight += kFrame + points * kPoint;
}

void CPathPainter::Fill(const QPainterPath& path, const QColor& colour)
{
    if (!path.isEmpty()) {
        Count(path.elementCount());
        painter.fillPath(path, colour);
    }
}

void CPathPainter::Stroke(const QPainterPath& path, const QPen& pen)
{
    if (!path.isEmpty()) {
        Count(path.elementCount());
        painter.strokePath(path, pen);
    }
}

void CPathPainter::Write(const QString& text, const QFont& font, const QTransform& transform,
                         const QColor& colour)
{
    Count(text.size());
    painter.setPen(colour);
    painter.setFont(font);
    painter.setTransform(transform);
    painter.drawText(QPointF(0, 0), text);
    painter.resetTransform();
}

} // namespace velorx

// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QFont>
#include <QPainterPath>
#include <QPen>
#include <QTransform>

class QPainter;

namespace velorx {

/// Paints paths and words, and keeps count of how much that is.
class CPathPainter
{
public:
    /// `picturePainter` outlives this object and is active.
    explicit CPathPainter(QPainter& picturePainter) : painter(picturePainter) { }

    void Fill(const QPainterPath& path, const QColor& colour);
    void Stroke(const QPainterPath& path, const QPen& pen);

    /// Writes `text` as text; its baseline begins where `transform` takes (0, 0).
    void Write(const QString& text, const QFont& font, const QTransform& transform,
               const QColor& colour);

    /// About how many characters it takes to write down all that was painted.
    double Weight() const { return weight; }

private:
    void Count(double points);

    QPainter& painter;
    double weight = 0.0;
};

} // namespace velorx

// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/render/Dashes.h"
#include "tools/velorx/render/PictureView.h"

#include <QPainterPath>
#include <QPen>
#include <QRectF>

#include <utility>

namespace velorx {

class CPathPainter;

/// Hands on what is drawn within `frame` of a line along `points`, in order. Its dashes run on around
/// corners. A line without length is handed on as a dot.
void CutLine(const CPixelLine& points, const CDashes& dashes, const QRectF& frame,
             SPieceBudget& budget, const CTakePiece& take);

/// Draws pieces with a pen, those that meet end to end as one line, and
/// as a closed one where it comes back to its start.
class CPiecePainter
{
public:
    /// `pathPainter` outlives this object.
    CPiecePainter(CPathPainter& pathPainter, QPen piecePen)
        : painter(pathPainter), pen(std::move(piecePen))
    {
    }
    CPiecePainter(const CPiecePainter&) = delete;
    CPiecePainter(CPiecePainter&&) = delete;
    CPiecePainter& operator=(const CPiecePainter&) = delete;
    CPiecePainter& operator=(CPiecePainter&&) = delete;

    /// Draws what has not been drawn yet.
    ~CPiecePainter() { Flush(); }

    void Add(const QLineF& piece);

private:
    void Flush();

    CPathPainter& painter;
    QPen pen;
    QPainterPath path;
    QPointF start; ///< Of the part of `path` in hand.
};

} // namespace velorx

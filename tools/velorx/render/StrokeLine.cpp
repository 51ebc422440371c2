// SPDX-License-Identifier: MIT
#include "tools/velorx/render/StrokeLine.h"

#include "tools/velorx/render/Clipping.h"
#include "tools/velorx/render/PathPainter.h"

#include <cmath>
#include <cstddef>

namespace velorx {

namespace {

constexpr double kSamePlace = 1e-6;
constexpr double kDot = 0.5;
constexpr int kLongPath = 4000;

double Distance(const QPointF& from, const QPointF& to)
{
    return std::hypot(to.x() - from.x(), to.y() - from.y());
}

// `behind` is the length of the line up to this segment.
void CutSegment(const QLineF& segment, double behind, const CDashes& dashes, const QRectF& frame,
                SPieceBudget& budget, const CTakePiece& take)
{
    QLineF shown = segment;
    if (!ClipLine(shown, frame)) {
        return;
    }
    if (dashes.IsSolid()) {
        take(shown);
        return;
    }
    const QPointF along = (segment.p2() - segment.p1()) / Distance(segment.p1(), segment.p2());
    const double from = behind + Distance(segment.p1(), shown.p1());
    dashes.Cut({shown.p1() - along * from, along}, from, from + Distance(shown.p1(), shown.p2()),
               budget, take);
}

} // namespace

void CutLine(const CPixelLine& points, const CDashes& dashes, const QRectF& frame,
             SPieceBudget& budget, const CTakePiece& take)
{
    double length = 0.0;
    for (std::size_t i = 1; i < points.size(); ++i) {
        const double more = Distance(points[i - 1], points[i]);
        if (more > 0) {
            CutSegment({points[i - 1], points[i]}, length, dashes, frame, budget, take);
        }
        length += more;
    }
    if (length < kSamePlace && !points.empty() && Touch({points[0], points[0]}, frame)) {
        take({points[0] - QPointF(kDot, 0), points[0] + QPointF(kDot, 0)});
    }
}

void CPiecePainter::Add(const QLineF& piece)
{
    const bool isNext =
        !path.isEmpty() && Distance(path.currentPosition(), piece.p1()) < kSamePlace;
    if (!isNext) {
        if (path.elementCount() > kLongPath) {
            Flush();
        }
        start = piece.p1();
        path.moveTo(start);
    }
    path.lineTo(piece.p2());
    if (isNext && Distance(start, piece.p2()) < kSamePlace) {
        path.closeSubpath();
    }
}

void CPiecePainter::Flush()
{
    painter.Stroke(path, pen);
    path = QPainterPath();
}

} // namespace velorx

// SPDX-License-Identifier: MIT
#include "tools/velorx/render/Clipping.h"
#include "tools/velorx/render/HatchFill.h"
#include "tools/velorx/render/PictureSink.h"
#include "tools/velorx/render/StrokeLine.h"

#include <algorithm>

namespace velorx {

namespace {

QPainterPath PathOf(const std::vector<CPixelLine>& rings)
{
    QPainterPath path;
    path.setFillRule(Qt::OddEvenFill);
    for (const CPixelLine& ring : rings) {
        if (ring.empty()) {
            continue;
        }
        path.moveTo(ring.front());
        for (const QPointF& point : ring) {
            path.lineTo(point);
        }
        path.closeSubpath();
    }
    return path;
}

double ShorterExtent(const std::vector<CPixelLine>& rings)
{
    QRectF bounds;
    for (const CPixelLine& ring : rings) {
        bounds |= BoundsOf(ring);
    }
    return std::min(bounds.width(), bounds.height());
}

} // namespace

void CPictureSink::Fill(const std::vector<CPixelLine>& rings, const SFeatureFill& fill)
{
    if (fill.kind == EFeatureFill::Solid) {
        painter.Fill(PathOf(rings), colours.Area(fill.color));
    } else if (fill.kind == EFeatureFill::Pattern) {
        if (fill.hasBackground) {
            painter.Fill(PathOf(rings), colours.Area(fill.background));
        }
        Hatch(rings, fill);
    }
}

void CPictureSink::Hatch(const std::vector<CPixelLine>& rings, const SFeatureFill& fill)
{
    QPen pen(colours.Line(fill.color));
    pen.setWidthF(style.thinnest);
    pen.setCapStyle(Qt::FlatCap);
    for (const SHatchFamily& family : HatchFamilies(fill, view, ShorterExtent(rings))) {
        CPiecePainter pieces(painter, pen);
        if (!CutHatch(rings, family, budget, [&pieces](const QLineF& piece) { pieces.Add(piece); }))
        {
            painter.Fill(PathOf(rings), colours.Tint(fill.color));
            return;
        }
    }
}

} // namespace velorx

// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/FeatureTally.h"
#include "tools/velorx/render/PictureSink.h"

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QStringList>

namespace velorx::test {

/// A picture of 100 x 100 pixels that shows the plan from (0, 0) to (96, 96), so that a file unit is a
/// pixel, (0, 0) lies at the pixel (2, 98) and (0, 96) at (2, 2).
class CCanvas
{
public:
    explicit CCanvas(const SPictureStyle& style = {}, const QStringList& layers = {});

    /// The same, but it shows `plan`, a square.
    CCanvas(const SPictureStyle& style, const QStringList& layers, const SPlanBox& plan);

    IFeatureSink& Sink() { return sink; }

    /// Whether the paper shows at a place of the plan.
    bool IsPaper(double x, double y) const { return At(x, y) == paper; }

    /// The colour at a place of the plan.
    QColor At(double x, double y) const;

    /// How many pixels are not paper in the rectangle of the plan between two corners.
    int CountInk(double left, double bottom, double right, double top) const;
    int CountInk() const { return CountInk(-2, -2, 98, 98); }

    /// The rectangle of the plan around all that is not paper, to whole pixels.
    SPlanBox Ink() const;

    bool IsSimplified() const { return sink.IsSimplified(); }

    /// What the sink told the tally, one line each: "3 objects lie ...".
    QStringList Losses() const;

private:
    QImage image;
    QPainter painter;
    CPictureView view;
    CLayerChoice choice;
    CFeatureTally tally;
    CPictureSink sink;
    QColor paper;
};

/// A line on the layer "0".
SLineFeature Line(const CFeatureLine& points);

/// An area on the layer "0" without an outline, filled with red.
SAreaFeature RedArea(const std::vector<CFeatureLine>& rings);

/// A ring along the rectangle between two corners.
CFeatureLine Rectangle(double left, double bottom, double right, double top);

/// A text on the layer "0", 20 high.
STextFeature Text(const char* text, double x, double y);

} // namespace velorx::test

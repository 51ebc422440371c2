// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QRectF>
#include <QSize>

#include <vector>

namespace velorx {

/// A rectangle in the plan, file units, y upwards. Grows around what is added.
struct SPlanBox
{
    bool isEmpty = true;
    double left = 0.0;
    double bottom = 0.0;
    double right = 0.0;
    double top = 0.0;

    void Add(double x, double y);
    void Add(const SPlanBox& box);
    double Width() const { return right - left; }
    double Height() const { return top - bottom; }
};

/// Whether `value` can be drawn at all: it is finite, and so is what is computed from it.
bool IsDrawable(double value);

/// The way from file units to pixels of a picture, whose y runs downwards.
class CPictureView
{
public:
    /// Shows all of `box` in the middle of a picture of `size`, with a margin. A box without extent is
    /// given one.
    CPictureView(const SPlanBox& box, const QSize& size);

    /// The size, in pixels, of a picture that suits `box`: 1600 wide, and as high as it takes within
    /// limits.
    static QSize SuitableSize(const SPlanBox& box);

    QPointF Map(double x, double y) const
    {
        return {(x - centreX) * scale + middleX, (centreY - y) * scale + middleY};
    }

    /// `length` in file units as pixels.
    double Pixels(double length) const { return length * scale; }

    /// The picture, pixels.
    QRectF Frame() const { return {0.0, 0.0, 2 * middleX, 2 * middleY}; }

private:
    double scale; ///< Pixels of a file unit.
    double centreX;
    double centreY;
    double middleX;
    double middleY;
};

/// A chain of points of the picture, pixels.
using CPixelLine = std::vector<QPointF>;

} // namespace velorx

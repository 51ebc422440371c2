// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>

namespace VelorExchange::mif {

/// The bounds of points, grown as the union operator of `QRectF` grows them, with its rounding, by
/// rectangles of 1e-08 at each point: one of no size at all would be left out.
class CExtent
{
public:
    static constexpr double kPointSize = 1e-08;

    CExtent() = default;
    explicit CExtent(const QRectF& rect)
        : left(rect.x()), top(rect.y()), width(rect.width()), height(rect.height())
    {
    }

    void Add(double x, double y)
    {
        if (width == 0.0 && height == 0.0) {
            left = x;
            top = y;
            width = height = kPointSize;
        } else {
            Grow(left, width, x);
            Grow(top, height, y);
        }
    }

    QRectF Rect() const { return {left, top, width, height}; }

private:
    static void Grow(double& start, double& size, double point)
    {
        const double first = size < 0.0 ? start + size : start;
        const double last = size < 0.0 ? start : start + size;
        const double newLast = last < point + kPointSize ? point + kPointSize : last;
        start = point < first ? point : first;
        size = newLast - start;
    }

    double left = 0.0;
    double top = 0.0;
    double width = 0.0;
    double height = 0.0;
};

} // namespace VelorExchange::mif

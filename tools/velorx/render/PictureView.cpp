// SPDX-License-Identifier: MIT
#include "tools/velorx/render/PictureView.h"

#include <algorithm>
#include <cmath>

namespace velorx {

namespace {

constexpr double kUsualWidth = 1600.0;
constexpr double kLeastHeight = 200.0;
constexpr double kGreatestHeight = 6400.0;
constexpr double kEmptyHeight = 1200.0;
constexpr double kMargin = 0.02; // of the shorter side
constexpr double kFarthest = 1e100;

// What is smaller is lost between neighbouring numbers of this size.
double LeastExtent(const SPlanBox& box)
{
    constexpr double kFraction = 1e-12;
    const double farthest = std::max(
        {std::abs(box.left), std::abs(box.right), std::abs(box.top), std::abs(box.bottom), 1.0});
    return farthest * kFraction;
}

double ScaleFor(const SPlanBox& box, const QSize& size)
{
    const double width = size.width();
    const double height = size.height();
    const double margin = std::min(width, height) * kMargin;
    const double least = LeastExtent(box);
    if (box.isEmpty || std::max(box.Width(), box.Height()) < least) {
        return 1.0;
    }
    return std::min((width - 2 * margin) / std::max(box.Width(), least),
                    (height - 2 * margin) / std::max(box.Height(), least));
}

} // namespace

bool IsDrawable(double value)
{
    return std::abs(value) < kFarthest;
}

void SPlanBox::Add(double x, double y)
{
    left = isEmpty ? x : std::min(left, x);
    right = isEmpty ? x : std::max(right, x);
    bottom = isEmpty ? y : std::min(bottom, y);
    top = isEmpty ? y : std::max(top, y);
    isEmpty = false;
}

void SPlanBox::Add(const SPlanBox& box)
{
    if (!box.isEmpty) {
        Add(box.left, box.bottom);
        Add(box.right, box.top);
    }
}

CPictureView::CPictureView(const SPlanBox& box, const QSize& size)
    : scale(ScaleFor(box, size)), centreX(box.left / 2 + box.right / 2),
      centreY(box.bottom / 2 + box.top / 2), middleX(size.width() / 2.0),
      middleY(size.height() / 2.0)
{
}

QSize CPictureView::SuitableSize(const SPlanBox& box)
{
    double height = kEmptyHeight;
    if (!box.isEmpty && std::max(box.Width(), box.Height()) >= LeastExtent(box)) {
        // The margin is a part of the shorter side, so the picture is a little off the box's shape.
        height = kUsualWidth * box.Height() / std::max(box.Width(), LeastExtent(box));
    }
    height = std::clamp(std::ceil(height), kLeastHeight, kGreatestHeight);
    return {static_cast<int>(kUsualWidth), static_cast<int>(height)};
}

} // namespace velorx

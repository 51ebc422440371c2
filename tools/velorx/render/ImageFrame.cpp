// SPDX-License-Identifier: MIT
#include "tools/velorx/render/ImageFrame.h"

namespace velorx {

CFeatureLine ImageRing(const SImageFeature& image)
{
    CFeatureLine ring;
    for (const VelorExchange::CPoint2D& point : image.clip) {
        ring.push_back({point.x, point.y, 0.0});
    }
    if (!ring.empty()) {
        return ring;
    }
    constexpr double kCorners[][2] = {{0, 0}, {1, 0}, {1, 1}, {0, 1}};
    for (const auto& [along, across] : kCorners) {
        ring.push_back({image.origin.x + along * image.along.x + across * image.across.x,
                        image.origin.y + along * image.along.y + across * image.across.y, 0.0});
    }
    return ring;
}

} // namespace velorx

// SPDX-License-Identifier: MIT
#include "VelorExchange/mif/Extent_p.h"

#include <cmath>
#include <random>

using namespace VelorExchange::mif;

namespace {

void ExpectGrowsAsQRectF(std::mt19937& random, QRectF expected)
{
    CExtent extent(expected);
    for (int i = 0; i < 20; ++i) {
        // Values up to where 1e-08 is lost in the rounding.
        const double scale = std::pow(10.0, static_cast<double>(random() % 14));
        const double x = (static_cast<double>(random()) / 2147483648.0 - 1.0) * scale;
        const double y = random() % 4 == 0 ? x : (static_cast<double>(random() % 5) - 2.0) * scale;
        extent.Add(x, y);
        expected |= QRectF(x, y, CExtent::kPointSize, CExtent::kPointSize);
        const QRectF rect = extent.Rect();
        ASSERT_EQ(rect.x(), expected.x());
        ASSERT_EQ(rect.y(), expected.y());
        ASSERT_EQ(rect.width(), expected.width());
        ASSERT_EQ(rect.height(), expected.height());
    }
}

} // namespace

TEST(Extent, GrowsAsTheUnionOfQRectF)
{
    std::mt19937 random(29);
    for (int i = 0; i < 2000; ++i) {
        ExpectGrowsAsQRectF(random, QRectF());
    }
}

TEST(Extent, StartsFromAnyRectangleAsQRectF)
{
    std::mt19937 random(31);
    for (int i = 0; i < 2000; ++i) {
        const auto value = [&random] { return static_cast<double>(random() % 7) - 3.0; };
        ExpectGrowsAsQRectF(random, QRectF(value(), value(), value(), value()));
    }
}

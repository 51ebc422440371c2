// SPDX-License-Identifier: MIT
#include "tools/velorx/render/Dashes.h"

#include <algorithm>
#include <cmath>

namespace velorx {

namespace {

constexpr double kLeastPeriod = 2.0;
constexpr double kDot = 1.0;
// Beyond it neighbouring numbers are too far apart to count dashes.
constexpr double kFarthest = 1e12;

} // namespace

bool SPieceBudget::Take(double count)
{
    if (count > static_cast<double>(left)) {
        isExceeded = true;
        return false;
    }
    left -= static_cast<qint64>(count);
    return true;
}

CDashes::CDashes(const std::vector<double>& lengths, double scale)
{
    bool hasGap = false;
    for (const double length : lengths) {
        const double pixels = std::abs(length) * scale;
        if (length >= 0) {
            dashes.emplace_back(period, period + std::max(pixels, kDot));
        }
        hasGap = hasGap || length < 0;
        period += pixels;
    }
    if (!hasGap || !(period >= kLeastPeriod && period < kFarthest)) {
        dashes.clear();
    }
}

double CDashes::Ink() const
{
    if (IsSolid()) {
        return 1.0;
    }
    double drawn = 0.0;
    for (const auto& [begin, end] : dashes) {
        drawn += end - begin;
    }
    return std::min(drawn / period, 1.0);
}

void CDashes::Cut(const QLineF& zeroAndAlong, double from, double to, SPieceBudget& budget,
                  const CTakePiece& take) const
{
    const QPointF zero = zeroAndAlong.p1();
    const QPointF along = zeroAndAlong.p2();
    const auto hand = [&](double begin, double end) {
        take({zero + along * begin, zero + along * end});
    };
    const double farthest = std::max(std::abs(from), std::abs(to));
    const double pieces = static_cast<double>(dashes.size()) * ((to - from) / period + 1);
    if (IsSolid() || farthest > kFarthest || !budget.Take(pieces)) {
        hand(from, to);
        return;
    }
    const auto firstPeriod = static_cast<qint64>(std::floor(from / period));
    const auto lastPeriod = static_cast<qint64>(std::floor(to / period));
    for (qint64 number = firstPeriod; number <= lastPeriod; ++number) {
        const double start = static_cast<double>(number) * period;
        for (const auto& [begin, end] : dashes) {
            const double first = std::max(start + begin, from);
            const double last = std::min(start + end, to);
            if (first < last) {
                hand(first, last);
            }
        }
    }
}

} // namespace velorx

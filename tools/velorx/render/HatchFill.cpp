// SPDX-License-Identifier: MIT
#include "tools/velorx/render/HatchFill.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace velorx {

namespace {

constexpr double kNoGap = 1e-9;
constexpr double kFarthest = 1e15; // beyond it the numbers of lines are not exact
constexpr double kMostCrossings = 1'000'000;

/// Where a line of the family meets an edge of a ring.
struct SCrossing
{
    qint64 line; ///< Its number.
    double at; ///< How far along the line, from its own zero.
};

double NumberAt(const SHatchFamily& family, const QPointF& point)
{
    const QPointF way = point - family.base;
    return (family.along.x() * way.y() - family.along.y() * way.x()) / family.Gap();
}

template <class TTake>
void ForEachEdge(const std::vector<CPixelLine>& rings, const TTake& take)
{
    for (const CPixelLine& ring : rings) {
        for (std::size_t i = 0; i < ring.size(); ++i) {
            take(ring[i], ring[i + 1 < ring.size() ? i + 1 : 0]);
        }
    }
}

// How many crossings there will be, roughly; infinite where lines cannot be counted.
double CountCrossings(const std::vector<CPixelLine>& rings, const SHatchFamily& family)
{
    double count = 0.0;
    ForEachEdge(rings, [&](const QPointF& from, const QPointF& to) {
        const double first = NumberAt(family, from);
        const double last = NumberAt(family, to);
        const bool isExact = std::abs(first) < kFarthest && std::abs(last) < kFarthest;
        count += isExact ? std::abs(last - first) : HUGE_VAL;
    });
    return count;
}

// A line through a vertex meets one of its two edges, or both where the ring turns back.
void AddCrossings(const SHatchFamily& family, const QPointF& from, const QPointF& to,
                  std::vector<SCrossing>& crossings)
{
    const double first = NumberAt(family, from);
    const double last = NumberAt(family, to);
    const auto end = static_cast<qint64>(std::ceil(std::max(first, last)));
    for (auto line = static_cast<qint64>(std::ceil(std::min(first, last))); line < end; ++line) {
        const auto number = static_cast<double>(line);
        const QPointF point = from + (to - from) * ((number - first) / (last - first));
        const QPointF way = point - (family.base + family.step * number);
        crossings.push_back({line, QPointF::dotProduct(way, family.along)});
    }
}

std::vector<SCrossing> Crossings(const std::vector<CPixelLine>& rings, const SHatchFamily& family)
{
    std::vector<SCrossing> crossings;
    ForEachEdge(rings, [&](const QPointF& from, const QPointF& to) {
        AddCrossings(family, from, to, crossings);
    });
    std::sort(crossings.begin(), crossings.end(), [](const SCrossing& a, const SCrossing& b) {
        return a.line != b.line ? a.line < b.line : a.at < b.at;
    });
    return crossings;
}

} // namespace

bool CutHatch(const std::vector<CPixelLine>& rings, SHatchFamily family, SPieceBudget& budget,
              const CTakePiece& take)
{
    if (std::abs(family.Gap()) < kNoGap) {
        return true; // all its lines are one
    }
    const double count = CountCrossings(rings, family);
    const double thinning = std::ceil(count / kMostCrossings);
    if (!std::isfinite(count) || !budget.Take(count / std::max(thinning, 1.0))) {
        budget.isExceeded = true;
        return false;
    }
    if (thinning > 1) {
        family.step *= thinning;
    }
    const std::vector<SCrossing> crossings = Crossings(rings, family);
    for (std::size_t i = 0; i + 1 < crossings.size(); i += 2) {
        const SCrossing& in = crossings[i];
        const SCrossing& out = crossings[i + 1];
        if (in.line == out.line && in.at < out.at) {
            family.dashes.Cut(
                {family.base + family.step * static_cast<double>(in.line), family.along}, in.at,
                out.at, budget, take);
        }
    }
    return true;
}

} // namespace velorx

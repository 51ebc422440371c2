// SPDX-License-Identifier: MIT
#include "tools/velorx/features/AreaParts.h"

#include <algorithm>
#include <limits>

namespace velorx {

using VelorExchange::CPoint3D;

namespace {

struct SBox
{
    explicit SBox(const CFeatureLine& ring)
    {
        for (const CPoint3D& p : ring) {
            left = std::min(left, p.x);
            right = std::max(right, p.x);
            bottom = std::min(bottom, p.y);
            top = std::max(top, p.y);
        }
    }

    bool Holds(const SBox& other) const
    {
        return left <= other.left && other.right <= right && bottom <= other.bottom
            && other.top <= top;
    }

    double left = std::numeric_limits<double>::infinity();
    double right = -std::numeric_limits<double>::infinity();
    double bottom = std::numeric_limits<double>::infinity();
    double top = -std::numeric_limits<double>::infinity();
};

constexpr std::size_t kNone = std::numeric_limits<std::size_t>::max();

enum class ESide { Outside, Edge, Inside };

// Which side of the edge from `a` to `b` the point is on: positive on its left.
double Turn(const CPoint3D& a, const CPoint3D& b, const CPoint3D& p)
{
    return (b.x - a.x) * (p.y - a.y) - (b.y - a.y) * (p.x - a.x);
}

ESide SideOf(const CFeatureLine& ring, const CPoint3D& p)
{
    bool isInside = false;
    for (std::size_t i = 0, j = ring.size() - 1; i < ring.size(); j = i++) {
        const CPoint3D& a = ring[j];
        const CPoint3D& b = ring[i];
        const double turn = Turn(a, b, p);
        const bool isBeside = std::min(a.x, b.x) <= p.x && p.x <= std::max(a.x, b.x)
            && std::min(a.y, b.y) <= p.y && p.y <= std::max(a.y, b.y);
        if (turn == 0.0 && isBeside) {
            return ESide::Edge;
        }
        if ((a.y > p.y) != (b.y > p.y) && (turn > 0.0) == (b.y > a.y)) {
            isInside = !isInside;
        }
    }
    return isInside ? ESide::Inside : ESide::Outside;
}

// Rings may touch: the first vertex off the other ring's edge decides, and where all lie on it, the first
// edge's middle.
bool LiesIn(const CFeatureLine& inner, const CFeatureLine& outer)
{
    for (const CPoint3D& p : inner) {
        const ESide side = SideOf(outer, p);
        if (side != ESide::Edge) {
            return side == ESide::Inside;
        }
    }
    for (std::size_t i = 0, j = inner.size() - 1; i < inner.size(); j = i++) {
        const CPoint3D middle = {(inner[i].x + inner[j].x) / 2, (inner[i].y + inner[j].y) / 2, 0.0};
        const ESide side = SideOf(outer, middle);
        if (side != ESide::Edge) {
            return side == ESide::Inside;
        }
    }
    return false;
}

} // namespace

std::vector<SAreaPart> AreaParts(const std::vector<CFeatureLine>& rings)
{
    const std::vector<SBox> boxes(rings.begin(), rings.end());
    std::vector<std::vector<std::size_t>> around(rings.size());
    for (std::size_t i = 0; i < rings.size(); ++i) {
        for (std::size_t j = 0; j < rings.size(); ++j) {
            if (i != j && boxes[j].Holds(boxes[i]) && LiesIn(rings[i], rings[j])) {
                around[i].push_back(j);
            }
        }
    }
    std::vector<SAreaPart> parts;
    std::vector<std::size_t> partOf(rings.size(), kNone);
    for (std::size_t i = 0; i < rings.size(); ++i) {
        if (around[i].size() % 2 == 0) {
            partOf[i] = parts.size();
            parts.push_back({&rings[i], {}});
        }
    }
    for (std::size_t i = 0; i < rings.size(); ++i) {
        if (around[i].size() % 2 == 0) {
            continue;
        }
        // The innermost of those around a hole lies in all the others. Rings that cross may have none.
        std::size_t outline = kNone;
        for (const std::size_t j : around[i]) {
            if (partOf[j] != kNone
                && (outline == kNone || around[j].size() > around[outline].size())) {
                outline = j;
            }
        }
        outline == kNone ? parts.push_back({&rings[i], {}})
                         : parts[partOf[outline]].holes.push_back(&rings[i]);
    }
    return parts;
}

} // namespace velorx

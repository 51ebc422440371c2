// SPDX-License-Identifier: MIT
#include "tools/velorx/features/FiniteFeature.h"

#include <algorithm>
#include <cmath>

namespace velorx {

using VelorExchange::CPoint2D;
using VelorExchange::CPoint3D;

namespace {

template <class... TNumbers>
bool AreFinite(TNumbers... numbers)
{
    return (std::isfinite(numbers) && ...);
}

bool IsFinitePoint(const CPoint3D& p)
{
    return AreFinite(p.x, p.y, p.z);
}

bool IsFinitePlanPoint(const CPoint2D& p)
{
    return AreFinite(p.x, p.y);
}

bool IsFiniteLine(const CFeatureLine& line)
{
    return std::all_of(line.begin(), line.end(), IsFinitePoint);
}

bool IsFiniteStroke(const SFeatureStroke& stroke)
{
    return AreFinite(stroke.width, stroke.planWidth);
}

} // namespace

bool IsFinite(const SPointFeature& point)
{
    return IsFinitePoint(point.position) && AreFinite(point.symbol.size, point.symbol.angle);
}

bool IsFinite(const SLineFeature& line)
{
    return IsFiniteLine(line.points) && IsFiniteStroke(line.stroke);
}

bool IsFinite(const SAreaFeature& area)
{
    return std::all_of(area.rings.begin(), area.rings.end(), IsFiniteLine)
        && IsFiniteStroke(area.stroke) && AreFinite(area.fill.angle);
}

bool IsFinite(const STextFeature& text)
{
    return IsFinitePoint(text.position)
        && AreFinite(text.height, text.rotation, text.widthFactor, text.slant, text.columnWidth);
}

bool IsFinite(const SImageFeature& image)
{
    return IsFinitePlanPoint(image.origin) && IsFinitePlanPoint(image.along)
        && IsFinitePlanPoint(image.across)
        && AreFinite(image.widthPixels, image.heightPixels, image.rotation)
        && std::all_of(image.clip.begin(), image.clip.end(), IsFinitePlanPoint);
}

} // namespace velorx

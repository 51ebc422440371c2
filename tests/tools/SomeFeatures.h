// SPDX-License-Identifier: MIT
// Features as tests want them, and what they look for.
#pragma once

#include "tools/velorx/features/Feature.h"

#include <string>
#include <utility>

namespace velorx::test {

template <class TFeature>
TFeature On(const char* layer)
{
    TFeature feature;
    feature.kind = "thing";
    feature.layer = QString::fromUtf8(layer);
    return feature;
}

inline SLineFeature Line(CFeatureLine points)
{
    auto line = On<SLineFeature>("Roads");
    line.points = std::move(points);
    return line;
}

inline SAreaFeature Area(std::vector<CFeatureLine> rings)
{
    auto area = On<SAreaFeature>("Houses");
    area.rings = std::move(rings);
    return area;
}

inline STextFeature Text(const QString& words)
{
    auto text = On<STextFeature>("Names");
    text.text = words;
    text.position = {10, 20, 0};
    text.height = 2.5;
    return text;
}

inline CFeatureLine Square(double from, double to)
{
    return {{from, from, 0}, {to, from, 0}, {to, to, 0}, {from, to, 0}};
}

inline CFeatureAttributes Attributes(std::vector<SFeatureAttribute> attributes)
{
    return std::make_shared<const std::vector<SFeatureAttribute>>(std::move(attributes));
}

inline bool Has(const std::string& text, const char* part)
{
    return text.find(part) != std::string::npos;
}

} // namespace velorx::test

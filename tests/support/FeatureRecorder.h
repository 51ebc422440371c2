// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/IFeatureSink.h"

#include <vector>

namespace velorx::test {

/// A sink that keeps all it takes.
class CFeatureRecorder final : public IFeatureSink
{
public:
    void TakeHead(const SFeatureHead& record) override { heads.push_back(record); }
    void TakeLayer(const SFeatureLayer& layer) override { layers.push_back(layer); }
    const char* Take(const SPointFeature& point) override
    {
        points.push_back(point);
        return "point";
    }
    const char* Take(const SLineFeature& line) override
    {
        lines.push_back(line);
        return "line";
    }
    const char* Take(const SAreaFeature& area) override
    {
        areas.push_back(area);
        return "area";
    }
    const char* Take(const STextFeature& text) override
    {
        texts.push_back(text);
        return "text";
    }
    const char* Take(const SImageFeature& image) override
    {
        images.push_back(image);
        return "image";
    }

    std::vector<SFeatureHead> heads;
    std::vector<SFeatureLayer> layers;
    std::vector<SPointFeature> points;
    std::vector<SLineFeature> lines;
    std::vector<SAreaFeature> areas;
    std::vector<STextFeature> texts;
    std::vector<SImageFeature> images;
};

} // namespace velorx::test

// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/IFeatureSink.h"
#include "tools/velorx/render/LayerChoice.h"
#include "tools/velorx/render/PictureView.h"

#include <map>
#include <vector>

namespace velorx {

/// Finds out what a picture has to show. A few objects that lie by far farther out than all others do not
/// count, so that one lost point does not make a dot of the drawing; neither do lines without an end.
/// Holds some thousand rectangles, whatever the size of the drawing.
class CPictureExtents final : public IFeatureSink
{
public:
    explicit CPictureExtents(CLayerChoice& layerChoice) : layers(layerChoice) { }

    void TakeLayer(const SFeatureLayer& layer) override { layers.Note(layer); }
    const char* Take(const SPointFeature& point) override;
    const char* Take(const SLineFeature& line) override;
    const char* Take(const SAreaFeature& area) override;
    const char* Take(const STextFeature& text) override;
    const char* Take(const SImageFeature& image) override;

    /// How many letters texts have that are drawn.
    qint64 Letters() const { return letters; }

    /// Once all has been taken. Empty if there is nothing to show.
    SPlanBox Box();

private:
    /// Objects whose distance from the middle is about the same.
    struct SRange
    {
        SPlanBox box;
        double count = 0.0;
    };

    bool IsDrawn(const SFeature& feature);
    void Add(const SPlanBox& box);
    void FindMiddle();
    void Sort(const SPlanBox& box);

    CLayerChoice& layers;
    qint64 letters = 0;
    std::vector<SPlanBox> first; ///< Until the middle is known.
    bool hasMiddle = false;
    double middleX = 0.0;
    double middleY = 0.0;
    std::map<int, SRange> ranges; ///< By the power of two below the distance.
};

} // namespace velorx

// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/IFeatureSink.h"
#include "tools/velorx/render/Dashes.h"
#include "tools/velorx/render/LayerChoice.h"
#include "tools/velorx/render/PathPainter.h"
#include "tools/velorx/render/PictureColours.h"
#include "tools/velorx/render/PictureView.h"

#include <QPen>

#include <vector>

class QPainter;

namespace velorx {

class CFeatureTally;
class CTextLayout;

/// How a picture is drawn.
struct SPictureStyle
{
    quint32 background = 0xFFFFFFFF; ///< 0xAARRGGBB.
    double thinnest = 1.0; ///< Width of the thinnest line, pixels.
    double mostWeight = 0.0; ///< Of `Weight`, beyond which nothing is drawn; 0 for no limit.
    bool keepsText = false; ///< Texts are written as such, not as outlines of letters.
};

/// Draws features in the order in which they come, each as it would be seen: on its layer, with its
/// colours, dashes and fills. Holds nothing but the layers.
class CPictureSink final : public IFeatureSink
{
public:
    /// All arguments outlive the sink. `painter` has pixels as its units and is active.
    CPictureSink(QPainter& picturePainter, const CPictureView& pictureView,
                 const SPictureStyle& pictureStyle, CLayerChoice& layerChoice,
                 CFeatureTally& featureTally);

    void TakeLayer(const SFeatureLayer& layer) override { layers.Note(layer); }
    const char* Take(const SPointFeature& point) override;
    const char* Take(const SLineFeature& line) override;
    const char* Take(const SAreaFeature& area) override;
    const char* Take(const STextFeature& text) override;
    const char* Take(const SImageFeature& image) override;

    /// How many features were drawn.
    qint64 Drawn() const { return drawn; }

    /// About how many characters it takes to write the picture down.
    double Weight() const { return painter.Weight(); }

    /// Whether lines are drawn without their dashes, or patterns as tints, for want of pieces.
    bool IsSimplified() const { return budget.isExceeded; }

    /// Whether the picture has grown beyond `SPictureStyle::mostWeight`.
    bool IsOverfull() const { return style.mostWeight > 0 && Weight() > style.mostWeight; }

private:
    bool IsAsked(const SFeature& feature);
    bool IsInside(const SFeature& feature, const CPixelLine& corners);
    CPixelLine Map(const CFeatureLine& points) const;
    QPen PenFor(const SFeatureStroke& stroke) const;
    CDashes DashesOf(const SFeatureStroke& stroke) const;
    void Stroke(const CPixelLine& points, const SFeatureStroke& stroke);
    void Fill(const std::vector<CPixelLine>& rings, const SFeatureFill& fill);
    void Hatch(const std::vector<CPixelLine>& rings, const SFeatureFill& fill);
    void Write(const CTextLayout& layout, const QColor& colour, bool isUnderlined);
    void Label(const SImageFeature& image, const CPixelLine& ring);
    const char* Done(const char* as);

    CPathPainter painter;
    const CPictureView& view;
    SPictureStyle style;
    CPictureColours colours;
    CLayerChoice& layers;
    CFeatureTally& tally;
    SPieceBudget budget;
    qint64 drawn = 0;
};

} // namespace velorx

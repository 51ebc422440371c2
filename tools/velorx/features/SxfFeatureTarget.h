// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/AreaParts.h"
#include "tools/velorx/features/IFeatureTarget.h"
#include "tools/velorx/features/SxfOutput.h"
#include "tools/velorx/features/SxfSemantics.h"

#include <memory>

namespace velorx {

class CFeatureTally;

/// Writes features as an SXF map. Features without a classifier code get drawings of their own; an area of
/// the format has no outline, so that the outline follows it as a line with the same contours. Lengths on
/// the ground become lengths on paper by the scale of the map: that of the options, else the source's, else
/// 1 to 1000.
class CSxfFeatureTarget final : public IFeatureTarget
{
public:
    /// `counts` outlives this object.
    CSxfFeatureTarget(const STargetOptions& targetOptions, CFeatureTally& counts, bool isText);

    void TakeHead(const SFeatureHead& head) override;
    void TakeLayer(const SFeatureLayer& layer) override;
    const char* Take(const SPointFeature& point) override;
    const char* Take(const SLineFeature& line) override;
    const char* Take(const SAreaFeature& area) override;
    const char* Take(const STextFeature& text) override;
    const char* Take(const SImageFeature& image) override;
    QString Finish() override;
    QString Log() const override { return output.Log(); }

private:
    void FillHead(const SFeature& feature, VelorExchange::pnr::CBaseObject& object);
    bool IsDrawn(const SFeature& feature, const VelorExchange::pnr::CBaseObject& object,
                 bool hasLooks);
    std::unique_ptr<VelorExchange::pnr::PnrLineImage> Drawing(const SFeatureStroke& stroke,
                                                              const QString& layer);
    const char* WriteArea(const SAreaFeature& area, const SAreaPart& part);
    const char* WriteOutline(const SAreaFeature& area, const SAreaPart& part);
    quint32 FillColour(const SAreaFeature& area);
    void FillLetters(const STextFeature& text, VelorExchange::pnr::PnrTextImage& image);

    STargetOptions options;
    CFeatureTally& tally;
    CSxfOutput output;
    CSxfSemantics semantics;
};

} // namespace velorx

// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/Feature.h"
#include "tools/velorx/formats/SxfReading.h"

#include <optional>

namespace velorx {

class CFeatureTally;
class IFeatureSink;

/// The further contours of a line, each a line of its own.
constexpr char kSxfLinePart[] = "Line, further contour";
/// A line that is the outline of the area ahead of it.
constexpr char kSxfOutline[] = "Line, outline of an area";
/// The further contours of a point, each a point of its own.
constexpr char kSxfPointPart[] = "Point, further contour";

/// Makes features of the objects of a map. An area waits for the object behind it, which may be its outline.
class CSxfFeatures final : public ISxfHost
{
public:
    /// Both outlive this object. `scaleDenominator` is positive.
    CSxfFeatures(IFeatureSink& target, CFeatureTally& counts, int scaleDenominator)
        : sink(target), tally(counts), scale(scaleDenominator)
    {
    }

    void Take(VelorExchange::pnr::CLineObject& line) override;
    void Take(VelorExchange::pnr::CSquareObject& area) override;
    void Take(VelorExchange::pnr::CPointObject& point) override;
    void Take(VelorExchange::pnr::CTextObject& text) override;
    void TakeFrame() override;

    /// Call it behind the last object.
    void Finish();

private:
    bool IsOutline(const VelorExchange::pnr::CLineObject& line) const;
    bool FillRings(SAreaFeature& feature, const VelorExchange::pnr::CSquareObject& area);
    const char* HandOnPending();
    void FillHead(SFeature& feature, const VelorExchange::pnr::CBaseObject& object);
    CFeatureAttributes Attributes(const VelorExchange::pnr::CBaseObject& object);
    void HandOnPart(STextFeature& feature, const VelorExchange::pnr::CTextObject& text,
                    std::size_t part);
    void FillLetters(STextFeature& feature, const VelorExchange::pnr::CTextObject& text);

    IFeatureSink& sink;
    CFeatureTally& tally;
    int scale;
    std::optional<SAreaFeature> pending; ///< Read and not yet handed on.
};

} // namespace velorx

// SPDX-License-Identifier: MIT
#include "tools/velorx/features/FeatureFormats.h"

#include "tools/velorx/features/DxfFeatureSource.h"
#include "tools/velorx/features/DxfFeatureTarget.h"
#include "tools/velorx/features/FeatureTally.h"
#include "tools/velorx/features/MifFeatureSource.h"
#include "tools/velorx/features/MifFeatureTarget.h"
#include "tools/velorx/features/SxfFeatureSource.h"
#include "tools/velorx/features/SxfFeatureTarget.h"

#include <algorithm>
#include <vector>

namespace velorx {

namespace {

struct SSourceMaker
{
    std::string_view family;
    std::unique_ptr<IFeatureSource> (*make)(const QString& path, const SReadingOptions& options);
};

struct STargetMaker
{
    std::string_view family;
    std::unique_ptr<IFeatureTarget> (*make)(const STargetOptions& options, CFeatureTally& tally);
};

template <class T>
std::unique_ptr<IFeatureSource> Source(const QString& path, const SReadingOptions& options)
{
    return std::make_unique<T>(path, options);
}

template <class T>
std::unique_ptr<IFeatureTarget> Target(const STargetOptions& options, CFeatureTally& tally)
{
    return std::make_unique<T>(options, tally);
}

template <bool isText>
std::unique_ptr<IFeatureTarget> SxfTarget(const STargetOptions& options, CFeatureTally& tally)
{
    return std::make_unique<CSxfFeatureTarget>(options, tally, isText);
}

const std::vector<SSourceMaker>& Sources()
{
    static const std::vector<SSourceMaker> sources = {
        {"DXF", Source<CDxfFeatureSource>},
        {"SXF", Source<CSxfFeatureSource>},
        {"MIF", Source<CMifFeatureSource>},
    };
    return sources;
}

const std::vector<STargetMaker>& Targets()
{
    static const std::vector<STargetMaker> targets = {
        {"DXF", Target<CDxfFeatureTarget>},
        {"SXF", SxfTarget<false>},
        {"SXF text", SxfTarget<true>},
        {"MIF", Target<CMifFeatureTarget>},
    };
    return targets;
}

template <class TMakers>
auto FindMaker(const TMakers& makers, std::string_view family)
{
    const auto found = std::find_if(makers.begin(), makers.end(),
                                    [family](const auto& maker) { return maker.family == family; });
    return found == makers.end() ? nullptr : found->make;
}

} // namespace

std::unique_ptr<IFeatureSource> MakeFeatureSource(std::string_view family, const QString& path,
                                                  const SReadingOptions& options)
{
    const auto make = FindMaker(Sources(), family);
    return make != nullptr ? make(path, options) : nullptr;
}

std::unique_ptr<IFeatureTarget>
MakeFeatureTarget(std::string_view family, const STargetOptions& options, CFeatureTally& tally)
{
    const auto make = FindMaker(Targets(), family);
    return make != nullptr ? make(options, tally) : nullptr;
}

} // namespace velorx

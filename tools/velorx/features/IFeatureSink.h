// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/Feature.h"

namespace velorx {

/// Takes a stream of features, in the order in which they are drawn. Features live for the call only.
///
/// The operations for features return what the target calls the object that was written, a literal such
/// as "Pline"; null if nothing was written, and then the sink has told the tally what was lost.
class IFeatureSink
{
public:
    IFeatureSink() = default;
    IFeatureSink(const IFeatureSink&) = delete;
    IFeatureSink(IFeatureSink&&) = delete;
    IFeatureSink& operator=(const IFeatureSink&) = delete;
    IFeatureSink& operator=(IFeatureSink&&) = delete;
    virtual ~IFeatureSink() = default;

    /// The first call.
    virtual void TakeHead(const SFeatureHead& /*head*/) { }

    /// A layer, ahead of its features. Not every layer of a feature is announced.
    virtual void TakeLayer(const SFeatureLayer& /*layer*/) { }

    virtual const char* Take(const SPointFeature& point) = 0;
    virtual const char* Take(const SLineFeature& line) = 0;
    virtual const char* Take(const SAreaFeature& area) = 0;
    virtual const char* Take(const STextFeature& text) = 0;
    virtual const char* Take(const SImageFeature& image) = 0;
};

} // namespace velorx

// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/records/IDXFProgress.h"

#include <QString>

namespace velorx {

class CFeatureTally;
class IFeatureSink;

/// How a source is to be read.
struct SReadingOptions
{
    double chord = 0.01; ///< Curves become chords that are off by no more than this, file units.
    VelorExchange::dxf::IDXFProgress* progress = nullptr; ///< Not owned, can be null.
};

/// A file that can be read as a stream of features, any number of times. Memory follows the largest
/// object (of a drawing: and its blocks), not the file.
class IFeatureSource
{
public:
    IFeatureSource() = default;
    IFeatureSource(const IFeatureSource&) = delete;
    IFeatureSource(IFeatureSource&&) = delete;
    IFeatureSource& operator=(const IFeatureSource&) = delete;
    IFeatureSource& operator=(IFeatureSource&&) = delete;
    virtual ~IFeatureSource() = default;

    /// Reads the whole file. What was met and what could not be handed on goes to `tally`. Returns an
    /// error in words, or an empty string for success; what was handed on before an error stays so.
    virtual QString Read(IFeatureSink& sink, CFeatureTally& tally) = 0;
};

} // namespace velorx

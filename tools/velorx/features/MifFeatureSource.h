// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/IFeatureSource.h"

#include <QString>

namespace velorx {

/// A MIF/MID pair as a stream of features. The layer is the name of the pair, or what the Char column
/// LAYER tells. Memory follows the largest object, and the number of layers.
class CMifFeatureSource final : public IFeatureSource
{
public:
    /// `path` is the ".mif", as `PathFromBytes` makes it.
    CMifFeatureSource(QString path, const SReadingOptions& options);

    QString Read(IFeatureSink& sink, CFeatureTally& tally) override;

private:
    const QString path;
    const SReadingOptions options;
};

} // namespace velorx

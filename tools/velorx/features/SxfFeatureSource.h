// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/IFeatureSource.h"

#include <QString>

namespace velorx {

/// An SXF map of either form as a stream of features. Lengths on paper become lengths on the ground by the
/// scale of the map, 1 to 1000 where it tells none.
class CSxfFeatureSource final : public IFeatureSource
{
public:
    CSxfFeatureSource(QString file, const SReadingOptions& readingOptions);

    QString Read(IFeatureSink& sink, CFeatureTally& tally) override;

private:
    QString path;
    SReadingOptions options;
};

} // namespace velorx

// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/IFeatureSource.h"

#include <QString>

namespace velorx {

/// A text drawing as a stream of features. Memory holds its blocks, and grows with the number of names.
class CDxfFeatureSource final : public IFeatureSource
{
public:
    CDxfFeatureSource(QString file, const SReadingOptions& how)
        : path(std::move(file)), options(how)
    {
    }

    QString Read(IFeatureSink& sink, CFeatureTally& tally) override;

private:
    QString path;
    SReadingOptions options;
};

} // namespace velorx

// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/IFeatureSource.h"
#include "tools/velorx/features/IFeatureTarget.h"

#include <QString>

#include <memory>
#include <string_view>

namespace velorx {

class CFeatureTally;

/// A source for the file `path`, which can be opened and is of the family `family`; null if there is
/// none for it.
std::unique_ptr<IFeatureSource> MakeFeatureSource(std::string_view family, const QString& path,
                                                  const SReadingOptions& options);

/// A target of the family `family`, whose losses go to `tally`, which outlives it; null if there is none
/// for it.
std::unique_ptr<IFeatureTarget>
MakeFeatureTarget(std::string_view family, const STargetOptions& options, CFeatureTally& tally);

} // namespace velorx

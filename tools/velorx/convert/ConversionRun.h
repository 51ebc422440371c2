// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/convert/Conversion.h"
#include "tools/velorx/convert/ConversionPlan.h"
#include "tools/velorx/convert/Temporaries.h"

#include <functional>
#include <string>
#include <vector>

namespace velorx {

/// How all files of a run are converted.
struct SConversionSettings
{
    SConversionOptions options;
    bool mayReplace = false; ///< Targets that exist.
    bool isTrial = false; ///< Leaves no target.
    int threads = 1; ///< At most so many files at once; 1 or more.
};

/// What became of one file.
struct SConvertedFile
{
    std::string source; ///< As the shell handed it over.
    std::string target; ///< As the shell would hand it over.
    CConversionReport report; ///< As far as it came.
    std::string error; ///< In words; empty for success.
};

/// Converts one file. `progress` can be null.
SConvertedFile ConvertFile(const SPlannedFile& file, const STargetFamily& family,
                           const SConversionSettings& settings, CTemporaries& temporaries,
                           VelorExchange::dxf::IDXFProgress* progress);

/// Converts the files of a plan, in any order, and returns what became of them in the plan's. What one of them
/// comes to does not depend on the others. `onDone` is called after each, on any thread but never twice
/// at a time.
std::vector<SConvertedFile> ConvertFiles(const SConversionPlan& plan,
                                         const SConversionSettings& settings,
                                         CTemporaries& temporaries,
                                         const std::function<void()>& onDone);

} // namespace velorx

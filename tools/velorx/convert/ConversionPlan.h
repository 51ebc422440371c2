// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/convert/ITarget.h"
#include "tools/velorx/convert/TargetFamily.h"

#include <string>
#include <vector>

namespace velorx {

/// One file to convert. Paths are as the shell hands them over.
struct SPlannedFile
{
    std::string source;
    std::string target;
    ETargetKind targetKind = ETargetKind::File;
    bool isInNewFolder = false; ///< The folder of the target has to be made first.
    std::string problem; ///< Why it is not to be converted; empty if it is.
};

/// What a command line asks for.
struct SConversionPlan
{
    const STargetFamily* family = nullptr; ///< Of all targets.
    std::string folder; ///< Where the targets go if that is a folder that may have to be made.
    std::vector<SPlannedFile> files; ///< In the order of the command line, of a folder by name.
    std::string usageFault; ///< Why the command line makes no sense; empty if it does.
};

/// Plans the conversion of `sources`, files and folders, to `target`. `extension` is the word behind `--to`,
/// empty without it.
///
/// Of a folder all files are taken that are of a kind that can be converted, but not the folders in it. Several
/// files, or a folder, go into a folder, each under its own name with the new ending; where two would
/// get the same name, the later ones get a number. Two things are refused: a target that is another
/// file's source, since the result would depend on which comes first, and a folder as a file's place.
SConversionPlan PlanConversion(const std::vector<std::string>& sources, const std::string& target,
                               const std::string& extension);

/// `path`, and with a table also the rows beside it, which are read as well, and written as well.
std::vector<std::string> WithRows(const std::string& path);

} // namespace velorx

// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/check/Findings.h"

#include <QByteArray>

#include <string>
#include <vector>

namespace velorx {

/// What was found in one file.
struct SCheckedFile
{
    std::string name; ///< As the shell handed it over.
    std::string description; ///< Of its family, "DXF drawing".
    CFindings findings;
    std::string error; ///< Why it could not be checked; empty if it was.

    /// Whether nothing is wrong with it.
    bool IsSound() const { return error.empty() && findings.Count(ELevel::Fault) == 0; }
};

/// What was found in a file, for people; UTF-8.
QByteArray CheckText(const SCheckedFile& file);

/// The same of all files for programs, as JSON under the key "files".
QByteArray CheckJson(const std::vector<SCheckedFile>& files);

} // namespace velorx

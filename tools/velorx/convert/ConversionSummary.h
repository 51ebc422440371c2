// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/convert/ConversionRun.h"

#include <QByteArray>

#include <vector>

namespace velorx {

/// What became of all files of a run, for people; UTF-8.
QByteArray SummaryText(const std::vector<SConvertedFile>& files);

/// The same for programs, as JSON: "files" with an object for each, and how many were "converted" and
/// "failed".
QByteArray SummaryJson(const std::vector<SConvertedFile>& files);

} // namespace velorx

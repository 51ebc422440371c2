// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/check/Findings.h"
#include "VelorExchange/dxf/records/IDXFProgress.h"

#include <QString>

#include <memory>
#include <string_view>

namespace velorx {

/// Looks through one file for what a reader of its format will stumble over. Memory follows the longest
/// line or record and the number of distinct names, not the file.
class IChecker
{
public:
    IChecker() = default;
    IChecker(const IChecker&) = delete;
    IChecker(IChecker&&) = delete;
    IChecker& operator=(const IChecker&) = delete;
    IChecker& operator=(IChecker&&) = delete;
    virtual ~IChecker() = default;

    /// Reads the file `path` and adds to `findings`. `progress` can be null. Returns why the file cannot be
    /// checked, or an empty string.
    virtual QString Check(const QString& path, CFindings& findings,
                          VelorExchange::dxf::IDXFProgress* progress) = 0;
};

/// A checker for files of the family called `family`, of SXF maps in text form if `isText`; null if files of
/// that family cannot be checked.
std::unique_ptr<IChecker> MakeChecker(std::string_view family, bool isText);

} // namespace velorx

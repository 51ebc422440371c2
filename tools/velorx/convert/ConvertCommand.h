// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/Command.h"
#include "tools/velorx/convert/ConversionRun.h"

#include <string>
#include <vector>

namespace velorx {

/// `velorx convert IN... OUT`: reads files and writes them again, in the family that the last name or `--to`
/// tells.
class CConvertCommand final : public ICommand
{
public:
    CLI::App* AddTo(CLI::App& app) override;
    EExit Run() override;

private:
    void AddFileOptions(CLI::App& command);
    void AddValueOptions(CLI::App& command);
    EExit RunPlan(const SConversionPlan& plan, CTemporaries& temporaries);
    std::vector<SConvertedFile> ConvertAll(const SConversionPlan& plan, CTemporaries& temporaries);
    bool Tell(const std::vector<SConvertedFile>& files, CTemporaries& temporaries) const;
    std::string WriteReport(const std::vector<SConvertedFile>& files,
                            CTemporaries& temporaries) const;

    std::vector<std::string> names; ///< As the shell handed them over, the target last.
    std::string extension; ///< Behind `--to`.
    std::string version = "2004";
    std::string reportName; ///< As the shell handed it over.
    SConversionSettings settings;
    bool quiet = false;
};

} // namespace velorx

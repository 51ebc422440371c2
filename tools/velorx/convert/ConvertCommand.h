// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/Command.h"
#include "tools/velorx/convert/Conversion.h"

#include <string>

namespace velorx {

/// `velorx convert IN OUT`: reads a file and writes it again, in the family that the second name tells.
class CConvertCommand final : public ICommand
{
public:
    CLI::App* AddTo(CLI::App& app) override;
    EExit Run() override;

private:
    QString FindWay(CConversion& conversion) const;
    QString Convert(CConversion conversion, const std::string& target,
                    CConversionReport& report) const;

    std::string source; ///< As the shell handed it over.
    std::string target; ///< As the shell handed it over.
    std::string version = "2004";
    int precision = SConversionOptions().precision;
    bool force = false;
};

} // namespace velorx

// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/check/CheckReport.h"
#include "tools/velorx/Command.h"

#include <string>
#include <vector>

namespace velorx {

/// `velorx check FILE...`: says what a reader will stumble over.
class CCheckCommand final : public ICommand
{
public:
    CLI::App* AddTo(CLI::App& app) override;
    EExit Run() override;

private:
    std::vector<std::string> names; ///< As the shell handed them over.
    bool json = false;
};

} // namespace velorx

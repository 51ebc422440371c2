// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/Command.h"

#include <string>

namespace velorx {

/// `velorx info FILE`: says what is in a file.
class CInfoCommand final : public ICommand
{
public:
    CLI::App* AddTo(CLI::App& app) override;
    EExit Run() override;

private:
    std::string file; ///< As the shell handed it over.
    std::string library; ///< As the shell handed it over.
    int rows = 0;
    bool json = false;
};

} // namespace velorx

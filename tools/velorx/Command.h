// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/App.hpp>

namespace velorx {

/// Exit codes of the program.
enum EExit : int {
    kExitDone = 0, ///< All went well.
    kExitFailed = 1, ///< A file could not be opened, read or written whole.
    kExitUsage = 2, ///< The command line makes no sense.
};

/// A subcommand of velorx; one class and one pair of files each.
class ICommand
{
public:
    ICommand() = default;
    ICommand(const ICommand&) = delete;
    ICommand(ICommand&&) = delete;
    ICommand& operator=(const ICommand&) = delete;
    ICommand& operator=(ICommand&&) = delete;
    virtual ~ICommand() = default;

    /// Adds the subcommand with its arguments to `app` and returns it, owned by `app`. The arguments are
    /// stored in this object, which outlives the parsing.
    virtual CLI::App* AddTo(CLI::App& app) = 0;

    /// Does the work once the command line has been parsed and the code page is set.
    virtual EExit Run() = 0;
};

} // namespace velorx

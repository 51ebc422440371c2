// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/ProgressBar.h"

#include <chrono>
#include <cstddef>

namespace velorx {

/// Says on one line of a terminal how many of several files are done. As with the bar for one file, it
/// appears only once the work has taken half a second, and is wiped out in the end.
class CFileCount
{
public:
    /// Draws through `draw`; `time` tells the time, and the work begins now.
    CFileCount(std::size_t files, CProgressBar::Output draw, CProgressBar::Clock time);

    /// One more is done.
    void Add();

    /// All are done.
    void Finish();

private:
    CProgressBar::Output output;
    CProgressBar::Clock clock;
    std::chrono::steady_clock::time_point start;
    std::size_t total;
    std::size_t done = 0;
    bool shown = false;
};

/// A count on standard error.
CFileCount TerminalFileCount(std::size_t files);

} // namespace velorx

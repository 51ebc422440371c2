// SPDX-License-Identifier: MIT
#include "tools/velorx/FileCount.h"

#include <string>
#include <utility>

namespace velorx {

CFileCount::CFileCount(std::size_t files, CProgressBar::Output draw, CProgressBar::Clock time)
    : output(std::move(draw)), clock(std::move(time)), start(clock()), total(files)
{
}

void CFileCount::Add()
{
    ++done;
    if (clock() - start >= kProgressSilence) {
        output(kWipeLine + std::to_string(done) + " of " + std::to_string(total) + " files");
        shown = true;
    }
}

void CFileCount::Finish()
{
    if (shown) {
        output(kWipeLine);
    }
}

CFileCount TerminalFileCount(std::size_t files)
{
    return {files, WriteToTerminal, std::chrono::steady_clock::now};
}

} // namespace velorx

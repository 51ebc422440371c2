// SPDX-License-Identifier: MIT
#include "tools/velorx/ProgressBar.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <utility>

namespace velorx {

namespace {

constexpr int kWidth = 40;
constexpr int kAll = 100;

} // namespace

CProgressBar::CProgressBar(Output draw, Clock time)
    : output(std::move(draw)), clock(std::move(time))
{
}

void CProgressBar::Begin(const QString& /*title*/, qint64 size)
{
    start = clock();
    total = std::max<qint64>(size, 1);
    next = 0;
    shown = false;
}

void CProgressBar::SetPosition(qint64 position)
{
    if (position < next) {
        return;
    }
    const int percent = static_cast<int>(std::min<qint64>(kAll, position * kAll / total));
    next = position + std::max<qint64>(1, total / kAll);
    if (clock() - start >= kProgressSilence) {
        Draw(percent);
    }
}

void CProgressBar::Finish()
{
    if (shown) {
        output(kWipeLine);
    }
}

void CProgressBar::Draw(int percent)
{
    const auto filled = static_cast<std::size_t>(percent * kWidth / kAll);
    output("\r[" + std::string(filled, '#') + std::string(kWidth - filled, '.') + "] "
           + std::to_string(percent) + " %");
    shown = true;
}

// A bar that does not show is no reason to stop.
void WriteToTerminal(const std::string& text)
{
    static_cast<void>(std::fputs(text.c_str(), stderr));
    static_cast<void>(std::fflush(stderr));
}

bool IsTerminal()
{
    return isatty(STDERR_FILENO) == 1;
}

CProgressBar TerminalProgressBar()
{
    return {WriteToTerminal, std::chrono::steady_clock::now};
}

} // namespace velorx

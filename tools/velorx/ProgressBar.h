// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/records/IDXFProgress.h"

#include <chrono>
#include <functional>
#include <string>

namespace velorx {

/// Work that is done sooner shows no progress.
constexpr std::chrono::milliseconds kProgressSilence{500};

/// Takes a terminal to the start of its line and clears that.
constexpr char kWipeLine[] = "\r\033[K";

/// A bar that shows how far a read is, on one line of a terminal.
///
/// It appears only once the read has taken half a second, so that quick work stays silent, moves by
/// whole percents, and is wiped out in the end. A report costs one comparison.
class CProgressBar final : public VelorExchange::dxf::IDXFProgress
{
public:
    using Clock = std::function<std::chrono::steady_clock::time_point()>;
    using Output = std::function<void(const std::string&)>;

    /// Draws through `draw`; `time` tells the time. Both are called on the thread of the read.
    CProgressBar(Output draw, Clock time);

    void Begin(const QString& title, qint64 size) override;
    void SetPosition(qint64 position) override;
    void Finish() override;

private:
    void Draw(int percent);

    Output output;
    Clock clock;
    std::chrono::steady_clock::time_point start;
    qint64 total = 0;
    qint64 next = 0; ///< The position at which there is something to do.
    bool shown = false;
};

/// Whether standard error is a terminal, where a bar makes sense.
bool IsTerminal();

/// Writes to standard error at once.
void WriteToTerminal(const std::string& text);

/// A bar on standard error.
CProgressBar TerminalProgressBar();

} // namespace velorx

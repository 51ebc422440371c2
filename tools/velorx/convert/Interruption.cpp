// SPDX-License-Identifier: MIT
#include "tools/velorx/convert/Interruption.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <utility>

namespace velorx {

namespace {

constexpr std::array<int, 3> kSignals = {SIGINT, SIGTERM, SIGHUP};
constexpr unsigned char kEnd = 0; // no signal has this number

// A handler may do next to nothing, so it only tells the watcher through a pipe.
volatile std::sig_atomic_t writeEnd = -1;
std::array<struct sigaction, kSignals.size()> former;

void Tell(unsigned char message)
{
    const int error = errno;
    static_cast<void>(write(writeEnd, &message, 1)); // a full pipe has told enough
    errno = error;
}

void OnSignal(int signal)
{
    Tell(static_cast<unsigned char>(signal));
}

void Catch()
{
    for (std::size_t i = 0; i < kSignals.size(); ++i) {
        sigaction(kSignals[i], nullptr, &former[i]);
        if (former[i].sa_handler != SIG_IGN) {
            struct sigaction action = {};
            action.sa_handler = OnSignal;
            action.sa_flags = SA_RESTART;
            sigaction(kSignals[i], &action, nullptr);
        }
    }
}

void Release()
{
    for (std::size_t i = 0; i < kSignals.size(); ++i) {
        sigaction(kSignals[i], &former[i], nullptr);
    }
}

} // namespace

CInterruption::CInterruption(std::function<void()> work) : cleanUp(std::move(work))
{
    std::array<int, 2> ends = {};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) {
        return;
    }
    readEnd = ends[0];
    writeEnd = ends[1];
    watcher = std::thread(&CInterruption::Watch, this);
    Catch();
}

CInterruption::~CInterruption()
{
    if (readEnd < 0) {
        return;
    }
    Release();
    Tell(kEnd);
    watcher.join();
    close(readEnd);
    close(writeEnd);
}

void CInterruption::Watch() const
{
    unsigned char message = kEnd;
    while (read(readEnd, &message, 1) < 0 && errno == EINTR) {
        // again
    }
    if (message == kEnd) {
        return;
    }
    cleanUp();
    std::signal(message, SIG_DFL);
    static_cast<void>(kill(getpid(), message));
    pause(); // until the signal has reached the process
}

} // namespace velorx

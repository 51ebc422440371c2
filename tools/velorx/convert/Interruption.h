// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <thread>

namespace velorx {

/// Cleans up if the process is asked to end while this object lives: by SIGINT, SIGTERM or SIGHUP, as far as
/// they are not ignored already. The process then ends by that same signal. One object at a time.
class CInterruption
{
public:
    /// `work` is called on a thread of its own, where it may do what it likes, and after it nothing else
    /// is. Where the system refuses what is needed the signals stay as they are.
    explicit CInterruption(std::function<void()> work);
    CInterruption(const CInterruption&) = delete;
    CInterruption& operator=(const CInterruption&) = delete;

    /// Leaves the signals as they were.
    ~CInterruption();

private:
    void Watch() const;

    std::function<void()> cleanUp;
    int readEnd = -1;
    std::thread watcher;
};

} // namespace velorx

// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace velorx::test {

/// What a run of the program left behind.
struct SRun
{
    int exitCode = -1; ///< -1 if a signal ended it.
    std::string out;
    std::string err;
};

/// Runs the built velorx in the folder `examples` with `arguments`, byte for byte, with no terminal in
/// sight. `out` names a file
/// for its standard output instead of `SRun::out`.
SRun RunVelorx(const std::vector<std::string>& arguments, const char* out = nullptr);

/// Runs it with its standard error on a pseudo-terminal; `SRun::err` is what the terminal got.
SRun RunVelorxOnTerminal(const std::vector<std::string>& arguments);

/// A run of the program that is under way, with its output thrown away.
class CRunningVelorx
{
public:
    /// `temporary` is the folder that it takes for temporary files.
    CRunningVelorx(const std::vector<std::string>& arguments, const std::string& temporary);
    CRunningVelorx(const CRunningVelorx&) = delete;
    CRunningVelorx& operator=(const CRunningVelorx&) = delete;
    ~CRunningVelorx();

    /// Whether it has not ended.
    bool IsAlive();

    /// Sends a signal.
    void Send(int signal) const;

    /// Waits for the end; the number of the signal that ended it, 0 if it ended by itself.
    int EndingSignal();

private:
    int child = -1;
    int status = 0;
    bool hasEnded = false;
};

/// The names of what lies in a folder, in order.
std::vector<std::string> NamesIn(const std::string& folder);

/// A folder of the test's own that goes away with the object.
class CTemporaryFolder
{
public:
    CTemporaryFolder();
    CTemporaryFolder(const CTemporaryFolder&) = delete;
    CTemporaryFolder& operator=(const CTemporaryFolder&) = delete;
    ~CTemporaryFolder();

    /// Writes a file at `name` below the folder, making folders on the way, and returns its path.
    std::string Write(const std::string& name, const std::string& content) const;

    const std::string path;
};

/// The content of a file; fails the test where it cannot be read.
std::string ReadFile(const std::string& path);

} // namespace velorx::test

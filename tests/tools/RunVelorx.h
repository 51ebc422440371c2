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

// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <mutex>
#include <set>
#include <string>

namespace velorx {

/// What a run of the program has begun to write and not yet put in its place, so that it can be removed
/// whatever ends the run. Operations can be called on any thread. Paths are as the shell hands them over.
class CTemporaries
{
public:
    CTemporaries() = default;
    CTemporaries(const CTemporaries&) = delete;
    CTemporaries& operator=(const CTemporaries&) = delete;

    /// Removes what is left.
    ~CTemporaries();

    /// Makes an empty file or folder of a new name beside `target` and puts its path into `path`. Empty on
    /// success, otherwise why not.
    std::string MakeFileBeside(const std::string& target, std::string& path);
    std::string MakeFolderBeside(const std::string& target, std::string& path);

    /// Removes what was made, a folder with all that is in it.
    void Remove(const std::string& path);

    /// Calls `place`, which puts what was made where it belongs, and forgets `path` if that leaves nothing
    /// there. Returns what `place` returns.
    std::string Settle(const std::string& path, const std::function<std::string()>& place);

    /// Removes all of it and stops every thread that comes here from now on: what follows is the end of
    /// the process.
    void Abandon();

private:
    using Maker = int (*)(const char* path);

    std::string MakeBeside(const std::string& target, std::string& path, Maker make);

    std::mutex mutex;
    std::set<std::string> paths;
};

} // namespace velorx

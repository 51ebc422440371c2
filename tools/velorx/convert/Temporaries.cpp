// SPDX-License-Identifier: MIT
#include "tools/velorx/convert/Temporaries.h"

#include "tools/velorx/convert/TargetPlace.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace velorx {

namespace {

int MakeFile(const char* path)
{
    const int file = open(path, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    return file < 0 ? file : close(file);
}

int MakeFolder(const char* path)
{
    return mkdir(path, 0777);
}

// What cannot be removed stays: there is nobody left to tell.
void RemoveWhole(const std::string& path)
{
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
}

bool IsThere(const std::string& path)
{
    struct stat status = {};
    return lstat(path.c_str(), &status) == 0;
}

} // namespace

CTemporaries::~CTemporaries()
{
    for (const std::string& path : paths) {
        RemoveWhole(path);
    }
}

std::string CTemporaries::MakeFileBeside(const std::string& target, std::string& path)
{
    return MakeBeside(target, path, MakeFile);
}

std::string CTemporaries::MakeFolderBeside(const std::string& target, std::string& path)
{
    return MakeBeside(target, path, MakeFolder);
}

std::string CTemporaries::MakeBeside(const std::string& target, std::string& path, Maker make)
{
    const std::lock_guard<std::mutex> lock(mutex);
    const std::string start = target + ".velorx-" + std::to_string(getpid());
    for (int i = 0;; ++i) {
        const std::string candidate = start + (i == 0 ? "" : "-" + std::to_string(i)) + ".tmp";
        if (make(candidate.c_str()) == 0) {
            paths.insert(candidate);
            path = candidate;
            return {};
        }
        if (errno != EEXIST) {
            return FaultOfMaking(target, errno);
        }
    }
}

void CTemporaries::Remove(const std::string& path)
{
    const std::lock_guard<std::mutex> lock(mutex);
    RemoveWhole(path);
    paths.erase(path);
}

std::string CTemporaries::Settle(const std::string& path, const std::function<std::string()>& place)
{
    const std::lock_guard<std::mutex> lock(mutex);
    std::string problem = place();
    if (!IsThere(path)) {
        paths.erase(path);
    }
    return problem;
}

void CTemporaries::Abandon()
{
    mutex.lock(); // and never unlocked, so that nobody begins anything again
    for (const std::string& path : paths) {
        RemoveWhole(path);
    }
}

} // namespace velorx

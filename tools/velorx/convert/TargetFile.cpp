// SPDX-License-Identifier: MIT
#include "tools/velorx/convert/TargetFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <utility>

namespace velorx {

namespace {

std::string Reason()
{
    return std::strerror(errno); // NOLINT(concurrency-mt-unsafe): one thread writes files
}

} // namespace

CTargetFile::CTargetFile(std::string name) : target(std::move(name)) { }

CTargetFile::~CTargetFile()
{
    if (!temporary.empty()) {
        unlink(temporary.c_str());
    }
}

std::string CTargetFile::Begin(bool mayReplace)
{
    std::error_code error;
    const std::filesystem::path real = std::filesystem::canonical(target, error);
    if (error) {
        return Create(); // nothing is there
    }
    struct stat status = {};
    if (stat(real.c_str(), &status) != 0) {
        return Reason();
    }
    if (!S_ISREG(status.st_mode)) {
        return S_ISDIR(status.st_mode) ? "it is a folder" : "it is no ordinary file";
    }
    if (!mayReplace) {
        return "it exists (--force replaces it)";
    }
    target = real.string();
    const std::string problem = Create();
    if (problem.empty()) {
        chmod(temporary.c_str(),
              status.st_mode & 07777U); // the new file keeps the old one's rights
    }
    return problem;
}

std::string CTargetFile::Create()
{
    const std::string start = target + ".velorx-" + std::to_string(getpid());
    for (int i = 0;; ++i) {
        const std::string candidate = start + (i == 0 ? "" : "-" + std::to_string(i)) + ".tmp";
        const int file = open(candidate.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (file >= 0) {
            close(file);
            temporary = candidate;
            return {};
        }
        if (errno != EEXIST) {
            return Reason();
        }
    }
}

std::string CTargetFile::Finish()
{
    if (std::rename(temporary.c_str(), target.c_str()) != 0) {
        return Reason();
    }
    temporary.clear();
    return {};
}

} // namespace velorx

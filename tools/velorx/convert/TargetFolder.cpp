// SPDX-License-Identifier: MIT
#include "tools/velorx/convert/TargetFolder.h"

#include "tools/velorx/convert/TargetPlace.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

namespace velorx {

CTargetFolder::CTargetFolder(std::string name) : path(std::move(name)) { }

CTargetFolder::~CTargetFolder()
{
    if (isMade) {
        rmdir(path.c_str()); // which does nothing to one that holds something
    }
}

std::string CTargetFolder::Begin(bool isTrial)
{
    std::error_code error;
    if (path.empty() || std::filesystem::is_directory(path, error)) {
        return {};
    }
    if (isTrial) {
        return FindFaultOfPlace(path);
    }
    isMade = mkdir(path.c_str(), 0777) == 0;
    return isMade ? std::string() : FaultOfMaking(path, errno);
}

} // namespace velorx

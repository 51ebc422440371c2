// SPDX-License-Identifier: MIT
#include "tools/velorx/convert/TargetFile.h"

#include <cerrno>
#include <cstdio>
#include <system_error>
#include <utility>

namespace velorx {

CTargetFile::CTargetFile(std::string path, CTemporaries& made)
    : name(std::move(path)), temporaries(made)
{
}

CTargetFile::~CTargetFile()
{
    if (!temporary.empty()) {
        temporaries.Remove(temporary);
    }
}

std::string CTargetFile::Begin(bool mayReplace)
{
    std::string problem = FindPlace(name, mayReplace, place);
    if (problem.empty()) {
        problem = temporaries.MakeFileBeside(place.path, temporary);
    }
    if (problem.empty()) {
        KeepRights(temporary, place);
    }
    return problem;
}

std::string CTargetFile::Finish()
{
    const std::string problem = temporaries.Settle(temporary, [this] {
        const bool isDone = std::rename(temporary.c_str(), place.path.c_str()) == 0;
        return isDone ? std::string() : std::generic_category().message(errno);
    });
    if (problem.empty()) {
        temporary.clear();
    }
    return problem;
}

} // namespace velorx

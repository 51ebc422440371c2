// SPDX-License-Identifier: MIT
#include "tools/velorx/convert/TrialTarget.h"

#include "tools/velorx/convert/TargetPair.h"
#include "tools/velorx/convert/TargetPlace.h"

#include <filesystem>
#include <system_error>
#include <utility>

namespace velorx {

CTrialTarget::CTrialTarget(ETargetKind what, std::string path, bool isNew, CTemporaries& made)
    : kind(what), name(std::move(path)), isInNewFolder(isNew), temporaries(made)
{
}

CTrialTarget::~CTrialTarget()
{
    inside.reset();
    if (!folder.empty()) {
        temporaries.Remove(folder);
    }
}

// Which files a folder of pairs will have is not known yet.
std::string CTrialTarget::FindFault(bool mayReplace) const
{
    if (kind == ETargetKind::Pairs) {
        return FindFaultOfPlace(name);
    }
    STargetPlace place;
    std::string problem = FindPlace(name, mayReplace, place);
    if (problem.empty() && kind == ETargetKind::Pair) {
        problem = FindPlace(RowsBeside(name), mayReplace, place);
        problem = problem.empty() ? problem : "the .mid beside it: " + problem;
    }
    return problem.empty() && !isInNewFolder ? FindFaultOfFolder(FolderOf(place.path)) : problem;
}

std::string CTrialTarget::Begin(bool mayReplace)
{
    std::string problem = FindFault(mayReplace);
    if (!problem.empty()) {
        return problem;
    }
    std::error_code error;
    const std::filesystem::path system = std::filesystem::temp_directory_path(error);
    problem =
        error ? error.message() : temporaries.MakeFolderBeside((system / "trial").string(), folder);
    if (!problem.empty()) {
        return problem;
    }
    const std::string file = std::filesystem::path(name).filename().string();
    inside = MakeTarget(kind, folder + '/' + (file.empty() ? "pairs" : file), temporaries);
    return inside->Begin(false);
}

const std::string& CTrialTarget::WorkPath() const
{
    return inside->WorkPath();
}

} // namespace velorx

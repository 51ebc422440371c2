// SPDX-License-Identifier: MIT
#include "tools/velorx/convert/TargetPairs.h"

#include "tools/velorx/convert/TargetPlace.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>
#include <utility>
#include <vector>

namespace velorx {

namespace {

std::vector<std::string> FilesIn(const std::string& folder)
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::string WithoutSlashes(std::string path)
{
    while (path.size() > 1 && path.back() == '/') {
        path.pop_back();
    }
    return path;
}

} // namespace

CTargetPairs::CTargetPairs(std::string path, CTemporaries& made)
    : name(WithoutSlashes(std::move(path))), temporaries(made)
{
}

CTargetPairs::~CTargetPairs()
{
    if (!folder.empty()) {
        temporaries.Remove(folder);
    }
}

std::string CTargetPairs::Begin(bool mayReplace)
{
    mayReplaceFiles = mayReplace;
    std::error_code ignored;
    isThere = std::filesystem::is_directory(name, ignored);
    if (!isThere && std::filesystem::exists(name, ignored)) {
        return "it is no folder";
    }
    return temporaries.MakeFolderBeside(isThere ? name + "/pairs" : name, folder);
}

std::string CTargetPairs::MoveInto()
{
    std::vector<SFileMove> moves;
    for (const std::string& file : FilesIn(folder)) {
        STargetPlace place;
        const std::string problem = FindPlace(name + '/' + file, mayReplaceFiles, place);
        if (!problem.empty()) {
            return file + " in it: " + problem;
        }
        KeepRights(folder + '/' + file, place);
        moves.push_back({folder + '/' + file, place.path});
    }
    return MoveAll(moves, folder);
}

std::string CTargetPairs::Finish()
{
    std::string problem = temporaries.Settle(folder, [this] {
        if (isThere) {
            return MoveInto();
        }
        const bool isDone = std::rename(folder.c_str(), name.c_str()) == 0;
        return isDone ? std::string() : std::generic_category().message(errno);
    });
    if (problem.empty() && !isThere) {
        folder.clear();
    }
    return problem;
}

} // namespace velorx

// SPDX-License-Identifier: MIT
#include "tools/velorx/convert/TargetPair.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

namespace velorx {

namespace {

// A file that is there stays as it is.
std::string MakeFile(const std::string& path)
{
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0666);
    if (file < 0) {
        return std::generic_category().message(errno);
    }
    close(file);
    return {};
}

} // namespace

std::string RowsBeside(const std::string& table)
{
    std::string rows = table;
    const bool isUpper = !rows.empty() && rows.back() == 'F';
    rows.back() = isUpper ? 'D' : 'd'; // "MIF" and "MID" differ in nothing else
    return rows;
}

CTargetPair::CTargetPair(std::string path, CTemporaries& made)
    : name(std::move(path)), temporaries(made)
{
}

CTargetPair::~CTargetPair()
{
    if (!folder.empty()) {
        temporaries.Remove(folder);
    }
}

std::string CTargetPair::Begin(bool mayReplace)
{
    std::string problem = FindPlace(name, mayReplace, table);
    if (problem.empty()) {
        problem = FindPlace(RowsBeside(name), mayReplace, rows);
        problem = problem.empty() ? problem : "the .mid beside it: " + problem;
    }
    if (problem.empty()) {
        problem = temporaries.MakeFolderBeside(table.path, folder);
    }
    if (problem.empty()) {
        workPath = folder + '/' + std::filesystem::path(name).filename().string();
        problem = MakeFile(workPath);
    }
    return problem;
}

std::string CTargetPair::Finish()
{
    const std::string workRows = RowsBeside(workPath);
    const std::string problem = MakeFile(workRows); // where no object has attributes
    if (!problem.empty()) {
        return problem;
    }
    KeepRights(workPath, table);
    KeepRights(workRows, rows);
    // The table comes last: where there was none before, it shows that all is there.
    return temporaries.Settle(folder, [&] {
        return MoveAll({{workRows, rows.path}, {workPath, table.path}}, folder);
    });
}

} // namespace velorx

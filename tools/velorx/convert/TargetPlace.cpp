// SPDX-License-Identifier: MIT
#include "tools/velorx/convert/TargetPlace.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <system_error>

namespace velorx {

namespace {

constexpr mode_t kRights = 07777;

/// A move that was done.
struct SDone
{
    std::string place;
    std::string spare; ///< What was there before; empty if there was nothing to keep.
};

void Undo(const std::vector<SDone>& moves)
{
    for (auto move = moves.rbegin(); move != moves.rend(); ++move) {
        if (move->spare.empty()) {
            unlink(move->place.c_str());
        } else {
            static_cast<void>(std::rename(move->spare.c_str(), move->place.c_str()));
        }
    }
}

} // namespace

std::string FindPlace(const std::string& name, bool mayReplace, STargetPlace& place)
{
    std::error_code error;
    const std::filesystem::path real = std::filesystem::canonical(name, error);
    place.path = name;
    place.rights.reset();
    struct stat status = {};
    if (error || stat(real.c_str(), &status) != 0) {
        const bool isLink = lstat(name.c_str(), &status) == 0 && S_ISLNK(status.st_mode);
        return isLink ? "it is a link that leads nowhere" : ""; // or nothing is there
    }
    if (!S_ISREG(status.st_mode)) {
        return S_ISDIR(status.st_mode) ? "it is a folder" : "it is no ordinary file";
    }
    if (!mayReplace) {
        return "it exists (--force replaces it)";
    }
    place.path = real.string();
    place.rights = status.st_mode & kRights;
    return {};
}

std::string FolderOf(const std::string& path)
{
    const std::filesystem::path normal = std::filesystem::path(path).lexically_normal();
    const bool endsInSlash = !normal.has_filename();
    const auto folder = (endsInSlash ? normal.parent_path() : normal).parent_path();
    return folder.empty() ? "." : folder.string();
}

std::string FaultOfMaking(const std::string& path, int error)
{
    std::error_code ignored;
    const std::string folder = FolderOf(path);
    return error == ENOENT && !std::filesystem::exists(folder, ignored)
        ? "there is no folder " + folder
        : std::generic_category().message(error);
}

std::string FindFaultOfFolder(const std::string& folder)
{
    const bool isOpen = access(folder.c_str(), W_OK | X_OK) == 0;
    return isOpen ? std::string() : FaultOfMaking(folder + "/file", errno);
}

std::string FindFaultOfPlace(const std::string& path)
{
    std::error_code ignored;
    if (std::filesystem::is_directory(path, ignored)) {
        return FindFaultOfFolder(path);
    }
    return std::filesystem::exists(path, ignored) ? "it is no folder"
                                                  : FindFaultOfFolder(FolderOf(path));
}

void KeepRights(const std::string& path, const STargetPlace& place)
{
    if (place.rights) {
        chmod(path.c_str(), *place.rights);
    }
}

// What is replaced gets a second name first, so that there is a file at its place at any time. A file system
// without second names loses the way back, and nothing else.
std::string MoveAll(const std::vector<SFileMove>& moves, const std::string& spareFolder)
{
    std::vector<SDone> done;
    for (const SFileMove& move : moves) {
        const std::string spare = spareFolder + "/old-" + std::to_string(done.size());
        const bool isKept = link(move.to.c_str(), spare.c_str()) == 0;
        const bool isNew = !isKept && errno == ENOENT;
        if (std::rename(move.from.c_str(), move.to.c_str()) != 0) {
            const std::string reason = std::generic_category().message(errno);
            Undo(done);
            return reason;
        }
        if (isKept || isNew) {
            done.push_back({move.to, isKept ? spare : std::string()});
        }
    }
    return {};
}

} // namespace velorx

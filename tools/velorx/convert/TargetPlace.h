// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <optional>
#include <string>
#include <vector>

namespace velorx {

/// Where a file is to be put.
struct STargetPlace
{
    std::string path; ///< Links followed, where something is there.
    std::optional<mode_t> rights; ///< Of the file that is there and will be replaced.
};

/// Looks at the path `name`, as the shell hands it over. Empty if a file can be put there as far as one can
/// tell without doing it, otherwise why not. What is there already is in the way unless `mayReplace`; what
/// is no ordinary file always is.
std::string FindPlace(const std::string& name, bool mayReplace, STargetPlace& place);

/// The folder that the file or folder `path` is in.
std::string FolderOf(const std::string& path);

/// What the system's `error` means for what was to be made at `path`; a missing folder is named.
std::string FaultOfMaking(const std::string& path, int error);

/// Why nothing can be put into a folder; empty if something can.
std::string FindFaultOfFolder(const std::string& folder);

/// Why there can be no folder `path` to put something into, whether it is there or has to be made; empty if
/// there can.
std::string FindFaultOfPlace(const std::string& path);

/// Gives the file `path` the rights of the one that it is to replace.
void KeepRights(const std::string& path, const STargetPlace& place);

/// One file that is to take its place.
struct SFileMove
{
    std::string from;
    std::string to; ///< In the same file system.
};

/// Renames all, or none: where one fails, what was there before comes back. `spareFolder` is an empty folder
/// in the same file system; what was replaced is kept there and left to the caller. Empty on
/// success, otherwise why not.
std::string MoveAll(const std::vector<SFileMove>& moves, const std::string& spareFolder);

} // namespace velorx

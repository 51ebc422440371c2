// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace velorx {

/// The folder that the targets of several files go into. It is made where it is missing, and goes away
/// with the object if it was made for nothing.
class CTargetFolder
{
public:
    /// `name` is a path as the shell hands it over; empty where there is no such folder.
    explicit CTargetFolder(std::string name);
    CTargetFolder(const CTargetFolder&) = delete;
    CTargetFolder& operator=(const CTargetFolder&) = delete;
    ~CTargetFolder();

    /// Makes the folder, or only looks whether it could be made if `isTrial`. Empty on success, otherwise
    /// why not.
    std::string Begin(bool isTrial);

private:
    std::string path;
    bool isMade = false;
};

} // namespace velorx

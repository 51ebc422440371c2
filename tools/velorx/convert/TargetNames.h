// SPDX-License-Identifier: MIT
#pragma once

#include <set>
#include <string>

namespace velorx {

/// Names for the targets of several files in one folder: that of the source with another ending. Where
/// several sources would get the same name, letters' case aside, those behind the first get "-2", "-3" and
/// so on, past every name that another source has of itself. Paths are as the shell hands them over.
class CTargetNames
{
public:
    CTargetNames(std::string folder, std::string ending);

    /// A source that will be asked for. All are announced first.
    void Announce(const std::string& source);

    /// The path of the target of the next source.
    std::string Of(const std::string& source);

private:
    std::string folderPath;
    std::string extension;
    std::set<std::string> announced; ///< Names without endings, in lower case.
    std::set<std::string> taken; ///< The same, of those given away.
};

} // namespace velorx

// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace velorx {

/// A file to be written whole or not at all: it is written under another name beside its place and takes
/// that place in one step, so that a run that fails leaves what was there.
class CTargetFile
{
public:
    /// `name` is a path as the shell hands it over. Links are followed.
    explicit CTargetFile(std::string name);
    CTargetFile(const CTargetFile&) = delete;
    CTargetFile& operator=(const CTargetFile&) = delete;

    /// Removes what was begun and did not take its place.
    ~CTargetFile();

    /// Makes the file to write to; empty on success, otherwise why not. What is there already is in the
    /// way unless `mayReplace`; what is no ordinary file always is.
    std::string Begin(bool mayReplace);

    /// The path to write to, once begun.
    const std::string& Temporary() const { return temporary; }

    /// Puts what was written in its place; empty on success, otherwise why not.
    std::string Finish();

private:
    std::string Create();

    std::string target;
    std::string temporary;
};

} // namespace velorx

// SPDX-License-Identifier: MIT
#include "tools/velorx/convert/TargetNames.h"

#include <algorithm>
#include <filesystem>
#include <utility>

namespace velorx {

namespace {

std::string BareName(const std::string& path)
{
    return std::filesystem::path(path).stem().string();
}

// File systems that do not tell cases apart do so beyond ASCII as well, but there the second file is refused.
std::string Folded(std::string name)
{
    std::transform(name.begin(), name.end(), name.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return name;
}

} // namespace

CTargetNames::CTargetNames(std::string folder, std::string ending)
    : folderPath(std::move(folder)), extension(std::move(ending))
{
}

void CTargetNames::Announce(const std::string& source)
{
    announced.insert(Folded(BareName(source)));
}

std::string CTargetNames::Of(const std::string& source)
{
    const std::string bare = BareName(source);
    std::string name = bare;
    bool isFree = taken.insert(Folded(name)).second;
    for (int number = 2; !isFree; ++number) {
        name = bare + '-' + std::to_string(number);
        const std::string folded = Folded(name);
        isFree = announced.count(folded) == 0 && taken.insert(folded).second;
    }
    return (std::filesystem::path(folderPath) / (name + '.' + extension)).string();
}

} // namespace velorx

// SPDX-License-Identifier: MIT
#include "tools/velorx/convert/TargetFamily.h"

#include <algorithm>
#include <filesystem>

namespace velorx {

namespace {

constexpr STargetFamily kTargetFamilies[] = {
    {"DXF", "dxf"},
    {"MIF", "mif"},
    {"SXF", "sxf"},
    {"SXF text", "txt"},
};

// Of ASCII letters: extensions have no others.
std::string InLowerCase(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return text;
}

} // namespace

const STargetFamily* FindTargetFamily(const std::string& extension)
{
    const std::string wanted = InLowerCase(extension);
    for (const STargetFamily& family : kTargetFamilies) {
        if (wanted == family.extension) {
            return &family;
        }
    }
    return nullptr;
}

const STargetFamily* TargetFamilyOf(const std::string& name)
{
    const std::string extension = std::filesystem::path(name).extension().string();
    return extension.empty() ? nullptr : FindTargetFamily(extension.substr(1));
}

std::vector<std::string> TargetExtensions()
{
    std::vector<std::string> extensions;
    for (const STargetFamily& family : kTargetFamilies) {
        extensions.emplace_back(family.extension);
    }
    return extensions;
}

} // namespace velorx

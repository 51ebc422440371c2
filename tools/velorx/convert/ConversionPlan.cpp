// SPDX-License-Identifier: MIT
#include "tools/velorx/convert/ConversionPlan.h"

#include "tools/velorx/convert/SourceFamily.h"
#include "tools/velorx/convert/TargetNames.h"
#include "tools/velorx/convert/TargetPair.h"

#include <sys/stat.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <filesystem>
#include <map>
#include <utility>

namespace velorx {

namespace {

constexpr char kTables[] = "MIF";

using CFileId = std::pair<dev_t, ino_t>;

bool IsFolder(const std::string& path)
{
    std::error_code ignored;
    return std::filesystem::is_directory(path, ignored);
}

bool IsTables(const STargetFamily* family)
{
    return std::strcmp(family->name, kTables) == 0;
}

// A folder that cannot be read gives no files, and so does one that goes away meanwhile.
std::vector<std::string> SourcesIn(const std::string& folder)
{
    std::vector<std::string> found;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error))
    {
        if (entry->is_regular_file(error) && IsConvertible(entry->path().string())) {
            found.push_back(entry->path().string());
        }
    }
    std::sort(found.begin(), found.end());
    return found;
}

void AddSources(const std::vector<std::string>& names, SConversionPlan& plan)
{
    for (const std::string& name : names) {
        SPlannedFile file;
        file.source = name;
        if (!IsFolder(name)) {
            plan.files.push_back(file);
            continue;
        }
        const std::vector<std::string> found = SourcesIn(name);
        if (found.empty()) {
            file.problem = "there is no file in it that velorx could convert";
            plan.files.push_back(file);
        }
        for (const std::string& source : found) {
            file.source = source;
            plan.files.push_back(file);
        }
    }
}

// Empty if `target` is to be a folder; otherwise why not.
std::string WhyNoFolder(const std::string& target)
{
    const bool saysFolder = !target.empty() && target.back() == '/';
    if (saysFolder || IsFolder(target) || TargetFamilyOf(target) == nullptr) {
        return {};
    }
    return "several files go into a folder, and " + target + " has the name of a file";
}

void NameTargets(const std::string& target, bool isFolder, SConversionPlan& plan)
{
    const bool isTables = IsTables(plan.family);
    if (!isFolder) {
        plan.files.front().target = target;
        plan.files.front().targetKind = isTables ? ETargetKind::Pair : ETargetKind::File;
        return;
    }
    plan.folder = target;
    CTargetNames names(target, plan.family->extension);
    for (const SPlannedFile& file : plan.files) {
        names.Announce(file.source);
    }
    std::error_code ignored;
    const bool isNew = !std::filesystem::exists(target, ignored);
    for (SPlannedFile& file : plan.files) {
        file.target = names.Of(file.source);
        file.isInNewFolder = isNew;
        file.targetKind = isTables ? ETargetKind::Pair : ETargetKind::File;
    }
}

bool Identify(const std::string& path, CFileId& id)
{
    struct stat status = {};
    if (stat(path.c_str(), &status) != 0) {
        return false;
    }
    id = {status.st_dev, status.st_ino};
    return true;
}

void RefuseSources(SConversionPlan& plan)
{
    std::map<CFileId, const SPlannedFile*> sources;
    CFileId id;
    for (const SPlannedFile& file : plan.files) {
        for (const std::string& path : WithRows(file.source)) {
            if (Identify(path, id)) {
                sources.emplace(id, &file);
            }
        }
    }
    for (SPlannedFile& file : plan.files) {
        for (const std::string& path : WithRows(file.target)) {
            const auto found = Identify(path, id) ? sources.find(id) : sources.end();
            if (found != sources.end() && found->second != &file && file.problem.empty()) {
                file.problem = "its target " + path + " is to be read as well";
            }
        }
    }
}

// "dxf, mif, sxf or txt".
std::string Formats()
{
    const std::vector<std::string> extensions = TargetExtensions();
    std::string formats = extensions.front();
    for (std::size_t i = 1; i < extensions.size(); ++i) {
        formats += (i + 1 < extensions.size() ? ", " : " or ") + extensions[i];
    }
    return formats;
}

// Empty, or the fault of the command line.
std::string FindFamily(const std::string& target, const std::string& extension, bool isFolder,
                       SConversionPlan& plan)
{
    plan.family = extension.empty() ? (isFolder ? nullptr : TargetFamilyOf(target))
                                    : FindTargetFamily(extension);
    if (plan.family != nullptr) {
        return {};
    }
    return isFolder ? "with a folder as the target, --to has to tell the format: " + Formats()
                    : "the ending of " + target + " tells no format that velorx writes; "
            + "--to can: " + Formats();
}

} // namespace

SConversionPlan PlanConversion(const std::vector<std::string>& sources, const std::string& target,
                               const std::string& extension)
{
    SConversionPlan plan;
    const bool isSingle = sources.size() == 1 && !IsFolder(sources.front());
    const bool saysFolder = !target.empty() && target.back() == '/';
    const bool isFolder = !isSingle || saysFolder || IsFolder(target);
    plan.usageFault = isSingle ? std::string() : WhyNoFolder(target);
    if (plan.usageFault.empty()) {
        plan.usageFault = FindFamily(target, extension, isFolder, plan);
    }
    if (!plan.usageFault.empty()) {
        return plan;
    }
    AddSources(sources, plan);
    const STargetFamily* told = TargetFamilyOf(target);
    if (isSingle && IsTables(plan.family) && (isFolder || told != plan.family)) {
        plan.files.front().target = target;
        plan.files.front().targetKind = ETargetKind::Pairs;
        return plan;
    }
    NameTargets(target, isFolder, plan);
    RefuseSources(plan);
    return plan;
}

std::vector<std::string> WithRows(const std::string& path)
{
    const STargetFamily* family = TargetFamilyOf(path);
    if (family == nullptr || !IsTables(family)) {
        return {path};
    }
    return {path, RowsBeside(path)};
}

} // namespace velorx

// SPDX-License-Identifier: MIT
#include "tools/velorx/convert/SourceFamily.h"

#include "tools/velorx/convert/TargetFamily.h"
#include "tools/velorx/HostCodec.h"

#include <QFile>

#include <cstring>

namespace velorx {

namespace {

constexpr char kPlainText[] = "txt";

} // namespace

std::string FindSourceFamily(const std::string& path, const SFamily*& family)
{
    QFile probe(PathFromBytes(path));
    const QString fault = WhyNoFile(probe.fileName());
    if (!fault.isEmpty()) {
        return fault.toStdString();
    }
    if (!probe.open(QIODevice::ReadOnly)) {
        return "it cannot be opened: " + probe.errorString().toStdString();
    }
    family = FindFamily(probe.fileName(), probe.read(kHeadSize));
    if (family == nullptr) {
        return WhyNoFamily(probe.fileName()).toStdString();
    }
    // What can be converted can be written as well.
    if (FindTargetFamily(family->extension) == nullptr) {
        return std::string("a file of the kind \"") + family->description
            + "\" cannot be converted";
    }
    return {};
}

std::string ConvertibleExtensions()
{
    std::string names;
    for (const std::string& extension : TargetExtensions()) {
        names += (names.empty() ? "*." : ", *.") + extension;
    }
    return names;
}

bool IsConvertible(const std::string& path)
{
    const STargetFamily* told = TargetFamilyOf(path);
    if (told == nullptr || std::strcmp(told->extension, kPlainText) != 0) {
        return told != nullptr;
    }
    const SFamily* family = nullptr;
    return FindSourceFamily(path, family).empty();
}

} // namespace velorx

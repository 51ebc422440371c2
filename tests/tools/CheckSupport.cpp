// SPDX-License-Identifier: MIT
#include "tests/tools/CheckSupport.h"

#include "tools/velorx/HostCodec.h"

#include <gtest/gtest.h>

namespace velorx::test {

namespace {

std::string PlaceText(const SPlace& place)
{
    std::string text;
    if (place.part[0] != '\0') {
        text += std::string(" ") + place.part;
    }
    if (place.line > 0) {
        return text + " line " + std::to_string(place.line);
    }
    return place.byte >= 0 ? text + " byte " + std::to_string(place.byte) : text;
}

} // namespace

std::vector<std::string> Texts(const CFindings& findings)
{
    std::vector<std::string> texts;
    for (const SFindingsOfKind& kind : findings.Kinds()) {
        for (const SFinding& finding : kind.first) {
            std::string text = kind.kind->id + PlaceText(finding.place);
            if (!finding.detail.isEmpty()) {
                text += ": " + finding.detail.toStdString();
            }
            if (finding.count > 1) {
                text += " (" + std::to_string(finding.count) + " times)";
            }
            texts.push_back(text);
        }
    }
    return texts;
}

std::vector<std::string> FindingsIn(const char* family, bool isText, const std::string& content)
{
    const CTemporaryFolder folder;
    const std::string path = folder.Write("file", content);
    CFindings findings;
    EXPECT_EQ(MakeChecker(family, isText)->Check(PathFromBytes(path), findings, nullptr), "");
    return Texts(findings);
}

} // namespace velorx::test

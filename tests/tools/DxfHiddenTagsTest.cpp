// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfHiddenTags.h"

#include <gtest/gtest.h>

namespace velorx::test {

namespace {

void Take(CDxfHiddenTags& tags, const char* kind, const char* name, const char* flags)
{
    const std::string text = kind;
    CDxfGroups groups;
    groups.Clear();
    groups.Add(2, name);
    groups.Add(70, flags);
    const SDxfSurveyEntity entity = {text, groups, "0", "", false};
    tags.Take(entity, [](const std::string& bytes) { return QString::fromStdString(bytes); });
}

} // namespace

TEST(DxfHiddenTags, AreThoseThatAreHiddenAtAllInsertsOfABlock)
{
    CDxfHiddenTags tags;
    Take(tags, "INSERT", "Well", "0");
    Take(tags, "ATTRIB", "NO", "1");
    Take(tags, "ATTRIB", "NAME", "8");
    Take(tags, "INSERT", "Tree", "0");
    Take(tags, "ATTRIB", "NO", "0");
    EXPECT_TRUE(tags.IsHidden("WELL", "NO"));
    EXPECT_FALSE(tags.IsHidden("Well", "NAME"));
    EXPECT_FALSE(tags.IsHidden("Tree", "NO"));
    EXPECT_FALSE(tags.IsHidden("Tree", "OTHER"));
    EXPECT_EQ(tags.Mixed(), 0);
}

TEST(DxfHiddenTags, ShowWhereSomeOfThemShow)
{
    CDxfHiddenTags tags;
    Take(tags, "INSERT", "Well", "0");
    Take(tags, "ATTRIB", "NO", "1");
    Take(tags, "INSERT", "well", "0");
    Take(tags, "ATTRIB", "NO", "0");
    EXPECT_FALSE(tags.IsHidden("Well", "NO"));
    EXPECT_EQ(tags.Mixed(), 1);
}

} // namespace velorx::test

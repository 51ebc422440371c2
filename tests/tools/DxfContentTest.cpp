// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfContent.h"

#include "tests/support/TextFile.h"

#include <gtest/gtest.h>

namespace velorx {

TEST(DxfContent, KnowsADrawingByItsFirstSection)
{
    EXPECT_TRUE(IsDxfContent("  0\r\nSECTION\r\n  2\r\nHEADER\r\n"));
}

TEST(DxfContent, TakesEveryKindOfLineEnd)
{
    EXPECT_TRUE(IsDxfContent("0\nSECTION\n2\nENTITIES\n"));
    EXPECT_TRUE(IsDxfContent("0\rSECTION\r2\rENTITIES\r"));
}

TEST(DxfContent, PassesOverComments)
{
    EXPECT_TRUE(IsDxfContent("999\nmade by hand\n999\n\n0\nsection\n"));
}

TEST(DxfContent, RefusesOtherFiles)
{
    EXPECT_FALSE(IsDxfContent(""));
    EXPECT_FALSE(IsDxfContent("999\nonly a comment"));
    EXPECT_FALSE(IsDxfContent("Version 300\nCharset \"WindowsCyrillic\"\n"));
    EXPECT_FALSE(IsDxfContent("0\nLINE\n"));
    EXPECT_FALSE(IsDxfContent(QByteArray("\0\0\0\0", 4)));
}

TEST(DxfContent, FindsTheVersionNearTheStart)
{
    EXPECT_EQ(VersionNearStart("0\nSECTION\n2\nHEADER\n9\n$AcadVer\n1\nAC1027\n"), 1027);
    EXPECT_EQ(VersionNearStart("9\r\n$ACADVER\r\n70\r\n5\r\n1\r\nAC1015\r\n"), 1015);
    EXPECT_EQ(VersionNearStart("9\n$ACADVER\n1\nlatest\n"), 1009);
    EXPECT_EQ(VersionNearStart("9\n$ACADVER"), 1009);
    EXPECT_EQ(VersionNearStart(""), 1009);
}

TEST(DxfContent, KnowsTheEndMarkBySeveralLineEnds)
{
    const auto hasEndMark = [](const QByteArray& drawing) {
        const VelorExchange::test::CTextFile file(drawing);
        return HasEndMark(file.Path());
    };
    EXPECT_TRUE(hasEndMark("0\nENDSEC\n0\nEOF\n"));
    EXPECT_TRUE(hasEndMark("  0\r\nENDSEC\r\n  0\r\nEOF"));
    EXPECT_TRUE(hasEndMark("0\rENDSEC\r0\rEOF\r\r"));
    EXPECT_TRUE(hasEndMark(QByteArray(10000, '\n') + "0\nEOF\n"));
    EXPECT_FALSE(hasEndMark("0\nENDSEC\n"));
    EXPECT_FALSE(hasEndMark("1\nEOF\n"));
    EXPECT_FALSE(hasEndMark(""));
}

} // namespace velorx

// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DrawingText.h"

#include <gtest/gtest.h>

namespace velorx::test {

namespace {

std::string InDrawing(const char* text, bool& isWhole)
{
    return TextForDrawing(QString::fromUtf8(text), isWhole).toStdString();
}

} // namespace

TEST(DrawingText, KeepsLettersOfTheCodePage)
{
    bool isWhole = true;
    EXPECT_EQ(InDrawing("Улица, № 1 – «А»", isWhole), "Улица, № 1 – «А»");
    EXPECT_TRUE(isWhole);
}

TEST(DrawingText, WritesOtherLettersByNumber)
{
    bool isWhole = true;
    EXPECT_EQ(InDrawing("Café ⌀ 5", isWhole), "Caf\\U+00E9 \\U+2300 5");
    EXPECT_TRUE(isWhole);
}

TEST(DrawingText, TellsThatALetterBeyondTheBasicPlaneHasNoNumber)
{
    bool isWhole = true;
    EXPECT_EQ(InDrawing("\xF0\x9F\x98\x80", isWhole), "\xF0\x9F\x98\x80");
    EXPECT_FALSE(isWhole);
}

TEST(DrawingText, NeitherHalfOfALetterBeyondTheBasicPlaneHasAPlace)
{
    EXPECT_FALSE(HasPlaceInDrawing(QChar(0xD83D)));
    EXPECT_FALSE(HasPlaceInDrawing(QChar(0xDE00)));
}

TEST(DrawingText, LeavesTheMarkAloneWhereNothingIsLost)
{
    bool isWhole = false;
    InDrawing("plain", isWhole);
    EXPECT_FALSE(isWhole);
}

} // namespace velorx::test

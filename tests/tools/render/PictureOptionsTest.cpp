// SPDX-License-Identifier: MIT
#include "tools/velorx/render/PictureOptions.h"

#include <gtest/gtest.h>

namespace velorx::test {

TEST(PictureOptions, SizeIsTwoNumbers)
{
    int width = 0;
    int height = 0;
    EXPECT_EQ(ParseSize("800x600", width, height), "");
    EXPECT_EQ(width, 800);
    EXPECT_EQ(height, 600);
    EXPECT_EQ(ParseSize("1X2", width, height), "");
    EXPECT_EQ(width, 1);
}

TEST(PictureOptions, OtherTextIsNoSize)
{
    int width = 7;
    int height = 7;
    for (const char* text : {"", "800", "x600", "800x", "0x600", "-1x600", "800x600x2", "8ax6"}) {
        EXPECT_EQ(ParseSize(text, width, height),
                  std::string(text) + " is not a size in pixels like 1600x1200 (A4 is 794x1123)");
    }
    EXPECT_EQ(width, 7);
}

TEST(PictureOptions, HugeSizeIsRefused)
{
    int width = 0;
    int height = 0;
    EXPECT_NE(ParseSize("16385x1", width, height).find("too large"), std::string::npos);
    EXPECT_NE(ParseSize("16384x16384", width, height).find("too large"), std::string::npos);
    EXPECT_NE(ParseSize("99999999999x1", width, height).find("too large"), std::string::npos);
    EXPECT_EQ(ParseSize("10000x10000", width, height), "");
}

TEST(PictureOptions, ColourIsANameOrSixDigits)
{
    quint32 colour = 0;
    EXPECT_TRUE(ParseColour("White", colour));
    EXPECT_EQ(colour, 0xFFFFFFFFU);
    EXPECT_TRUE(ParseColour("#1a2B3c", colour));
    EXPECT_EQ(colour, 0xFF1A2B3CU);
    EXPECT_TRUE(ParseColour("transparent", colour));
    EXPECT_EQ(colour, 0U);
}

TEST(PictureOptions, OtherTextIsNoColour)
{
    quint32 colour = 7;
    for (const char* text :
         {"", "#", "#12345", "#1234567", "#12345g", "# 1234", "mauvish", "123456"}) {
        EXPECT_FALSE(ParseColour(text, colour)) << text;
    }
    EXPECT_EQ(colour, 7U);
}

TEST(PictureOptions, EndingTellsTheFormat)
{
    EPictureFormat format = EPictureFormat::Png;
    EXPECT_TRUE(FindPictureFormat("plan.SVG", format));
    EXPECT_EQ(format, EPictureFormat::Svg);
    EXPECT_TRUE(FindPictureFormat("a/b.pdf", format));
    EXPECT_EQ(format, EPictureFormat::Pdf);
    EXPECT_FALSE(FindPictureFormat("plan.jpg", format));
    EXPECT_FALSE(FindPictureFormat("png", format));
}

} // namespace velorx::test

// SPDX-License-Identifier: MIT
#include "tools/velorx/features/MifSymbol.h"

#include <gtest/gtest.h>

#include <cmath>

namespace velorx::test {

using VelorExchange::mif::CSymbolMIF;

namespace {

const QString kNoFont = QStringLiteral("шрифт не задан");

CSymbolMIF Write(const SFeatureSymbol& mark)
{
    SMifSymbolLosses losses;
    return MifSymbolOf(mark, losses);
}

} // namespace

TEST(MifSymbol, SymbolsOfTheStandardSetHaveNoFont)
{
    const SFeatureSymbol mark = SymbolOfMif({35, kNoFont, 255, 18, 0, 0.0});
    EXPECT_EQ(mark.shape, 35);
    EXPECT_EQ(mark.font, "");
    EXPECT_EQ(mark.color, 255U);
    EXPECT_EQ(mark.size, 18);
}

TEST(MifSymbol, SymbolsComeBackAsTheyWere)
{
    for (const char* font : {"", "MapInfo Cartographic"}) {
        const CSymbolMIF symbol = {65, QLatin1String(font), 255, 18, 0, *font == 0 ? 0.0 : 0.5};
        const CSymbolMIF back = Write(SymbolOfMif(symbol));
        EXPECT_EQ(back.shape, symbol.shape);
        EXPECT_EQ(back.font, symbol.font);
        EXPECT_EQ(back.color, symbol.color);
        EXPECT_EQ(back.size, symbol.size);
        EXPECT_EQ(back.angle, symbol.angle);
    }
}

TEST(MifSymbol, PictureIsAPlainPoint)
{
    const CSymbolMIF picture = {0, QStringLiteral("pin.bmp"), 255, 18, 0, 0.0};
    EXPECT_TRUE(HasPicture(picture));
    EXPECT_EQ(SymbolOfMif(picture).shape, 0);
    EXPECT_EQ(SymbolOfMif(picture).color, 255U);
    EXPECT_FALSE(HasPicture({0, QString(), 0, 12, 0, 0.0}));
    EXPECT_FALSE(HasPicture({35, kNoFont, 0, 12, 0, 0.0}));
}

TEST(MifSymbol, SizesAreWholePointsThatProgramsShow)
{
    SFeatureSymbol mark;
    mark.shape = 35;
    EXPECT_EQ(Write(mark).size, 12);
    for (const auto& [size, written] : {std::pair(0.3, 1), {7.6, 8}, {500.0, 240}}) {
        mark.size = size;
        EXPECT_EQ(Write(mark).size, written);
    }
}

TEST(MifSymbol, AngleGoesWithAFontOnly)
{
    SFeatureSymbol mark;
    mark.shape = 35;
    mark.angle = 1.0;
    SMifSymbolLosses losses;
    EXPECT_EQ(MifSymbolOf(mark, losses).angle, 0.0);
    EXPECT_TRUE(losses.hasAngle);
    mark.font = "Arial";
    EXPECT_EQ(MifSymbolOf(mark, losses).angle, 1.0);
    EXPECT_FALSE(losses.hasAngle);
}

} // namespace velorx::test

// SPDX-License-Identifier: MIT
#include "tests/support/MifRecorder.h"

using namespace VelorExchange::test;

namespace {

std::string RecordedSymbol(const QByteArray& clause)
{
    return RecordedObjects("Point 1 2\n" + clause + '\n');
}

} // namespace

TEST(SymbolClause, ThreePartsHaveNoFont)
{
    EXPECT_EQ(RecordedSymbol("Symbol (34,16711680,9)"),
              "AddPoint (1 2) symbol=34,#0000ff,9,<шрифт не задан>,0,0\n");
}

TEST(SymbolClause, SixPartsAreAFontSymbol)
{
    EXPECT_EQ(RecordedSymbol("Symbol (65,255,24,\" Map Symbols \",1,180)"),
              "AddPoint (1 2) symbol=65,#ff0000,24,<Map Symbols>,1,3.141592653589793\n");
}

TEST(SymbolClause, FourPartsAreAPicture)
{
    EXPECT_EQ(RecordedSymbol("SYMBOL(\"tree.bmp\",65280,18,1)"),
              "AddPoint (1 2) symbol=0,#00ff00,18,<tree.bmp>,1,0\n");
}

TEST(SymbolClause, FiveAndSevenPartsCountAsThree)
{
    EXPECT_EQ(RecordedSymbol("Symbol (34,0,9,\"f\",1)"),
              "AddPoint (1 2) symbol=34,#000000,9,<шрифт не задан>,0,0\n");
    EXPECT_EQ(RecordedSymbol("Symbol (34,0,9,\"f\",1,90,5)"),
              "AddPoint (1 2) symbol=34,#000000,9,<шрифт не задан>,0,0\n");
    EXPECT_EQ(RecordedSymbol("Symbol (34,0,9,1,2,3,4,5,6,7,8,9)"),
              "AddPoint (1 2) symbol=34,#000000,9,<шрифт не задан>,0,0\n");
}

TEST(SymbolClause, OneOrTwoPartsKeepTheBuiltValues)
{
    EXPECT_EQ(RecordedSymbol("Symbol (34)"), "AddPoint (1 2)\n");
    EXPECT_EQ(RecordedSymbol("Symbol (34,9)"), "AddPoint (1 2)\n");
    EXPECT_EQ(RecordedSymbol("Symbol (,)"), "AddPoint (1 2)\n");
}

TEST(SymbolClause, NumbersPassThroughUnchecked)
{
    EXPECT_EQ(RecordedSymbol("Symbol (-5,-1,100000)"),
              "AddPoint (1 2) symbol=-5,#ffffff,100000,<шрифт не задан>,0,0\n");
}

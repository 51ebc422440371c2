// SPDX-License-Identifier: MIT
// What header, tables and objects lose in a conversion, in the form of DxfLossesTest.cpp.
#include "tests/tools/convert/DxfConversion.h"

#include <gtest/gtest.h>

namespace velorx::test {

TEST(DxfTableLosses, ColourOfALayerGoesToItsElements)
{
    EXPECT_EQ(LossesOf(WithTables("0 LAYER\n2 A\n62 3\n0 LAYER\n2 B\n62 7\n0 LAYER\n62 5\n")),
              "1 layers with a colour, which their elements carry instead (A 1)\n");
}

TEST(DxfTableLosses, LineTypeOfALayerGoesToItsElements)
{
    EXPECT_EQ(LossesOf(WithTables("0 LAYER\n2 A\n62 7\n6 DASHED\n0 LAYER\n2 B\n6 Continuous\n")),
              "1 layers with a line type, which their elements carry instead (A 1)\n");
}

TEST(DxfTableLosses, LineWeightOfALayerGoesToItsElements)
{
    EXPECT_EQ(LossesOf(WithTables("0 LAYER\n2 A\n370 30\n0 LAYER\n2 B\n370 -3\n")),
              "1 layers with a line weight, which their elements carry instead (A 1)\n");
}

TEST(DxfTableLosses, LayersSwitchedOffAreFrozen)
{
    EXPECT_EQ(LossesOf(WithTables("0 LAYER\n2 A\n62 -7\n0 LAYER\n2 B\n70 2\n0 LAYER\n2 C\n70 1\n")),
              "2 layers switched off or frozen in new views alone, frozen (A 1, B 1)\n");
}

TEST(DxfTableLosses, LayersThatAreNotPlottedArePlotted)
{
    EXPECT_EQ(LossesOf(WithTables("0 LAYER\n2 A\n290 0\n0 LAYER\n2 B\n290 1\n")),
              "1 layers that are not plotted, plotted (A 1)\n");
}

TEST(DxfTableLosses, LettersOfNoStyleLeaveTheirLineType)
{
    EXPECT_EQ(
        LossesOf(WithTables("0 LTYPE\n2 GAS\n73 2\n40 2\n49 1\n74 2\n75 0\n340 77\n46 1\n9 G\n"
                            "49 -1\n74 0\n")),
        "1 line types whose letters or shapes are of no style in the drawing, written without\n");
}

TEST(DxfTableLosses, DashesTakeUpTheScaleOfTheDrawing)
{
    EXPECT_EQ(LossesOf(Drawing(Section("HEADER", "9 $LTSCALE\n40 2.0\n")
                               + Section("TABLES",
                                         "0 LTYPE\n2 DASHED\n49 1\n49 -1\n"
                                         "0 LTYPE\n2 SOLID\n"))),
              "1 line types whose dashes take up the line type scale of the drawing\n"
              "1 variables of the header, as in an empty drawing\n");
}

TEST(DxfTableLosses, StandardStyleWithAFontGetsAnotherName)
{
    EXPECT_EQ(LossesOf(WithTables("0 STYLE\n2 Standard\n3 arial.ttf\n")),
              "1 text styles STANDARD that differ from the drawing's own, under another name\n"
              "1 names changed, so that programs take them\n");
    EXPECT_EQ(LossesOf(WithTables("0 STYLE\n2 Standard\n3 txt\n")), "");
}

TEST(DxfTableLosses, TextStylesAreNeitherVerticalNorTurnedOver)
{
    EXPECT_EQ(LossesOf(WithTables("0 STYLE\n2 A\n3 txt\n70 4\n0 STYLE\n2 B\n3 txt\n71 2\n"
                                  "0 STYLE\n2 C\n3 txt\n4 bigfont\n")),
              "3 text styles that are vertical, turned over or of two fonts, plain\n");
}

TEST(DxfTableLosses, NamesAreMadeSafe)
{
    EXPECT_EQ(LossesOf(WithTables("0 LAYER\n2 A|B\n0 LAYER\n2 C\n")),
              "1 names changed, so that programs take them\n");
}

TEST(DxfTableLosses, HeaderIsThatOfAnEmptyMetricDrawing)
{
    EXPECT_EQ(
        LossesOf(Drawing(Section("HEADER",
                                 "9 $ACADVER\n1 AC1015\n9 $INSUNITS\n70 6\n9 $DIMSTYLE\n2 ISO-25\n"
                                 "9 $EXTMIN\n10 0\n9 $HANDSEED\n5 FF\n"))),
        "1 drawing units, millimetres in the result\n"
        "3 variables of the header, as in an empty drawing\n");
}

TEST(DxfTableLosses, OtherRecordsAreLeftOut)
{
    EXPECT_EQ(
        LossesOf(WithTables("0 TABLE\n2 DIMSTYLE\n0 DIMSTYLE\n2 A\n0 DIMSTYLE\n2 B\n0 ENDTAB\n"
                            "0 TABLE\n2 VIEW\n0 VIEW\n2 C\n0 ENDTAB\n")),
        "3 records of other tables (views, dimension styles), left out\n");
}

TEST(DxfTableLosses, OtherObjectsAreLeftOut)
{
    EXPECT_EQ(LossesOf(Drawing(Section("OBJECTS", "0 DICTIONARY\n5 C\n0 LAYOUT\n5 D\n"))),
              "2 objects that draw nothing (dictionaries, layouts, groups), left out\n");
}

TEST(DxfTableLosses, OtherSectionsAreLeftOut)
{
    EXPECT_EQ(LossesOf(Drawing(Section("THUMBNAILIMAGE", "90 1\n310 FF\n"))),
              "1 sections of other kinds, left out\n");
}

} // namespace velorx::test

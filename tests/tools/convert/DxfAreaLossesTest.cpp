// SPDX-License-Identifier: MIT
// What multilines, hatches, texts and images lose in a conversion, in the form of DxfLossesTest.cpp.
#include "tests/tools/convert/DxfConversion.h"

#include <gtest/gtest.h>

namespace velorx::test {

namespace {

const std::string kColourLoss = "1 colours of multilines, dropped (A 1)\n";
const std::string kMLine = "0 MLINE\n8 A\n2 Road\n40 1\n70 1\n71 1\n72 2\n73 2\n10 0\n"
                           "11 0\n21 0\n31 0\n12 1\n22 0\n32 0\n13 0\n23 1\n33 0\n"
                           "11 9\n21 0\n31 0\n12 1\n22 0\n32 0\n13 0\n23 1\n33 0\n";
const std::string kRoad = "0 MLINESTYLE\n5 A1\n100 AcDbMlineStyle\n2 Road\n70 0\n62 256\n71 2\n"
                          "49 0.5\n62 256\n6 BYLAYER\n49 -0.5\n62 256\n6 BYLAYER\n";

QByteArray WithRoad(const std::string& entities)
{
    return Drawing(Section("ENTITIES", entities) + Section("OBJECTS", kRoad));
}

std::string LossesOfEntity(const std::string& groups)
{
    return LossesOf(WithEntities(groups));
}

// A hatch with the square (0, 0) to (10, 10) for its outline.
std::string Hatch(const std::string& name, const std::string& path, const std::string& rest)
{
    return "0 HATCH\n8 A\n30 0\n2 " + name + "\n70 0\n71 0\n" + path + rest;
}

const std::string kSquare = "91 1\n92 2\n72 0\n73 1\n93 4\n10 0\n20 0\n10 10\n20 0\n10 10\n20 10\n"
                            "10 0\n20 10\n97 0\n";

std::string Text(const std::string& groups)
{
    return "0 TEXT\n8 A\n40 2\n" + groups;
}

std::string Image(const std::string& groups)
{
    return "0 IMAGE\n8 A\n11 1\n22 1\n13 20\n23 10\n340 F1\n70 7\n" + groups;
}

const std::string kClip = "71 1\n91 2\n14 -0.5\n24 -0.5\n14 19.5\n24 9.5\n";

QByteArray WithPicture(const std::string& entities)
{
    return Drawing(Section("ENTITIES", entities)
                   + Section("OBJECTS", "0 IMAGEDEF\n5 F1\n1 plan.png\n"));
}

} // namespace

// ---- Multilines --------------------------------------------------------------------------------

TEST(DxfAreaLosses, MultilinesLoseTheirColours)
{
    EXPECT_EQ(LossesOf(WithRoad(kMLine)), kColourLoss);
}

TEST(DxfAreaLosses, MultilinesHaveTheScaleOfTheFirstOfTheirStyle)
{
    std::string second = kMLine;
    second.replace(second.find("40 1"), 4, "40 3");
    EXPECT_EQ(
        LossesOf(WithRoad(kMLine + second)),
        "2 colours of multilines, dropped (A 2)\n"
        "1 multilines whose scale differs from the first of their style, at that scale (A 1)\n");
}

TEST(DxfAreaLosses, MultilinesAreDrawnOnBothSides)
{
    std::string side = kMLine;
    side.replace(side.find("70 1"), 4, "70 0");
    EXPECT_EQ(LossesOf(WithRoad(side)),
              kColourLoss + "1 multilines drawn to one side of their axis, drawn on both (A 1)\n");
}

TEST(DxfAreaLosses, MultilinesHaveNoCuts)
{
    EXPECT_EQ(LossesOf(WithRoad(kMLine + "74 4\n")),
              kColourLoss + "1 multilines with cuts or without caps, drawn whole (A 1)\n");
}

TEST(DxfAreaLosses, MultilinesOfAnUnknownStyleAreTwoLines)
{
    EXPECT_EQ(LossesOfEntity(kMLine),
              kColourLoss
                  + "1 multilines whose style is not in the drawing, drawn as two lines (A 1)\n");
}

TEST(DxfAreaLosses, MultilineStylesThatNothingIsDrawnInAreLeftOut)
{
    EXPECT_EQ(LossesOf(WithRoad("")), "1 multiline styles that nothing is drawn in, left out\n");
}

// ---- Areas -------------------------------------------------------------------------------------

TEST(DxfAreaLosses, SolidsBecomeHatches)
{
    EXPECT_EQ(LossesOfEntity("0 SOLID\n8 A\n10 0\n20 0\n11 1\n21 0\n12 0\n22 1\n13 1\n23 1\n"),
              "1 solids, written as hatches (A 1)\n");
}

TEST(DxfAreaLosses, SolidHatchIsNoLoss)
{
    EXPECT_EQ(LossesOfEntity(Hatch("SOLID", kSquare, "75 0\n76 1\n98 0\n")), "");
}

TEST(DxfAreaLosses, PatternsStartFromTheMiddleOfTheHatch)
{
    EXPECT_EQ(LossesOfEntity(Hatch("LINES", kSquare,
                                   "75 0\n76 1\n52 0\n41 1\n77 0\n78 1\n53 45\n43 0\n44 0\n45 -1\n"
                                   "46 1\n79 0\n98 0\n")),
              "1 hatches with a pattern, which starts from the middle of each (A 1)\n");
}

TEST(DxfAreaLosses, PatternsHaveTheSizeOfTheFirstOfTheirName)
{
    const std::string first =
        "52 0\n41 1\n77 0\n78 1\n53 45\n43 0\n44 0\n45 -1\n46 1\n79 0\n98 0\n";
    const std::string second =
        "52 0\n41 2\n77 0\n78 1\n53 45\n43 0\n44 0\n45 -2\n46 2\n79 0\n98 0\n";
    EXPECT_EQ(
        LossesOfEntity(Hatch("LINES", kSquare, first) + Hatch("LINES", kSquare, second)),
        "2 hatches with a pattern, which starts from the middle of each (A 2)\n"
        "1 hatches whose pattern is larger or smaller than the first of its name, drawn like that "
        "(A 1)\n");
}

TEST(DxfAreaLosses, PatternsThatAreNotToldBecomePlainLines)
{
    EXPECT_EQ(
        LossesOfEntity(Hatch("BRICK", kSquare, "75 0\n76 1\n98 0\n")),
        "1 hatches whose pattern is not told, filled with plain lines under its name (A 1)\n");
}

TEST(DxfAreaLosses, GradientsBecomeOneColour)
{
    EXPECT_EQ(LossesOfEntity(Hatch("SOLID", kSquare, "75 0\n98 0\n450 1\n470 LINEAR\n")),
              "1 hatches with a gradient, filled with one colour (A 1)\n");
}

TEST(DxfAreaLosses, IslandsAreLeftFree)
{
    const std::string island = "92 2\n72 0\n73 1\n93 3\n10 2\n20 2\n10 4\n20 2\n10 4\n20 4\n97 0\n";
    const std::string paths = "91 2" + kSquare.substr(4) + island;
    EXPECT_EQ(LossesOfEntity(Hatch("SOLID", paths, "75 2\n98 0\n")),
              "1 hatches that take no account of islands, filled around them (A 1)\n");
}

TEST(DxfAreaLosses, CurvedEdgesBecomeChords)
{
    EXPECT_EQ(LossesOfEntity(Hatch("SOLID",
                                   "91 1\n92 1\n93 1\n72 3\n10 5\n20 5\n11 4\n21 0\n40 0.5\n50 0\n"
                                   "51 360\n73 1\n97 0\n",
                                   "75 0\n98 0\n")),
              "1 curved edges of hatches, written in chords (A 1)\n");
}

TEST(DxfAreaLosses, CurvesOfOutermostBoundariesAreNotRead)
{
    EXPECT_EQ(LossesOfEntity(
                  Hatch("SOLID",
                        "91 2" + kSquare.substr(4)
                            + "92 17\n93 1\n72 2\n10 5\n20 5\n40 2\n50 0\n51 360\n73 1\n97 0\n",
                        "75 0\n98 0\n")),
              "1 curved edges of outermost boundaries of hatches, not read: left out (A 1)\n");
}

TEST(DxfAreaLosses, BoundariesThatEncloseNothingAreLeftOut)
{
    EXPECT_EQ(LossesOfEntity(Hatch("SOLID",
                                   "91 2" + kSquare.substr(4)
                                       + "92 2\n72 0\n73 0\n93 2\n10 1\n20 1\n10 2\n20 2\n97 0\n",
                                   "75 0\n98 0\n")),
              "1 boundaries of hatches that enclose nothing, left out (A 1)\n");
}

// ---- Texts -------------------------------------------------------------------------------------

TEST(DxfAreaLosses, TextsSetByTheMiddleAreSetByTheLeftEnd)
{
    EXPECT_EQ(
        LossesOfEntity(Text("1 words\n10 0\n72 1\n11 5\n21 0\n")),
        "1 texts set by their middle or right end, set by the left one at the same place (A 1)\n");
}

TEST(DxfAreaLosses, TextsAreSetByTheirBaseLine)
{
    EXPECT_EQ(LossesOfEntity(Text("1 words\n73 3\n")),
              "1 texts set by their top, middle or bottom, set by their base line (A 1)\n");
}

TEST(DxfAreaLosses, TextsUpsideDownAreUpright)
{
    EXPECT_EQ(LossesOfEntity(Text("1 words\n71 4\n")),
              "1 texts upside down or backwards, upright in the result (A 1)\n");
}

TEST(DxfAreaLosses, LongTextsInUnusualPiecesKeepSemicolons)
{
    EXPECT_EQ(LossesOfEntity("0 MTEXT\n8 A\n40 2\n3 ab\n3 cd\n1 ef\n"),
              "1 long texts with a semicolon between their pieces (A 1)\n");
}

TEST(DxfAreaLosses, RunsOfBlanksBecomeOne)
{
    EXPECT_EQ(LossesOfEntity(Text("1 two  blanks\n")),
              "1 texts with runs of blanks, which become one (A 1)\n");
}

TEST(DxfAreaLosses, TextsAreCutBehind255Letters)
{
    EXPECT_EQ(LossesOfEntity(Text("1 " + std::string(256, 'x') + "\n")),
              "1 texts of more than 255 letters, cut (A 1)\n");
    EXPECT_EQ(LossesOfEntity(Text("1 " + std::string(255, 'x') + "\n")), "");
}

TEST(DxfAreaLosses, LettersBeyondTheBasicPlaneHaveNoPlace)
{
    const QByteArray drawing =
        Drawing(Section("HEADER", "9 $ACADVER\n1 AC1021\n")
                + Section("ENTITIES", Text("1 \xF0\x9F\x98\x80\n") + Text("1 \xC3\xA9\n")));
    EXPECT_EQ(LossesOf(drawing),
              "1 texts with letters that have no place in the file, \"?\" in the result (A 1)\n");
}

TEST(DxfAreaLosses, TextsWithoutALetterAreLeftOut)
{
    EXPECT_EQ(LossesOfEntity(Text("1\n") + "0 MTEXT\n8 B\n1\n"),
              "2 texts without a letter, left out (A 1, B 1)\n");
}

// ---- Images ------------------------------------------------------------------------------------

TEST(DxfAreaLosses, ImageWithAnOutlineLosesNothing)
{
    EXPECT_EQ(LossesOf(WithPicture(Image(kClip))), "");
}

TEST(DxfAreaLosses, ImagesWithoutAFileAreLeftOut)
{
    EXPECT_EQ(LossesOfEntity(Image(kClip)), "1 images without a file, left out\n");
}

TEST(DxfAreaLosses, ImagesOfBlocksStandInTheDrawing)
{
    EXPECT_EQ(
        LossesOf(Drawing(Section("BLOCKS", "0 BLOCK\n2 B\n" + Image(kClip) + "0 ENDBLK\n")
                         + Section("OBJECTS", "0 IMAGEDEF\n5 F1\n1 plan.png\n"))),
        "1 images of blocks, standing in the drawing once and in the block's coordinates (A 1)\n");
}

TEST(DxfAreaLosses, ImagesLoseTheirBrightness)
{
    EXPECT_EQ(LossesOf(WithPicture(Image("281 80\n282 50\n283 20\n" + kClip))),
              "1 images with a brightness, contrast or fading, written without (A 1)\n");
}

TEST(DxfAreaLosses, ImagesWithoutAnOutlineGetOne)
{
    EXPECT_EQ(LossesOf(WithPicture(Image(""))),
              "1 images without an outline, which get one around them (A 1)\n");
}

} // namespace velorx::test

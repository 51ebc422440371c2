// SPDX-License-Identifier: MIT
// What entities lose in a conversion, and that the report tells it: each test is one drawing and all that
// the report says of it.
#include "tests/tools/convert/DxfConversion.h"

#include <gtest/gtest.h>

namespace velorx::test {

namespace {

const std::string kLine = "10 1\n20 2\n11 3\n21 4\n";

std::string LossesOfEntity(const std::string& groups)
{
    return LossesOf(WithEntities(groups));
}

std::string LossesInBlock(const std::string& groups)
{
    return LossesOf(WithBlock(groups));
}

std::string Text(const char* groups)
{
    return std::string("0 TEXT\n8 A\n1 words\n40 2\n") + groups;
}

} // namespace

TEST(DxfLosses, NoneOfAPlainDrawing)
{
    EXPECT_EQ(LossesOfEntity("0 LINE\n8 A\n62 1\n370 25\n" + kLine), "");
}

TEST(DxfLosses, KindsThatAreNotReadAreToldByName)
{
    EXPECT_EQ(LossesOfEntity("0 HELIX\n8 A\n0 HELIX\n8 B\n0 WIPEOUT\n8 A\n"),
              "2 HELIX, not read: left out (A 1, B 1)\n1 WIPEOUT, not read: left out (A 1)\n");
}

TEST(DxfLosses, GroupsThatAreNotReadAreToldByNumber)
{
    EXPECT_EQ(LossesOfEntity("0 LINE\n8 A\n347 4F\n430 paper$white\n" + kLine),
              "1 group 347 of LINE, not read: left out (A 1)\n"
              "1 group 430 of LINE, not read: left out (A 1)\n");
}

TEST(DxfLosses, GroupsAtTheirUsualValueAreNoLoss)
{
    EXPECT_EQ(LossesOfEntity("0 LINE\n8 A\n48 1.0\n60 0\n39 0.0\n284 0\n" + kLine
                             + "0 MTEXT\n8 A\n1 words\n40 2\n72 5\n73 1\n44 1.0\n"),
              "");
}

TEST(DxfLosses, EntitiesThatTheReaderLosesAreToldByKind)
{
    const std::string longText(1500, 'x');
    EXPECT_EQ(LossesOf(Drawing(Section("HEADER", "999 " + longText + "\n")
                               + Section("ENTITIES", "0 LINE\n8 A\n" + kLine))),
              "1 LINE, lost in reading\n");
}

TEST(DxfLosses, EntitiesOfABlockThatDoesNotEndAreLostInReading)
{
    EXPECT_EQ(LossesOf(Drawing(Section("BLOCKS", "0 BLOCK\n2 B\n0 LINE\n8 A\n" + kLine)
                               + Section("ENTITIES", "0 CIRCLE\n8 A\n40 1\n"))),
              "1 LINE, lost in reading\n1 ARC, lost in reading\n");
}

TEST(DxfLosses, SectionsBehindTheObjectsAreRead)
{
    EXPECT_EQ(
        LossesOf(Drawing(Section("OBJECTS", "") + Section("ENTITIES", "0 LINE\n8 A\n" + kLine))),
        "");
}

TEST(DxfLosses, ObjectsAheadOfASectionThatIsNotReadAreRead)
{
    const std::string image =
        "0 IMAGE\n8 A\n11 1\n22 1\n13 9\n23 9\n340 F1\n71 1\n91 2\n14 0\n24 0\n"
        "14 8\n24 8\n";
    EXPECT_EQ(LossesOf(Drawing(Section("ENTITIES", image)
                               + Section("OBJECTS", "0 IMAGEDEF\n5 F1\n1 plan.png\n")
                               + Section("ACDSDATA", "70 2\n"))),
              "1 sections of other kinds, left out\n");
}

// ---- Spaces and blocks -------------------------------------------------------------------------

TEST(DxfLosses, ElementsOfPaperSpaceAreLeftOut)
{
    EXPECT_EQ(LossesOfEntity("0 LINE\n8 A\n67 1\n" + kLine
                             + "0 INSERT\n2 B\n8 A\n67 1\n66 1\n"
                               "0 ATTRIB\n8 A\n1 x\n2 T\n70 1\n0 SEQEND\n"),
              "2 elements of paper space, left out (A 2)\n");
}

TEST(DxfLosses, ElementsOfLayoutBlocksAreLeftOut)
{
    EXPECT_EQ(LossesOf(Drawing(Section("BLOCKS",
                                       "0 BLOCK\n2 *Paper_Space\n0 LINE\n8 A\n" + kLine
                                           + "0 CIRCLE\n8 B\n40 1\n0 ENDBLK\n"))),
              "2 elements of layout blocks, left out (A 1, B 1)\n");
}

TEST(DxfLosses, ElementsOfBlocksWithoutANameAreLeftOut)
{
    EXPECT_EQ(LossesOf(Drawing(Section("BLOCKS", "0 BLOCK\n0 LINE\n8 A\n" + kLine + "0 ENDBLK\n"))),
              "1 elements of blocks without a name, left out (A 1)\n");
}

TEST(DxfLosses, SecondBlockOfANameIsLeftOut)
{
    const std::string block = "0 BLOCK\n2 B\n0 LINE\n8 0\n62 1\n" + kLine + "0 ENDBLK\n";
    EXPECT_EQ(LossesOf(Drawing(Section("BLOCKS", block + block))),
              "1 elements of blocks defined once more under the same name, left out (0 1)\n");
}

TEST(DxfLosses, UndefinedBlockIsWrittenEmpty)
{
    EXPECT_EQ(LossesOfEntity("0 INSERT\n8 A\n2 Nowhere\n"),
              "1 blocks that are inserted but not defined, written empty\n");
}

TEST(DxfLosses, OutsideBlockWithoutAFileLosesItsReference)
{
    EXPECT_EQ(LossesOf(WithBlock("70 4\n")),
              "1 blocks that refer to a file without naming it, written without the reference\n");
}

TEST(DxfLosses, BasePointGoesIntoTheInserts)
{
    EXPECT_EQ(LossesOf(WithBlock("10 5\n20 0\n")),
              "1 base points of blocks, made up for in the points of their inserts\n");
}

TEST(DxfLosses, ElementsOfBlocksMoveToLayer0)
{
    EXPECT_EQ(LossesInBlock("0 LINE\n8 A\n62 1\n" + kLine),
              "1 elements of blocks moved to layer 0 of their block (A 1)\n");
}

TEST(DxfLosses, HiddenElementsOfBlocksShow)
{
    const std::string layer = Section("TABLES", "0 LAYER\n2 A\n70 1\n62 7\n");
    EXPECT_EQ(
        LossesOf(Drawing(
            layer + Section("BLOCKS", "0 BLOCK\n2 B\n0 LINE\n8 A\n62 1\n" + kLine + "0 ENDBLK\n"))),
        "1 elements of blocks moved to layer 0 of their block (A 1)\n"
        "1 elements of blocks on hidden layers, which show in the result (A 1)\n");
}

TEST(DxfLosses, ElementsOfBlocksLoseTheLineTypeOfTheInsertsLayer)
{
    const std::string layer = Section("TABLES", "0 LAYER\n2 Roads\n6 DASHED\n");
    EXPECT_EQ(
        LossesOf(Drawing(
            layer + Section("BLOCKS", "0 BLOCK\n2 B\n0 LINE\n8 0\n62 1\n" + kLine + "0 ENDBLK\n"))),
        "1 elements of blocks with the line type or weight of their insert's layer, without it "
        "(0 1)\n1 layers with a line type, which their elements carry instead (Roads 1)\n");
}

TEST(DxfLosses, ElementsOfBlocksAmongWhiteOnesLoseTheColourOfTheInsertsLayer)
{
    EXPECT_EQ(LossesInBlock("0 LINE\n8 0\n" + kLine + "0 LINE\n8 0\n62 7\n" + kLine),
              "1 elements of blocks in the colour of their insert's layer, in colour 7 (0 1)\n");
}

TEST(DxfLosses, AttributeDefinitionsOutsideBlocksAreLeftOut)
{
    EXPECT_EQ(LossesOfEntity("0 ATTDEF\n8 A\n1 x\n2 T\n"),
              "1 attribute definitions outside blocks, left out (A 1)\n");
}

TEST(DxfLosses, PromptOfAnAttributeDefinitionGivesWayToItsTag)
{
    EXPECT_EQ(LossesInBlock("0 ATTDEF\n8 0\n1 x\n2 T\n3 Which?\n40 1\n"),
              "1 attribute definitions with a prompt, which their tag replaces (0 1)\n");
}

TEST(DxfLosses, AttributeDefinitionsAreNotConstantVerifiedOrPreset)
{
    EXPECT_EQ(LossesInBlock("0 ATTDEF\n8 0\n1 x\n2 T\n40 1\n70 2\n"),
              "1 attribute definitions that are constant, verified or preset, plain (0 1)\n");
}

TEST(DxfLosses, InsertsInRowsAndColumnsAreWrittenOnce)
{
    EXPECT_EQ(LossesOf(WithBlock("", "0 INSERT\n8 A\n2 B\n70 3\n71 2\n44 10\n45 10\n")),
              "1 inserts in rows and columns, written once each (A 1)\n");
}

TEST(DxfLosses, InsertsLoseTheirLineType)
{
    EXPECT_EQ(LossesOf(WithBlock("", "0 INSERT\n8 A\n2 B\n6 DASHED\n")),
              "1 inserts with a line type, dropped (A 1)\n");
}

TEST(DxfLosses, InsertsLoseTheirFactorAlongZ)
{
    EXPECT_EQ(LossesOf(WithBlock("", "0 INSERT\n8 A\n2 B\n43 2\n")),
              "1 inserts with a factor along Z, dropped (A 1)\n");
}

// ---- All kinds ---------------------------------------------------------------------------------

TEST(DxfLosses, InvisibleElementsShow)
{
    EXPECT_EQ(LossesOfEntity("0 LINE\n8 A\n60 1\n" + kLine),
              "1 elements marked as invisible, which show in the result (A 1)\n");
}

TEST(DxfLosses, HiddenAttributesAmongThoseThatShowAreShown)
{
    const std::string insert = "0 INSERT\n8 A\n2 B\n66 1\n0 ATTRIB\n8 C\n1 x\n2 T\n40 1\n70 ";
    EXPECT_EQ(LossesOf(WithBlock("", insert + "1\n0 SEQEND\n" + insert + "0\n0 SEQEND\n")),
              "1 attributes that are hidden, which show in the result\n");
}

TEST(DxfLosses, ElementsSeenFromBehindAreMirroredInPart)
{
    EXPECT_EQ(LossesOfEntity(Text("230 -1\n") + "0 MTEXT\n8 A\n1 x\n40 2\n230 -1\n"),
              "2 elements drawn on a plane seen from behind, mirrored in part (A 2)\n");
    const std::string hatch = "0 HATCH\n8 A\n230 -1\n2 SOLID\n91 1\n92 2\n93 3\n10 0\n20 0\n"
                              "10 5\n20 0\n10 5\n20 5\n97 0\n75 0\n76 1\n";
    EXPECT_EQ(LossesOfEntity(hatch + "70 1\n"), "");
    EXPECT_NE(LossesOfEntity(hatch + "70 0\n").find("mirrored in part (A 1)"), std::string::npos);
}

TEST(DxfLosses, ShapesSeenFromBehindLoseNothing)
{
    EXPECT_EQ(LossesOf(WithBlock("", "0 INSERT\n8 A\n2 B\n230 -1\n")), "");
    EXPECT_EQ(LossesOfEntity("0 CIRCLE\n8 A\n40 1\n62 1\n230 -1\n"),
              "1 circles, written as whole arcs (A 1)\n");
    EXPECT_EQ(LossesOfEntity("0 LWPOLYLINE\n8 A\n230 -1\n90 2\n10 0\n20 0\n42 1\n10 5\n20 0\n"),
              "");
    EXPECT_EQ(LossesOfEntity("0 POLYLINE\n8 A\n70 8\n210 1\n230 0\n0 VERTEX\n10 4\n30 1\n"
                             "0 VERTEX\n10 5\n0 SEQEND\n"),
              "");
}

TEST(DxfLosses, ObjectsInTextsLeaveAloneTheGroupsOfTheText)
{
    EXPECT_EQ(
        LossesOfEntity("0 MTEXT\n8 A\n1 words\n40 2\n101 Embedded Object\n70 1\n10 1\n46 7\n"),
        "1 group 101 of MTEXT, not read: left out (A 1)\n");
}

TEST(DxfLosses, LeadersBecomeLinesWithAnArrowHead)
{
    const std::string leader = "0 LEADER\n8 A\n3 STANDARD\n71 1\n76 2\n10 0\n20 0\n10 5\n20 5\n";
    EXPECT_EQ(LossesOfEntity(leader),
              "1 solids, written as hatches (A 1)\n"
              "1 leaders, drawn as lines or curves with an arrow head (A 1)\n");
    EXPECT_EQ(LossesOfEntity(leader + "67 1\n"), "1 elements of paper space, left out (A 1)\n");
}

TEST(DxfLosses, ElementsOnTiltedPlanesAreLaidIntoThePlan)
{
    EXPECT_EQ(LossesOfEntity("0 ARC\n8 A\n40 1\n51 90\n210 1\n220 0\n230 0\n"),
              "1 elements drawn on a tilted plane, laid into the plan (A 1)\n");
}

TEST(DxfLosses, ThickElementsAreFlat)
{
    EXPECT_EQ(LossesOfEntity("0 LINE\n8 A\n39 2.5\n" + kLine),
              "1 elements with a thickness, flat in the result (A 1)\n");
}

TEST(DxfLosses, HeightsOfTextsAreDropped)
{
    EXPECT_EQ(LossesOfEntity(Text("30 128.5\n")),
              "1 heights of texts, areas, images and lines without ends, dropped (A 1)\n");
}

TEST(DxfLosses, HeightsOfLinesWithoutEndsAreDropped)
{
    EXPECT_EQ(LossesOfEntity("0 XLINE\n8 A\n30 5\n11 1\n31 0.5\n"),
              "1 heights of texts, areas, images and lines without ends, dropped (A 1)\n");
}

TEST(DxfLosses, ExtendedDataIsDropped)
{
    EXPECT_EQ(LossesOfEntity("0 LINE\n8 A\n" + kLine + "1001 APP\n1000 text\n"),
              "1 elements with extended data, dropped (A 1)\n");
}

TEST(DxfLosses, ElementsWithNothingToDrawAreRefused)
{
    EXPECT_EQ(LossesOfEntity("0 LWPOLYLINE\n8 A\n90 5\n10 1\n20 1\n0 LINE\n8 B\n10 nan\n"),
              "2 elements refused: nothing to draw, or a number that is none (A 1, B 1)\n");
}

TEST(DxfLosses, RefusedElementsLoseNothingElse)
{
    EXPECT_EQ(LossesOfEntity("0 CIRCLE\n8 A\n40 inf\n"),
              "1 elements refused: nothing to draw, or a number that is none (A 1)\n");
}

// ---- Colours -----------------------------------------------------------------------------------

TEST(DxfLosses, ColourByLayerAmongWhiteElementsIsLost)
{
    EXPECT_EQ(LossesOf(WithTables("0 LAYER\n2 A\n62 1\n",
                                  "0 LINE\n8 A\n62 256\n" + kLine + "0 LINE\n8 A\n62 7\n" + kLine)),
              "1 elements with the colour \"by layer\" written out, in colour 7 (A 1)\n"
              "1 layers with a colour, which their elements carry instead (A 1)\n");
}

TEST(DxfLosses, ColourByLayerOfAWhiteLayerIsNoLoss)
{
    EXPECT_EQ(LossesOf(WithTables("0 LAYER\n2 A\n62 7\n",
                                  "0 LINE\n8 A\n62 256\n" + kLine + "0 LINE\n8 A\n62 7\n" + kLine)),
              "");
}

TEST(DxfLosses, TrueColourWithoutANumberIsLost)
{
    EXPECT_EQ(LossesOfEntity("0 LINE\n8 A\n420 255\n" + kLine),
              "1 elements with a true colour but no colour number, in the layer's colour (A 1)\n");
}

TEST(DxfLosses, BlackAsATrueColourBecomesNumber7)
{
    EXPECT_EQ(LossesOfEntity("0 LINE\n8 A\n62 250\n420 0\n" + kLine
                             + "0 LINE\n8 A\n62 250\n420 256\n" + kLine),
              "2 elements with black as a true colour, in colour 7 (A 2)\n");
}

TEST(DxfLosses, TrueColoursBecomeTheNearestInVersion2000)
{
    const QByteArray drawing =
        WithEntities("0 LINE\n8 A\n62 1\n420 16711681\n" + kLine + "0 LINE\n8 A\n62 1\n" + kLine);
    EXPECT_EQ(
        LossesOf(drawing, 1015),
        "1 elements whose colour the version does not have, in the nearest of its 255 (A 1)\n");
    EXPECT_EQ(LossesOf(drawing, 1018), "");
}

TEST(DxfLosses, ElementsBecomeOpaque)
{
    EXPECT_EQ(LossesOfEntity("0 LINE\n8 A\n440 33554559\n" + kLine + "0 LINE\n8 A\n440 33554687\n"
                             + kLine),
              "1 elements that let others show through, opaque (A 1)\n");
}

// ---- Line types and weights --------------------------------------------------------------------

TEST(DxfLosses, LineTypeScaleOfAnElementIsDropped)
{
    EXPECT_EQ(LossesOfEntity("0 LINE\n8 A\n48 0.5\n" + kLine),
              "1 elements with a line type scale, at scale 1 in the result (A 1)\n");
}

TEST(DxfLosses, LineTypesOfPointsAndPolylinesInSpaceAreDropped)
{
    EXPECT_EQ(LossesOfEntity("0 POINT\n8 A\n6 DASHED\n"
                             "0 POLYLINE\n8 B\n70 8\n6 DASHED\n0 VERTEX\n10 1\n0 SEQEND\n"),
              "2 line types of points, faces, texts, areas and polylines in space, dropped "
              "(A 1, B 1)\n");
}

TEST(DxfLosses, LineWeightsByBlockAreDropped)
{
    EXPECT_EQ(LossesInBlock("0 LINE\n8 0\n62 1\n370 -2\n" + kLine),
              "1 line weights by block, dropped (0 1)\n");
}

TEST(DxfLosses, LineWeightsOfTextsAndAreasAreDropped)
{
    EXPECT_EQ(LossesOfEntity(Text("370 30\n")),
              "1 line weights of points, texts, areas, multilines, inserts and images, dropped "
              "(A 1)\n");
}

TEST(DxfLosses, LineWeight0GivesWayToThatOfTheLayer)
{
    EXPECT_EQ(LossesOfEntity("0 LINE\n8 A\n370 0\n" + kLine),
              "1 elements with line weight 0, in that of their layer (A 1)\n");
}

// ---- Lines and curves --------------------------------------------------------------------------

TEST(DxfLosses, CirclesBecomeArcs)
{
    EXPECT_EQ(LossesOfEntity("0 CIRCLE\n8 A\n40 1\n0 CIRCLE\n8 A\n40 2\n"),
              "2 circles, written as whole arcs (A 2)\n");
}

TEST(DxfLosses, EllipsesBecomeSplines)
{
    EXPECT_EQ(LossesOfEntity("0 ELLIPSE\n8 A\n11 2\n40 0.5\n42 6.28\n"),
              "1 ellipses, written as splines of third degree (A 1)\n");
}

TEST(DxfLosses, RaysBecomeLinesWithoutEnds)
{
    EXPECT_EQ(LossesOfEntity("0 RAY\n8 A\n11 1\n"),
              "1 rays, written as lines without ends (A 1)\n");
}

TEST(DxfLosses, OldPolylinesInThePlanBecomeNewOnes)
{
    EXPECT_EQ(
        LossesOfEntity("0 POLYLINE\n8 A\n0 VERTEX\n10 1\n30 5\n0 VERTEX\n10 2\n30 5\n0 SEQEND\n"),
        "1 polylines of the old form in the plan, written in the new one (A 1)\n");
}

TEST(DxfLosses, HeightOfAnOldPolylineBesideItsVerticesIsDropped)
{
    EXPECT_EQ(LossesOfEntity("0 POLYLINE\n8 A\n30 5\n0 VERTEX\n10 1\n0 VERTEX\n10 2\n0 SEQEND\n"),
              "1 heights of texts, areas, images and lines without ends, dropped (A 1)\n"
              "1 polylines of the old form in the plan, written in the new one (A 1)\n");
}

TEST(DxfLosses, PolylinesInThePlanThatRiseBecomePolylinesInSpace)
{
    EXPECT_EQ(
        LossesOfEntity("0 POLYLINE\n8 A\n0 VERTEX\n10 1\n30 5\n0 VERTEX\n10 2\n30 6\n0 SEQEND\n"),
        "1 polylines in the plan whose heights change, written as polylines in space (A 1)\n");
}

TEST(DxfLosses, MeshesBecomePolylines)
{
    EXPECT_EQ(LossesOfEntity("0 POLYLINE\n8 A\n70 16\n71 2\n72 1\n0 VERTEX\n10 1\n0 VERTEX\n10 2\n"
                             "0 SEQEND\n"),
              "1 polylines of the old form in the plan, written in the new one (A 1)\n"
              "1 meshes, written as polylines through their vertices (A 1)\n");
}

TEST(DxfLosses, ClosedPolylinesOfTwoVerticesAreOpen)
{
    EXPECT_EQ(LossesOfEntity("0 LWPOLYLINE\n8 A\n90 2\n70 1\n10 1\n20 1\n10 2\n20 2\n"),
              "1 closed polylines of two vertices, open in the result (A 1)\n");
}

TEST(DxfLosses, VerticesInOnePlaceAreOne)
{
    EXPECT_EQ(LossesOfEntity("0 LWPOLYLINE\n8 A\n90 3\n10 1\n20 1\n10 1\n20 1.00001\n10 2\n20 2\n"
                             "0 POLYLINE\n8 B\n70 8\n0 VERTEX\n10 1\n0 VERTEX\n10 1\n"
                             "0 VERTEX\n10 1\n30 1\n0 SEQEND\n"),
              "2 vertices that lie on the one before them, left out (A 1, B 1)\n");
}

TEST(DxfLosses, PolylinesHaveOneWidth)
{
    EXPECT_EQ(
        LossesOfEntity("0 LWPOLYLINE\n8 A\n90 2\n10 1\n20 1\n40 0\n41 2\n10 2\n20 2\n40 2\n41 2\n"),
        "1 polylines whose width changes, in one width (A 1)\n");
}

TEST(DxfLosses, OldPolylinesHaveOneWidth)
{
    EXPECT_EQ(LossesOfEntity("0 POLYLINE\n8 A\n40 1\n41 1\n0 VERTEX\n10 1\n40 3\n41 3\n"
                             "0 VERTEX\n10 2\n0 SEQEND\n"),
              "1 polylines of the old form in the plan, written in the new one (A 1)\n"
              "1 polylines whose width changes, in one width (A 1)\n");
}

TEST(DxfLosses, SplinesOfTheSecondDegreeAreRaised)
{
    EXPECT_EQ(LossesOfEntity("0 SPLINE\n8 A\n71 2\n40 0\n40 0\n40 0\n40 1\n40 1\n40 1\n"
                             "10 0\n20 0\n30 0\n10 1\n20 2\n30 0\n10 2\n20 0\n30 0\n"),
              "1 splines of another degree than the third, written in the third (A 1)\n");
}

TEST(DxfLosses, SplinesOfFitPointsBecomeCurvesThroughThem)
{
    EXPECT_EQ(
        LossesOfEntity("0 SPLINE\n8 A\n11 0\n21 0\n31 0\n11 1\n21 2\n31 0\n11 2\n21 0\n31 0\n"),
        "1 splines of fit points alone, written as curves through them (A 1)\n");
}

const std::string kSpline =
    "0 SPLINE\n8 A\n71 3\n40 0\n40 0\n40 0\n40 0\n40 1\n40 1\n40 1\n40 1\n"
    "10 0\n20 0\n30 0\n10 1\n20 2\n30 0\n10 2\n20 2\n30 0\n10 3\n20 0\n30 0\n";

TEST(DxfLosses, FitPointsBesideControlPointsAreDropped)
{
    EXPECT_EQ(LossesOfEntity(kSpline + "11 0\n21 0\n31 0\n11 3\n21 0\n31 0\n"),
              "1 splines with fit points or end tangents beside their control points, without them "
              "(A 1)\n");
}

TEST(DxfLosses, WeightsOfSplinesAreDropped)
{
    EXPECT_EQ(LossesOfEntity(kSpline + "41 1\n41 2\n41 2\n41 1\n"),
              "1 splines with weights, which are dropped (A 1)\n");
}

TEST(DxfLosses, HiddenEdgesOfFacesShow)
{
    EXPECT_EQ(
        LossesOfEntity("0 3DFACE\n8 A\n70 3\n10 0\n20 0\n30 0\n11 1\n12 1\n22 1\n13 0\n23 1\n"),
        "1 faces with hidden edges, which show in the result (A 1)\n");
}

} // namespace velorx::test

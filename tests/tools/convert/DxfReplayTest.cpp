// SPDX-License-Identifier: MIT
// What a conversion carries over of lines, curves, areas and images, read back by the library.
#include "tools/velorx/convert/DxfReplay.h"
#include "tests/support/DxfRecorder.h"
#include "tests/support/LocaleCodec.h"
#include "tests/tools/convert/DxfConversion.h"

#include <gtest/gtest.h>

namespace velorx::test {

namespace {

std::string Entity(const std::string& groups, const char* operation)
{
    return ResultOf(WithEntities(groups), operation);
}

const std::string kLine = "10 1\n20 2\n30 3\n11 4\n21 5\n31 6\n";

} // namespace

TEST(DxfReplay, LineKeepsItsEnds)
{
    EXPECT_EQ(Entity("0 LINE\n8 A\n62 1\n" + kLine, "Line "),
              "Line layer=\"A\" color=#0000FF start=(1 2 3) end=(4 5 6)\n");
}

TEST(DxfReplay, LineKeepsItsLineTypeAndWeight)
{
    EXPECT_EQ(
        ResultOf(WithTables("0 LTYPE\n2 DASHED\n49 1\n49 -1\n",
                            "0 LINE\n8 A\n62 1\n6 dashed\n370 35\n" + kLine),
                 "Line "),
        "Line layer=\"A\" color=#0000FF weight=35 style=\"DASHED\" start=(1 2 3) end=(4 5 6)\n");
}

TEST(DxfReplay, EveryLineWeightComesOutAsItself)
{
    for (const int weight : {5,  9,  13, 15, 18,  20,  25,  30,  35,  40,  50, 53,
                             60, 70, 80, 90, 100, 106, 120, 140, 158, 200, 211})
    {
        const std::string line =
            Entity("0 LINE\n8 A\n370 " + std::to_string(weight) + '\n' + kLine, "Line ");
        EXPECT_NE(line.find(" weight=" + std::to_string(weight) + ' '), std::string::npos) << line;
    }
}

TEST(DxfReplay, LineTakesWeightAndLineTypeOfItsLayer)
{
    EXPECT_EQ(ResultOf(WithTables("0 LTYPE\n2 DOT\n0 LAYER\n2 A\n62 7\n6 DOT\n370 30\n",
                                  "0 LINE\n8 A\n370 -1\n" + kLine),
                       "Line "),
              "Line layer=\"A\" weight=30 style=\"DOT\" start=(1 2 3) end=(4 5 6)\n");
}

TEST(DxfReplay, ConstructionLinesKeepOriginAndDirection)
{
    EXPECT_EQ(
        Entity("0 XLINE\n8 A\n10 1\n20 2\n11 0\n21 -3\n0 RAY\n8 A\n10 5\n20 6\n11 0.6\n21 0.8\n",
               "XLine "),
        "XLine layer=\"A\" origin=(1 2) direction=(0 -10)\n"
        "XLine layer=\"A\" origin=(5 6) direction=(6 8)\n");
}

TEST(DxfReplay, ArcKeepsItsAngles)
{
    EXPECT_EQ(Entity("0 ARC\n8 A\n10 1\n20 2\n30 3\n40 5\n50 30\n51 300\n", "Arc "),
              "Arc layer=\"A\" center=(1 2 3) radius=5 start=30 end=300\n");
}

TEST(DxfReplay, CircleRunsFrom0To360)
{
    EXPECT_EQ(Entity("0 CIRCLE\n8 A\n10 1\n20 2\n40 5\n", "Arc "),
              "Arc layer=\"A\" center=(1 2 0) radius=5 end=360\n");
}

TEST(DxfReplay, EllipseBecomesASplineFromItsStartToItsEnd)
{
    const std::string spline = Entity(
        "0 ELLIPSE\n8 A\n62 1\n10 10\n20 20\n11 4\n21 0\n40 0.5\n41 0\n42 3.14159265358979\n",
        "Spline ");
    EXPECT_EQ(spline.rfind("Spline layer=\"A\" color=#0000FF knots=[0 0 0 0 1 1 1 2", 0), 0U)
        << spline;
    EXPECT_NE(spline.find("control=[(14 20 0) "), std::string::npos) << spline;
    EXPECT_NE(spline.find(" (6 20 0)]"), std::string::npos) << spline;
}

TEST(DxfReplay, CubicSplineKeepsKnotsAndPoints)
{
    EXPECT_EQ(
        Entity("0 SPLINE\n8 A\n40 0\n40 0\n40 0\n40 0\n40 2\n40 2\n40 2\n40 2\n10 0\n20 0\n30 1\n"
               "10 1\n20 2\n30 1\n10 2\n20 2\n30 1\n10 3\n20 0\n30 1\n",
               "Spline "),
        "Spline layer=\"A\" knots=[0 0 0 0 2 2 2 2] "
        "control=[(0 0 1) (1 2 1) (2 2 1) (3 0 1)]\n");
}

TEST(DxfReplay, PolylineKeepsHeightWidthAndBulges)
{
    EXPECT_EQ(Entity("0 LWPOLYLINE\n8 A\n90 3\n38 12.5\n43 0.3\n10 0\n20 0\n10 4\n20 0\n42 0.5\n"
                     "10 4\n20 4\n",
                     "LWPolyline "),
              "LWPolyline layer=\"A\" vertices=[(0 0 0) (4 0 0)^0.5 (4 4 0)] width=0.3 "
              "elevation=12.5\n");
}

TEST(DxfReplay, ClosedPolylineStaysClosed)
{
    EXPECT_EQ(Entity("0 LWPOLYLINE\n8 A\n90 3\n70 1\n10 0\n20 0\n10 4\n20 0\n10 4\n20 4\n",
                     "LWPolyline "),
              "LWPolyline layer=\"A\" vertices=[(0 0 0) (4 0 0) (4 4 0) (0 0 0)]\n");
}

TEST(DxfReplay, ClosedPolylineThatRepeatsItsFirstVertexWithABulgeEndsOnce)
{
    const QByteArray drawing = WithEntities("0 LWPOLYLINE\n8 A\n90 4\n70 1\n10 0\n20 0\n42 0.5\n"
                                            "10 4\n20 0\n10 4\n20 4\n10 0\n20 0\n");
    const auto records = RecordsOf(drawing, "LWPOLYLINE");
    EXPECT_NE(records.find("90 4\n70 129\n"), std::string::npos) << records;
}

TEST(DxfReplay, ConvertingTwiceGivesTheSameDrawing)
{
    const QByteArray drawing = WithTables(
        "0 LAYER\n2 A\n0 LAYER\n2 B\n",
        "0 LWPOLYLINE\n8 A\n62 1\n90 4\n70 1\n10 0\n20 0\n42 0.5\n10 4\n20 0\n10 4\n20 4\n10 0\n20 "
        "0\n"
        "0 CIRCLE\n8 A\n40 2\n0 TEXT\n8 A\n1 words\n40 2\n50 45\n51 10\n0 POINT\n8 B\n62 256\n");
    const QByteArray once = Converted(drawing).drawing;
    EXPECT_TRUE(Converted(once).drawing == once);
}

TEST(DxfReplay, OldPolylineInThePlanKeepsItsHeight)
{
    const auto record = RecordsOf(
        WithEntities("0 POLYLINE\n8 A\n70 1\n40 0.2\n41 0.2\n0 VERTEX\n10 0\n20 0\n30 7\n42 1\n"
                     "0 VERTEX\n10 4\n20 0\n30 7\n42 1\n0 SEQEND\n"),
        "LWPOLYLINE");
    EXPECT_NE(record.find("90 3\n70 129\n43 0.200000\n38 7.000000\n"), std::string::npos) << record;
    EXPECT_NE(record.find("10 4.000000\n20 0.000000\n30 0.000000\n42 1.0000000000\n10 0.000000\n"),
              std::string::npos)
        << record;
}

TEST(DxfReplay, OldPolylineThatEndsWhereItStartsIsNotClosedTwice)
{
    const auto records =
        RecordsOf(WithEntities("0 POLYLINE\n8 A\n70 1\n0 VERTEX\n10 0\n0 VERTEX\n10 4\n"
                               "0 VERTEX\n10 4\n20 4\n0 VERTEX\n10 0\n0 SEQEND\n"),
                  "LWPOLYLINE");
    EXPECT_NE(records.find("90 4\n70 129\n"), std::string::npos) << records;
}

TEST(DxfReplay, PolylineInSpaceKeepsItsVerticesAndCloses)
{
    EXPECT_EQ(Entity("0 POLYLINE\n8 A\n70 9\n0 VERTEX\n10 0\n30 1\n0 VERTEX\n10 4\n30 2\n"
                     "0 VERTEX\n10 4\n20 4\n30 3\n0 SEQEND\n",
                     "Polyline "),
              "Polyline layer=\"A\" vertices=[(0 0 1) (4 0 2) (4 4 3) (0 0 1)] closed=true\n");
}

TEST(DxfReplay, FaceKeepsItsCorners)
{
    EXPECT_EQ(Entity("0 3DFACE\n8 A\n10 0\n20 0\n30 1\n11 1\n21 0\n31 2\n12 1\n22 1\n32 3\n13 "
                     "0\n23 1\n33 4\n",
                     "3DFace "),
              "3DFace layer=\"A\" corners=[(0 0 1) (1 0 2) (1 1 3) (0 1 4)]\n");
}

TEST(DxfReplay, CornersOfASolidAreTakenRoundAbout)
{
    EXPECT_EQ(Entity("0 SOLID\n8 A\n10 0\n20 0\n11 4\n21 0\n12 0\n22 3\n13 4\n23 3\n", "Hatch "),
              "Hatch layer=\"A\" loops=[[{LWPolyline vertices=[(0 0 0) (4 0 0) (4 3 0) (0 3 0) "
              "(0 0 0)]}]]\n");
}

TEST(DxfReplay, TriangleOfASolidHasThreeCorners)
{
    const auto records = RecordsOf(
        WithEntities("0 SOLID\n8 A\n10 0\n20 0\n11 4\n21 0\n12 2\n22 3\n13 2\n23 3\n"), "HATCH");
    EXPECT_NE(records.find("93 3\n"), std::string::npos) << records;
}

TEST(DxfReplay, HatchKeepsItsPatternLines)
{
    const auto records = RecordsOf(
        WithEntities(
            "0 HATCH\n8 A\n2 ANSI31\n70 0\n71 0\n91 1\n92 2\n72 0\n73 1\n93 4\n10 0\n20 0\n"
            "10 10\n20 0\n10 10\n20 10\n10 0\n20 10\n97 0\n75 0\n76 1\n52 30\n41 2.5\n77 0\n"
            "78 1\n53 75\n43 1\n44 2\n45 -2\n46 0.5\n79 2\n49 1.5\n49 -0.5\n98 0\n"),
        "HATCH");
    EXPECT_NE(records.find("2 ANSI31\n70 0\n71 0\n91 1\n"), std::string::npos) << records;
    EXPECT_NE(
        records.find("52 30.000000\n41 2.500000\n77 0\n78 1\n53 75.000000\n43 5.000000\n"
                     "44 5.000000\n45 -2.000000\n46 0.500000\n79 2\n49 1.500000\n49 -0.500000\n"),
        std::string::npos)
        << records;
}

TEST(DxfReplay, PatternTurnsWithTheHatch)
{
    const std::string square =
        "91 1\n92 2\n72 0\n73 1\n93 3\n10 0\n20 0\n10 9\n20 0\n10 9\n20 9\n97 0\n";
    const std::string hatch = "0 HATCH\n8 A\n2 P\n70 0\n71 0\n" + square;
    const auto records = RecordsOf(
        WithEntities(hatch + "52 0\n41 1\n77 0\n78 1\n53 0\n43 0\n44 0\n45 0\n46 2\n79 0\n98 0\n"
                     + hatch
                     + "52 90\n41 1\n77 0\n78 1\n53 90\n43 0\n44 0\n45 -2\n46 0\n79 0\n98 0\n"),
        "HATCH");
    EXPECT_NE(records.find("53 0.000000\n43 6.000000\n44 3.000000\n45 0.000000\n46 2.000000\n"),
              std::string::npos)
        << records;
    EXPECT_NE(records.find("53 90.000000\n43 6.000000\n44 3.000000\n45 -2.000000\n46 0.000000\n"),
              std::string::npos)
        << records;
}

TEST(DxfReplay, HatchKeepsItsIslands)
{
    EXPECT_EQ(
        Entity(
            "0 HATCH\n8 A\n2 SOLID\n70 1\n71 0\n91 2\n92 2\n72 0\n73 1\n93 3\n10 1\n20 1\n10 2\n20 "
            "1\n"
            "10 2\n20 2\n97 0\n92 2\n72 0\n73 1\n93 3\n10 0\n20 0\n10 9\n20 0\n10 9\n20 9\n97 0\n"
            "75 0\n98 0\n",
            "Hatch "),
        "Hatch layer=\"A\" loops=[[{LWPolyline vertices=[(0 0 0) (9 0 0) (9 9 0) "
        "(0 0 0)]}] [{LWPolyline vertices=[(1 1 0) (2 1 0) (2 2 0) (1 1 0)]}]]\n");
}

TEST(DxfReplay, MultilineKeepsVerticesAndStyle)
{
    const std::string source =
        Section("ENTITIES",
                "0 MLINE\n8 A\n2 Road\n40 2\n70 1\n71 1\n72 2\n73 2\n"
                "11 0\n21 0\n31 0\n12 1\n22 0\n32 0\n13 0\n23 1\n33 0\n"
                "11 9\n21 0\n31 0\n12 1\n22 0\n32 0\n13 0\n23 1\n33 0\n")
        + Section(
            "OBJECTS",
            "0 MLINESTYLE\n5 A1\n100 AcDbMlineStyle\n2 Road\n70 0\n3 Lane\n62 256\n51 90\n52 90\n"
            "71 2\n49 0.5\n62 1\n6 DOT\n49 -0.5\n62 2\n6 BYLAYER\n");
    EXPECT_EQ(ResultOf(Drawing(source), "MLine "),
              "MLine layer=\"A\" mstyle=\"Road\" vertices=[(0 0 0) (9 0 0)] "
              "segments=[(1 0 0)/(0 1 0) (1 0 0)/(0 1 0)]\n");
    EXPECT_NE(RecordsOf(Drawing(source), "MLINESTYLE")
                  .find("2 Road\n70 0\n3 Lane\n62 256\n51 90\n52 90\n71 2\n49 1\n62 1\n6 DOT\n"
                        "49 -1\n62 2\n6 ByLayer\n"),
              std::string::npos);
}

TEST(DxfReplay, ImageKeepsItsPlaceAndSize)
{
    const QByteArray drawing = Drawing(
        Section("ENTITIES",
                "0 IMAGE\n8 A\n10 5\n20 6\n11 0.5\n21 0\n12 0\n22 0.5\n13 20\n23 10\n340 F1\n70 7\n"
                "71 1\n91 2\n14 -0.5\n24 -0.5\n14 9.5\n24 9.5\n")
        + Section("OBJECTS", "0 IMAGEDEF\n5 F1\n1 maps/plan.png\n"));
    EXPECT_EQ(ResultOf(drawing, "Image "),
              "Image layer=\"A\" clip=[(-0.5 -0.5 0) (9.5 9.5 0)] path=\"maps/plan.png\" "
              "name=\"plan\" origin=(5 6) scaleX=0.5 scaleY=0.5\n");
    EXPECT_NE(RecordsOf(drawing, "IMAGEDEF").find("1 maps/plan.png\n10 20.000000\n20 10.000000\n"),
              std::string::npos);
}

TEST(DxfReplay, TwoImagesOfAFileHaveTwoNames)
{
    const std::string image = "0 IMAGE\n8 A\n11 1\n22 1\n13 20\n23 10\n340 F1\n70 7\n";
    const auto dictionaries =
        RecordsOf(Drawing(Section("ENTITIES", image + image)
                          + Section("OBJECTS", "0 IMAGEDEF\n5 F1\n1 plan.png\n")),
                  "DICTIONARY");
    EXPECT_NE(dictionaries.find("3 plan\n"), std::string::npos);
    EXPECT_NE(dictionaries.find("3 plan_1\n"), std::string::npos);
}

TEST(DxfReplay, PrecisionIsThatOfTheOption)
{
    const QByteArray line = WithEntities("0 LINE\n8 A\n10 1.23456789\n20 2\n11 3\n21 4\n");
    EXPECT_TRUE(Converted(line, 1018, 2).drawing.contains("\r\n10\r\n1.23\r\n"));
    EXPECT_TRUE(Converted(line, 1018, 0).drawing.contains("\r\n10\r\n1\r\n"));
    EXPECT_TRUE(Converted(line, 1018, 15).drawing.contains("\r\n10\r\n1.234567890000000\r\n"));
}

TEST(DxfReplay, VersionIsThatOfTheOption)
{
    const QByteArray line = WithEntities("0 LINE\n8 A\n" + kLine);
    EXPECT_EQ(ResultOf(line, "Header", 1015), "Header version=1015\n");
    EXPECT_EQ(ResultOf(line, "Header", 1018), "Header version=1018\n");
}

TEST(DxfReplay, ReadsIntoTheProgressOfItsHost)
{
    VelorExchange::test::CProgressRecorder bar;
    CDxfTally tally;
    const CDxfSurvey survey(tally);
    const auto writer = VelorExchange::dxf::CreateDXFWriter(nullptr);
    CDxfReplay replay(*writer, 1018, survey, tally, &bar);
    EXPECT_EQ(replay.GetProgress(), &bar);
    VelorExchange::dxf::DeleteDXFWriter(writer);
}

TEST(DxfReplay, ShapesSeenFromBehindTurnOver)
{
    EXPECT_EQ(Entity("0 LWPOLYLINE\n8 A\n230 -1\n90 2\n10 0\n20 0\n42 1\n10 5\n20 0\n42 0\n",
                     "LWPolyline "),
              "LWPolyline layer=\"A\" vertices=[(0 0 0)^-1 (-5 0 0)]\n");
}

TEST(DxfReplay, LongTextWithAnObjectInItKeepsItsPlace)
{
    EXPECT_EQ(Entity("0 MTEXT\n8 A\n10 5\n20 6\n40 2\n41 9\n71 1\n1 x\n", "MText "),
              Entity("0 MTEXT\n8 A\n10 5\n20 6\n40 2\n41 9\n71 1\n1 x\n101 Embedded Object\n10 1\n"
                     "20 0\n40 7\n41 0\n",
                     "MText "));
}

TEST(DxfReplay, TraceIsAnAreaLikeASolid)
{
    const std::string corners = "8 A\n10 0\n20 0\n11 4\n21 0\n12 0\n22 1\n13 4\n23 1\n";
    EXPECT_EQ(Entity("0 TRACE\n" + corners, "Hatch "), Entity("0 SOLID\n" + corners, "Hatch "));
}

TEST(DxfReplay, LeaderIsALineWithAnArrowHead)
{
    const auto drawing = WithEntities("0 LEADER\n8 A\n71 1\n76 2\n10 0\n20 0\n10 5\n20 0\n");
    EXPECT_EQ(ResultOf(drawing, "LWPolyline "),
              "LWPolyline layer=\"A\" vertices=[(0 0 0) (5 0 0)]\n");
    EXPECT_EQ(ResultOf(drawing, "Hatch "),
              "Hatch layer=\"A\" loops=[[{LWPolyline vertices=[(0 0 0) (0.18 0.03 0) "
              "(0.18 -0.03 0) (0 0 0)]}]]\n");
}

} // namespace velorx::test

// SPDX-License-Identifier: MIT
#include "tests/tools/DxfStream.h"
#include "tests/tools/DxfWritten.h"
#include "tests/tools/SomeFeatures.h"

#include <gtest/gtest.h>

#include <limits>

namespace velorx::test {

TEST(DxfTargetLines, PointComesBack)
{
    CDxfWritten drawing;
    auto point = On<SPointFeature>("Wells");
    point.position = {1, 2, 3};
    point.symbol.color = 0x0000FF;
    EXPECT_EQ(drawing.Take(point), "POINT");
    const auto& read = drawing.ReadBack();
    ASSERT_EQ(read.points.size(), 1U);
    EXPECT_EQ(read.points[0].position.z, 3);
    EXPECT_EQ(read.points[0].symbol.color, 0x0000FFU);
    EXPECT_EQ(read.points[0].layer, "Wells");
    EXPECT_EQ(drawing.Losses() + drawing.LossesOfReading(), "");
}

TEST(DxfTargetLines, SymbolIsListed)
{
    CDxfWritten drawing;
    auto point = On<SPointFeature>("Wells");
    point.symbol.shape = 35;
    drawing.Take(point);
    EXPECT_EQ(drawing.Lost("symbols of points, dropped"), "1: Wells 1");
}

TEST(DxfTargetLines, LineComesBackWithItsLooks)
{
    CDxfWritten drawing;
    SLineFeature line = Line({{0, 0, 0}, {5, 0, 0}, {5, 5, 0}});
    line.stroke.color = 0x123456;
    line.stroke.width = 0.35;
    line.stroke.planWidth = 0.5;
    line.stroke.lineType =
        std::make_shared<const SFeatureLineType>(SFeatureLineType{"Fence", {2, -1, 0, -1}});
    EXPECT_EQ(drawing.Take(line), "LWPOLYLINE");
    const auto& read = drawing.ReadBack();
    ASSERT_EQ(read.lines.size(), 1U);
    EXPECT_EQ(PointsOf(read.lines[0].points), "(0 0) (5 0) (5 5)");
    EXPECT_TRUE(Has(drawing.Entities(), "370 35\n"));
    EXPECT_EQ(read.lines[0].stroke.width, 0); // told twice, which the library does not read
    EXPECT_EQ(read.lines[0].stroke.color, 0x123456U);
    EXPECT_EQ(read.lines[0].stroke.planWidth, 0.5);
    ASSERT_NE(read.lines[0].stroke.lineType, nullptr);
    EXPECT_EQ(read.lines[0].stroke.lineType->name, "Fence");
    EXPECT_EQ(read.lines[0].stroke.lineType->dashes, (std::vector<double>{2, -1, 0, -1}));
    EXPECT_EQ(drawing.Losses() + drawing.LossesOfReading(), "");
}

TEST(DxfTargetLines, LineTypesOfOneNameKeepTheirDashes)
{
    CDxfWritten drawing;
    for (const double dash : {2.0, 5.0, 2.0}) {
        SLineFeature line = Line({{0, 0, 0}, {5, 0, 0}});
        line.stroke.lineType =
            std::make_shared<const SFeatureLineType>(SFeatureLineType{"Fence", {dash, -1}});
        drawing.Take(line);
    }
    const auto& read = drawing.ReadBack();
    ASSERT_EQ(read.lines.size(), 3U);
    EXPECT_EQ(read.lines[1].stroke.lineType->dashes, (std::vector<double>{5, -1}));
    EXPECT_EQ(read.lines[2].stroke.lineType->dashes, (std::vector<double>{2, -1}));
    EXPECT_EQ(read.lines[2].stroke.lineType->name, "Fence");
}

TEST(DxfTargetLines, LineOnOneHeightKeepsIt)
{
    CDxfWritten drawing;
    EXPECT_EQ(drawing.Take(Line({{0, 0, 7}, {5, 0, 7}, {6, 1, 7}})), "LWPOLYLINE");
    EXPECT_EQ(PointsOf(drawing.ReadBack().lines.at(0).points), "(0 0 7) (5 0 7) (6 1 7)");
}

TEST(DxfTargetLines, SegmentsKeepTheirLooks)
{
    CDxfWritten drawing;
    SLineFeature line = Line({{0, 0, 0}, {5, 0, 0}});
    line.stroke.width = 0.35;
    EXPECT_EQ(drawing.Take(line), "LINE");
    line.stroke.planWidth = 2;
    EXPECT_EQ(drawing.Take(line), "LWPOLYLINE");
    const auto& read = drawing.ReadBack();
    EXPECT_EQ(read.lines.at(0).stroke.width, 0.35);
    EXPECT_EQ(read.lines.at(1).stroke.planWidth, 2);
}

TEST(DxfTargetLines, LinesInSpaceKeepTheirHeights)
{
    CDxfWritten drawing;
    EXPECT_EQ(drawing.Take(Line({{0, 0, 1}, {5, 0, 2}})), "LINE");
    EXPECT_EQ(drawing.Take(Line({{0, 0, 1}, {5, 0, 2}, {6, 1, 3}})), "POLYLINE");
    const auto& read = drawing.ReadBack();
    EXPECT_EQ(PointsOf(read.lines.at(0).points), "(0 0 1) (5 0 2)");
    EXPECT_EQ(PointsOf(read.lines.at(1).points), "(0 0 1) (5 0 2) (6 1 3)");
    EXPECT_TRUE(read.lines[1].is3D);
}

TEST(DxfTargetLines, LinesInSpaceLoseWidthAndLineType)
{
    CDxfWritten drawing;
    SLineFeature line = Line({{0, 0, 1}, {5, 0, 2}, {6, 1, 3}});
    line.stroke.planWidth = 1;
    line.stroke.lineType =
        std::make_shared<const SFeatureLineType>(SFeatureLineType{"Fence", {2, -1}});
    drawing.Take(line);
    EXPECT_EQ(drawing.Lost("widths of polylines in space, dropped"), "1: Roads 1");
    EXPECT_EQ(drawing.Lost("line types of polylines in space, dropped"), "1: Roads 1");
}

TEST(DxfTargetLines, WidthsBecomeThoseThatDrawingsKnow)
{
    CDxfWritten drawing;
    for (const double width : {0.0, 0.36, 5.0}) {
        SLineFeature line = Line({{0, 0, 0}, {5, 0, 0}});
        line.stroke.width = width;
        drawing.Take(line);
    }
    const auto& read = drawing.ReadBack();
    EXPECT_EQ(read.lines.at(0).stroke.width, 0);
    EXPECT_EQ(read.lines.at(1).stroke.width, 0.4);
    EXPECT_EQ(read.lines.at(2).stroke.width, 2.11);
    EXPECT_EQ(drawing.Lost("line widths, written as the next of those that drawings know"),
              "1: Roads 1");
    EXPECT_EQ(drawing.Lost("lines wider than 2.11 mm, written that wide"), "1: Roads 1");
}

TEST(DxfTargetLines, ColoursThatTheWriterTakesForMarkersStayColours)
{
    CDxfWritten drawing;
    for (const quint32 color : {256U, 257U, 0xFFFFFFU}) {
        SLineFeature line = Line({{0, 0, 0}, {5, 0, 0}});
        line.stroke.color = color;
        drawing.Take(line);
    }
    const auto& read = drawing.ReadBack();
    EXPECT_EQ(read.lines.at(0).stroke.color, 258U);
    EXPECT_EQ(read.lines.at(1).stroke.color, 258U);
    EXPECT_EQ(read.lines.at(2).stroke.color, 0xFFFFFFU);
}

TEST(DxfTargetLines, NumbersThatAreNoneAreRefused)
{
    CDxfWritten drawing;
    EXPECT_EQ(drawing.Take(Line({{0, 0, 0}, {std::numeric_limits<double>::infinity(), 0, 0}})),
              "null");
    EXPECT_EQ(drawing.Take(Line({{0, 0, 0}})), "null");
    EXPECT_EQ(drawing.Take(Area({})), "null");
    EXPECT_EQ(drawing.Take(Text("")), "null");
    EXPECT_EQ(drawing.Lost("objects refused: nothing to draw, or a number that is none"),
              "4: Houses 1, Names 1, Roads 2");
}

} // namespace velorx::test

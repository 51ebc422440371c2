// SPDX-License-Identifier: MIT
#include "tests/support/DxfDrawing.h"
#include "VelorExchange/foundation/ExportLog.h"

using namespace VelorExchange;
using namespace VelorExchange::dxf;
using namespace VelorExchange::test;

namespace {

// The groups of the only entity from its subclass marker on.
std::string Body(CDrawing& drawing)
{
    const std::string entities = drawing.Entities();
    return entities.substr(entities.find("100 AcDb", entities.find("100 AcDbEntity") + 8));
}

std::string ReportOf(CExportLog& log)
{
    QString text;
    log.GetText(text);
    return text.toStdString();
}

constexpr double kHalfPi = 1.5707963267948966;

} // namespace

TEST(SimpleEntities, ArcHasItsAnglesInDegrees)
{
    CDrawing drawing;
    CArcDXF arc;
    arc.center = {1, 2, 3};
    arc.radius = 4;
    arc.startAngle = kHalfPi;
    arc.endAngle = 2 * kHalfPi;
    EXPECT_TRUE(drawing->AddArc(arc));
    EXPECT_EQ(drawing.Entities().substr(0, 7), "0 ARC\n5");
    EXPECT_EQ(Body(drawing),
              "100 AcDbCircle\n10 1.000000\n20 2.000000\n30 3.000000\n40 4.000000\n"
              "100 AcDbArc\n50 90.000000\n51 180.000000\n");
}

TEST(SimpleEntities, WholeCircleIsAnArc)
{
    CDrawing drawing;
    EXPECT_TRUE(drawing->AddArc(CArcDXF{}));
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 51), std::vector<std::string>{"360.000000"});
}

TEST(SimpleEntities, LineHasItsEnds)
{
    CDrawing drawing;
    CLineDXF line;
    line.start = {1, 2, 3};
    line.end = {4, 5, 6};
    EXPECT_TRUE(drawing->AddLine(line));
    EXPECT_EQ(Body(drawing),
              "100 AcDbLine\n10 1.000000\n20 2.000000\n30 3.000000\n11 4.000000\n21 5.000000\n"
              "31 6.000000\n");
}

TEST(SimpleEntities, XLineHasADirectionOfTenUnitsAndNoHeight)
{
    CDrawing drawing;
    CXLineDXF line;
    line.origin = {1, 2};
    line.direction = {0, 3};
    line.originZ = 7;
    EXPECT_TRUE(drawing->AddXLine(line));
    EXPECT_EQ(Body(drawing),
              "100 AcDbXline\n10 1.000000\n20 2.000000\n11 0.000000\n21 10.000000\n");
}

TEST(SimpleEntities, XLineWithoutADirectionRunsAlongX)
{
    CDrawing drawing;
    EXPECT_TRUE(drawing->AddXLine(CXLineDXF{}));
    EXPECT_EQ(Body(drawing),
              "100 AcDbXline\n10 0.000000\n20 0.000000\n11 10.000000\n21 0.000000\n");
}

TEST(SimpleEntities, FaceHasFourCorners)
{
    CDrawing drawing;
    C3DFaceDXF face;
    face.corners = {{{1, 2, 3}, {4, 5, 6}, {7, 8, 9}, {10, 11, 12}}};
    EXPECT_TRUE(drawing->Add3DFace(face));
    EXPECT_EQ(Body(drawing),
              "100 AcDbFace\n10 1.000000\n20 2.000000\n30 3.000000\n11 4.000000\n21 5.000000\n"
              "31 6.000000\n12 7.000000\n22 8.000000\n32 9.000000\n13 10.000000\n23 11.000000\n"
              "33 12.000000\n70 0\n");
}

TEST(SimpleEntities, SplineHasKnotsAndControlPoints)
{
    CDrawing drawing;
    CSplineDXF spline;
    spline.knots = {0, 0.5};
    spline.controlPoints = {{1, 2, 3}};
    spline.fitPoints = {{9, 9, 9}};
    EXPECT_TRUE(drawing->AddSpline(spline));
    EXPECT_EQ(Body(drawing),
              "100 AcDbSpline\n71 3\n72 2\n73 1\n40 0.000000\n40 0.500000\n10 1.000000\n"
              "20 2.000000\n30 3.000000\n");
}

TEST(SimpleEntities, PointHasNeitherLineStyleNorWeight)
{
    CDrawing drawing;
    CPointDXF point;
    point.layer = QStringLiteral("a");
    point.color = 256;
    point.point = {1, 2, 3};
    point.thickness = 4;
    EXPECT_TRUE(drawing->AddPoint(point));
    EXPECT_EQ(drawing.Entities(),
              "0 POINT\n5 d1\n100 AcDbEntity\n8 a\n62 256\n100 AcDbPoint\n10 1.000000\n"
              "20 2.000000\n30 3.000000\n");
}

TEST(SimpleEntities, PositionsPassThroughTheContextAndHeightsDoNot)
{
    CTestContext context;
    CDrawing drawing(1018, &context);
    CArcDXF arc;
    arc.center = {1, 2, 3};
    arc.radius = 4;
    drawing->AddArc(arc);
    drawing->AddLine(CLineDXF{});
    drawing->AddPoint(CPointDXF{});
    drawing->Add3DFace(C3DFaceDXF{});
    CXLineDXF xline;
    xline.direction = {1, 0};
    drawing->AddXLine(xline);
    CSplineDXF spline;
    spline.controlPoints = {{1, 1, 1}};
    drawing->AddSpline(spline);
    const CTags tags = drawing.EntityTags();
    EXPECT_EQ(ValuesOf(tags, 10),
              (std::vector<std::string>{"101.000000", "100.000000", "100.000000", "100.000000",
                                        "100.000000", "101.000000"}));
    EXPECT_EQ(ValuesOf(tags, 20),
              (std::vector<std::string>{"202.000000", "200.000000", "200.000000", "200.000000",
                                        "200.000000", "201.000000"}));
    EXPECT_EQ(
        ValuesOf(tags, 30),
        (std::vector<std::string>{"3.000000", "0.000000", "0.000000", "0.000000", "1.000000"}));
    EXPECT_EQ(ValuesOf(tags, 40), std::vector<std::string>{"4.000000"}); // the radius stays
    EXPECT_EQ(ValuesOf(tags, 11),
              (std::vector<std::string>{"100.000000", "100.000000", "10.000000"}));
}

TEST(SimpleEntities, PointsAndFacesAreCountedAndOthersAreNot)
{
    CExportLog log;
    const CDrawing drawing(1018, nullptr, &log);
    drawing->AddPoint(CPointDXF{});
    drawing->AddPoint(CPointDXF{});
    drawing->Add3DFace(C3DFaceDXF{});
    drawing->AddLine(CLineDXF{});
    drawing->AddArc(CArcDXF{});
    drawing->AddXLine(CXLineDXF{});
    drawing->AddSpline(CSplineDXF{});
    const std::string report = ReportOf(log);
    EXPECT_NE(report.find("точки - 2"), std::string::npos) << report;
    EXPECT_NE(report.find("3D-грани - 1"), std::string::npos) << report;
    EXPECT_EQ(QString::fromStdString(report).count(QStringLiteral("Записаны")), 3) << report;
}

TEST(SimpleEntities, ElementsWithinABlockAreNotCountedAndLieOnLayerZero)
{
    CExportLog log;
    CDrawing drawing(1018, nullptr, &log);
    drawing->BeginBlock(QStringLiteral("b"), false, QString());
    CPointDXF point;
    point.layer = QStringLiteral("a");
    EXPECT_TRUE(drawing->AddPoint(point));
    drawing->EndBlock();
    EXPECT_EQ(ReportOf(log).find("точки"), std::string::npos);
    const CTags blocks = SectionOf(ParseTags(drawing.Bytes()), "BLOCKS");
    EXPECT_EQ(ValuesOf(RecordsOf(blocks, "POINT").at(0), 8), std::vector<std::string>{"0"});
    EXPECT_EQ(ValuesOf(TableOf(ParseTags(drawing.Bytes()), "LAYER"), 2).back(), "a");
}

// SPDX-License-Identifier: MIT
#include "tests/support/DxfDrawing.h"
#include "VelorExchange/foundation/ExportLog.h"

using namespace VelorExchange;
using namespace VelorExchange::dxf;
using namespace VelorExchange::test;

namespace {

CLWPolylineDXF PolylineOf(std::vector<CVertexDXF> vertices)
{
    CLWPolylineDXF polyline;
    polyline.vertices = std::move(vertices);
    return polyline;
}

// Group 70 of a polyline.
std::string Flags(std::vector<CVertexDXF> vertices, IDXFWriter::IContext* context = nullptr)
{
    CDrawing drawing(1018, context);
    drawing->AddPolyline(PolylineOf(std::move(vertices)));
    return ValuesOf(drawing.EntityTags(), 70).at(0);
}

} // namespace

TEST(Polylines, PolylineWritesAllItsGroups)
{
    CDrawing drawing;
    CLWPolylineDXF polyline = PolylineOf({{{1, 2, 3}, 0.5}, {{4, 5, 6}, 0}});
    polyline.color = 256;
    polyline.width = 0.25;
    polyline.elevation = 7;
    polyline.lineWeight = 0.3;
    EXPECT_TRUE(drawing->AddPolyline(polyline));
    EXPECT_EQ(drawing.Entities(),
              "0 LWPOLYLINE\n5 d0\n100 AcDbEntity\n8 0\n6 CONTINUOUS\n62 256\n370 30\n"
              "100 AcDbPolyline\n90 2\n70 128\n43 0.250000\n370 30\n38 7.000000\n"
              "10 1.000000\n20 2.000000\n30 3.000000\n42 0.5000000000\n"
              "10 4.000000\n20 5.000000\n30 6.000000\n");
}

TEST(Polylines, PolylineWithoutVerticesIsRefused)
{
    CDrawing drawing;
    EXPECT_FALSE(drawing->AddPolyline(CLWPolylineDXF{}));
    EXPECT_FALSE(drawing->Add3DPolyline(CPolylineDXF{}));
    EXPECT_EQ(drawing->GetNextHandle(), 0xD0);
    EXPECT_EQ(drawing.Entities(), "");
}

TEST(Polylines, PolylineThatEndsWhereItStartsIsClosedAndKeepsItsLastVertex)
{
    CDrawing drawing;
    drawing->AddPolyline(PolylineOf({{{0, 0, 0}, 0}, {{1, 0, 0}, 0}, {{0, 0, 5}, 0}}));
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 70), std::vector<std::string>{"129"});
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 90), std::vector<std::string>{"3"});
}

TEST(Polylines, SingleVertexCountsAsClosed)
{
    EXPECT_EQ(Flags({{{1, 1, 0}, 0}}), "129");
}

TEST(Polylines, ClosedTestHasItsLimit)
{
    EXPECT_EQ(Flags({{{0, 0, 0}, 0}, {{1, 0, 0}, 0}, {{0.00009, 0, 0}, 0}}), "129");
    EXPECT_EQ(Flags({{{0, 0, 0}, 0}, {{1, 0, 0}, 0}, {{0.00011, 0, 0}, 0}}), "128");
}

TEST(Polylines, ClosedTestLooksAtThePositionsBeforeTheTransformation)
{
    class CCollapse final : public IDXFWriter::IContext
    {
    public:
        CPoint2D TransformPoint(const CPoint2D&) override { return {}; }
        bool GetLineStyle(const QString&, CLineStyleDXF&) override { return false; }
        void CompleteTextStyle(CTextStyleDXF&) override { }
        double GetScale() override { return 1; }
    };
    CCollapse context;
    EXPECT_EQ(Flags({{{0, 0, 0}, 0}, {{1, 0, 0}, 0}}, &context), "128");
}

TEST(Polylines, BulgeHasTenDigitsWhateverThePrecision)
{
    CDrawing drawing;
    drawing->SetPrecision(2);
    drawing->AddPolyline(PolylineOf({{{0, 0, 0}, -0.41421356237}, {{1, 0, 0}, 0}}));
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 42), std::vector<std::string>{"-0.4142135624"});
}

TEST(Polylines, BulgeThatIsNoneIsLeftOut)
{
    CDrawing drawing;
    drawing->AddPolyline(PolylineOf(
        {{{0, 0, 0}, 0.0000000001}, {{1, 0, 0}, -0.0000000001}, {{2, 0, 0}, 0.0000000002}}));
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 42), std::vector<std::string>{"0.0000000002"});
}

TEST(Polylines, WidthTakesTheScaleAndElevationDoesNot)
{
    CTestContext context;
    context.scale = 3;
    CDrawing drawing(1018, &context);
    CLWPolylineDXF polyline = PolylineOf({{{1, 2, 3}, 0}});
    polyline.width = 2;
    polyline.elevation = 5;
    drawing->AddPolyline(polyline);
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 43), std::vector<std::string>{"6.000000"});
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 38), std::vector<std::string>{"5.000000"});
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 10), std::vector<std::string>{"101.000000"});
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 30), std::vector<std::string>{"3.000000"});
}

TEST(Polylines, SpacePolylineWritesItsVerticesAndTheirEnd)
{
    CDrawing drawing;
    CPolylineDXF polyline;
    polyline.layer = QStringLiteral("a");
    polyline.color = 256;
    polyline.lineWeight = 0.5;
    polyline.lineStyle.name = QStringLiteral("dash");
    polyline.vertices = {{{1, 2, 3}, 0.5}, {{4, 5, 6}, 0}};
    EXPECT_TRUE(drawing->Add3DPolyline(polyline));
    EXPECT_EQ(drawing.Entities(),
              "0 POLYLINE\n5 d1\n100 AcDbEntity\n8 a\n62 256\n100 AcDb3dPolyline\n66 1\n70 136\n"
              "40 0.000000\n41 0.000000\n370 50\n"
              "0 VERTEX\n5 d2\n100 AcDbEntity\n8 a\n100 AcDbVertex\n100 AcDb3dPolylineVertex\n"
              "10 1.000000\n20 2.000000\n30 3.000000\n42 0.5000000000\n"
              "0 VERTEX\n5 d3\n100 AcDbEntity\n8 a\n100 AcDbVertex\n100 AcDb3dPolylineVertex\n"
              "10 4.000000\n20 5.000000\n30 6.000000\n"
              "0 SEQEND\n5 d4\n100 AcDbEntity\n8 a\n");
    EXPECT_EQ(drawing.Table("LTYPE").find("dash"), std::string::npos);
}

TEST(Polylines, SpacePolylineIsClosedByItsPositionsAlone)
{
    CDrawing drawing;
    CPolylineDXF polyline;
    polyline.closed = true;
    polyline.vertices = {{{0, 0, 0}, 0}, {{1, 0, 0}, 0}};
    drawing->Add3DPolyline(polyline);
    polyline.closed = false;
    polyline.vertices.push_back({{0, 0, 9}, 0});
    drawing->Add3DPolyline(polyline);
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 70), (std::vector<std::string>{"136", "137"}));
}

TEST(Polylines, SpacePolylinePassesThroughTheContext)
{
    CTestContext context;
    CDrawing drawing(1018, &context);
    CPolylineDXF polyline;
    polyline.lineWeight = 0.25;
    polyline.vertices = {{{1, 2, 3}, 0.5}};
    drawing->Add3DPolyline(polyline);
    const CTags tags = drawing.EntityTags();
    EXPECT_EQ(ValuesOf(tags, 370), std::vector<std::string>{"50"});
    EXPECT_EQ(ValuesOf(tags, 10), std::vector<std::string>{"101.000000"});
    EXPECT_EQ(ValuesOf(tags, 20), std::vector<std::string>{"202.000000"});
    EXPECT_EQ(ValuesOf(tags, 30), std::vector<std::string>{"3.000000"});
    EXPECT_EQ(ValuesOf(tags, 42), std::vector<std::string>{"0.5000000000"});
}

TEST(Polylines, BothKindsAreCounted)
{
    CExportLog log;
    const CDrawing drawing(1018, nullptr, &log);
    drawing->AddPolyline(PolylineOf({{{0, 0, 0}, 0}}));
    drawing->AddPolyline(CLWPolylineDXF{});
    CPolylineDXF polyline;
    polyline.vertices = {{{0, 0, 0}, 0}};
    drawing->Add3DPolyline(polyline);
    drawing->Add3DPolyline(polyline);
    QString report;
    log.GetText(report);
    EXPECT_TRUE(report.contains(QStringLiteral(" полилинии - 1"))) << report.toStdString();
    EXPECT_TRUE(report.contains(QStringLiteral("3D-полилинии - 2"))) << report.toStdString();
}

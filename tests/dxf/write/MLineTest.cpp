// SPDX-License-Identifier: MIT
#include "tests/support/DxfDrawing.h"
#include "VelorExchange/foundation/ExportLog.h"

using namespace VelorExchange;
using namespace VelorExchange::dxf;
using namespace VelorExchange::test;

namespace {

CMLineDXF MLineOf(std::vector<CVertexDXF> vertices)
{
    CMLineDXF mline;
    mline.vertices = std::move(vertices);
    mline.style.name = QStringLiteral("WALL");
    mline.style.body = QStringLiteral("2\nWALL\n70\n0\n");
    mline.style.offsets = {0.5, -0.5};
    return mline;
}

const std::vector<CVertexDXF> kTwoPoints = {{{0, 0, 1}, 0}, {{10, 0, 2}, 0}};
const std::vector<CVertexDXF> kCorner = {{{0, 0, 0}, 0}, {{10, 0, 0}, 0}, {{10, 10, 0}, 0}};

} // namespace

TEST(MLine, WritesAllItsGroups)
{
    CDrawing drawing;
    CMLineDXF mline = MLineOf(kTwoPoints);
    mline.layer = QStringLiteral("l");
    mline.color = 255;
    EXPECT_TRUE(drawing->AddMLine(mline));
    EXPECT_EQ(drawing.Entities(),
              "0 MLINE\n5 d2\n100 AcDbEntity\n8 l\n100 AcDbMline\n2 WALL\n340 d0\n70 1\n71 1\n"
              "72 2\n73 2\n10 0.000000\n20 0.000000\n30 1.000000\n"
              "210 0.000000\n220 0.000000\n230 1.000000\n"
              "11 0.000000\n21 0.000000\n31 1.000000\n"
              "12 1.000000\n22 0.000000\n32 0.000000\n13 0.000000\n23 1.000000\n33 0.000000\n"
              "74 2\n41 0.500000\n41 0.000000\n75 0\n74 2\n41 -0.500000\n41 0.000000\n75 0\n"
              "11 10.000000\n21 0.000000\n31 2.000000\n"
              "12 1.000000\n22 0.000000\n32 0.000000\n13 0.000000\n23 1.000000\n33 0.000000\n"
              "74 2\n41 0.500000\n41 0.000000\n75 0\n74 2\n41 -0.500000\n41 0.000000\n75 0\n");
}

TEST(MLine, StyleBodyIsWrittenRawOnce)
{
    CDrawing drawing;
    drawing->AddMLine(MLineOf(kTwoPoints));
    drawing->AddMLine(MLineOf(kTwoPoints));
    const QByteArray bytes = drawing.Bytes();
    const QByteArray style =
        "0\r\nMLINESTYLE\r\n5\r\nd0\r\n100\r\nAcDbMlineStyle\r\n2\nWALL\n70\n0\n";
    EXPECT_EQ(bytes.count(style), 1);
    EXPECT_TRUE(bytes.contains("3\r\nSTANDARD\r\n350\r\n18\r\n3\r\nWALL\r\n350\r\nd0\r\n"));
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 340), (std::vector<std::string>{"d0", "d0"}));
}

TEST(MLine, StyleNameIsNotMadeSafe)
{
    CDrawing drawing;
    CMLineDXF mline = MLineOf(kTwoPoints);
    mline.style.name = QStringLiteral("a/b");
    drawing->AddMLine(mline);
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 2), std::vector<std::string>{"a/b"});
}

TEST(MLine, WhatIsMissingRefusesIt)
{
    const CDrawing drawing;
    CMLineDXF mline = MLineOf({{{0, 0, 0}, 0}});
    EXPECT_FALSE(drawing->AddMLine(mline));
    mline = MLineOf(kTwoPoints);
    mline.style.name.clear();
    EXPECT_FALSE(drawing->AddMLine(mline));
    mline = MLineOf(kTwoPoints);
    mline.style.body.clear();
    EXPECT_FALSE(drawing->AddMLine(mline));
    mline = MLineOf(kTwoPoints);
    mline.style.offsets.clear();
    EXPECT_FALSE(drawing->AddMLine(mline));
    EXPECT_EQ(drawing->GetNextHandle(), 0xD0);
}

TEST(MLine, CornerHasAMiterAndStretchedOffsets)
{
    CDrawing drawing;
    drawing->AddMLine(MLineOf(kCorner));
    const CTags tags = drawing.EntityTags();
    EXPECT_EQ(ValuesOf(tags, 12), (std::vector<std::string>{"1.000000", "0.000000", "0.000000"}));
    EXPECT_EQ(ValuesOf(tags, 22), (std::vector<std::string>{"0.000000", "1.000000", "1.000000"}));
    EXPECT_EQ(ValuesOf(tags, 13), (std::vector<std::string>{"0.000000", "-0.707107", "-1.000000"}));
    EXPECT_EQ(ValuesOf(tags, 23), (std::vector<std::string>{"1.000000", "0.707107", "0.000000"}));
    const std::vector<std::string> parameters = ValuesOf(tags, 41);
    EXPECT_EQ(parameters.at(0), "0.500000");
    EXPECT_EQ(parameters.at(4), "0.707107"); // 0.5 / sin 45°
    EXPECT_EQ(parameters.at(8), "0.500000");
}

TEST(MLine, EveryDirectionPointsToTheNextPoint)
{
    const struct
    {
        CPoint3D next;
        const char* cosine;
        const char* sine;
    } rows[] = {{{1, 0, 0}, "1.000000", "0.000000"},
                {{0, 1, 0}, "0.000000", "1.000000"},
                {{-1, 0, 0}, "-1.000000", "0.000000"},
                {{0, -1, 0}, "0.000000", "-1.000000"}};
    for (const auto& row : rows) {
        CDrawing drawing;
        drawing->AddMLine(MLineOf({{{0, 0, 0}, 0}, {row.next, 0}}));
        const auto unsigned0 = [](std::string value) {
            return value == "-0.000000" ? std::string("0.000000") : value;
        };
        EXPECT_EQ(unsigned0(ValuesOf(drawing.EntityTags(), 12).at(0)), row.cosine);
        EXPECT_EQ(unsigned0(ValuesOf(drawing.EntityTags(), 22).at(0)), row.sine);
    }
}

TEST(MLine, SegmentToTheLeftTurnsItsMiterAround)
{
    // The way left counts as minus 180 degrees and not as 180, so that the miter in front of it points
    // to the other side and the offsets change their sign.
    CDrawing drawing;
    drawing->AddMLine(MLineOf({{{0, 0, 0}, 0}, {{0, 10, 0}, 0}, {{-10, 10, 0}, 0}}));
    const CTags tags = drawing.EntityTags();
    EXPECT_EQ(ValuesOf(tags, 13).at(1), "0.707107");
    EXPECT_EQ(ValuesOf(tags, 23).at(1), "0.707107");
    EXPECT_EQ(ValuesOf(tags, 41).at(4), "-0.707107");
    EXPECT_EQ(ValuesOf(tags, 22).at(1), "-0.000000");
}

TEST(MLine, StartAndEndAnglesTurnTheMiters)
{
    CDrawing drawing;
    CMLineDXF mline = MLineOf(kTwoPoints);
    mline.style.startAngle = 0;
    mline.style.endAngle = 3.141592653589793;
    drawing->AddMLine(mline);
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 13),
              (std::vector<std::string>{"1.000000", "-1.000000"}));
}

TEST(MLine, CapAnglesCountFromTheDirectionAndLeaveTheOffsetsAlone)
{
    CDrawing drawing;
    CMLineDXF mline = MLineOf({{{0, 0, 0}, 0}, {{0, 10, 0}, 0}});
    mline.style.startAngle = 0.25 * 3.141592653589793;
    mline.style.endAngle = 0.5 * 3.141592653589793;
    drawing->AddMLine(mline);
    const CTags tags = drawing.EntityTags();
    EXPECT_EQ(ValuesOf(tags, 13), (std::vector<std::string>{"-0.707107", "-1.000000"}));
    EXPECT_EQ(ValuesOf(tags, 23), (std::vector<std::string>{"0.707107", "0.000000"}));
    const std::vector<std::string> once = {"0.500000", "0.000000", "-0.500000", "0.000000"};
    std::vector<std::string> twice = once;
    twice.insert(twice.end(), once.begin(), once.end());
    EXPECT_EQ(ValuesOf(tags, 41), twice);
}

TEST(MLine, ClosedTestIsThatOfPolylines)
{
    CDrawing drawing;
    drawing->AddMLine(
        MLineOf({{{0, 0, 0}, 0}, {{10, 0, 0}, 0}, {{10, 10, 0}, 0}, {{0, 0.00001, 7}, 0}}));
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 71), std::vector<std::string>{"3"});
}

TEST(MLine, ClosedTestLooksAtThePositionsBeforeTheTransformation)
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
    CDrawing drawing(1018, &context);
    EXPECT_TRUE(drawing->AddMLine(MLineOf(kTwoPoints)));
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 71), std::vector<std::string>{"1"});
}

TEST(MLine, StylesStandInTheDictionaryInTheOrderOfTheirNames)
{
    CDrawing drawing;
    for (const char* name : {"b", "a", "B"}) {
        CMLineDXF mline = MLineOf(kTwoPoints);
        mline.style.name = QString::fromUtf8(name);
        drawing->AddMLine(mline);
    }
    const std::string objects = drawing.Section("OBJECTS");
    EXPECT_NE(objects.find("3 STANDARD\n350 18\n3 B\n350 d4\n3 a\n350 d2\n3 b\n350 d0\n"),
              std::string::npos);
}

TEST(MLine, ContextIsAskedForTheLineTypesOfTheElements)
{
    CTestContext context;
    CDrawing drawing(1018, &context);
    CMLineDXF mline = MLineOf(kTwoPoints);
    mline.style.lineTypes = {QStringLiteral("dash"), QStringLiteral("unknown")};
    drawing->AddMLine(mline);
    EXPECT_EQ(context.calls, "line style dash\nline style unknown\n");
    EXPECT_EQ(ValuesOf(TableOf(ParseTags(drawing.Bytes()), "LTYPE"), 2).back(), "dash");
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 11),
              (std::vector<std::string>{"100.000000", "110.000000"}));
}

TEST(MLine, LineTypesStyleAndLayerTakeTheirHandlesInThisOrder)
{
    CTestContext context;
    CDrawing drawing(1018, &context);
    CMLineDXF mline = MLineOf(kTwoPoints);
    mline.layer = QStringLiteral("l");
    mline.style.lineTypes = {QStringLiteral("dash")};
    drawing->AddMLine(mline);
    const CTags tags = ParseTags(drawing.Bytes());
    EXPECT_EQ(ValuesOf(TableOf(tags, "LTYPE"), 5).back(), "d0");
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 340), std::vector<std::string>{"d1"});
    EXPECT_EQ(ValuesOf(TableOf(tags, "LAYER"), 5).back(), "d2");
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 5), std::vector<std::string>{"d3"});
}

TEST(MLine, WithinABlockItStaysInTheBlock)
{
    CDrawing drawing;
    drawing->BeginBlock(QStringLiteral("b"), false, QString());
    drawing->AddMLine(MLineOf(kTwoPoints));
    drawing->EndBlock();
    EXPECT_EQ(drawing.Entities(), "");
    EXPECT_NE(drawing.Section("BLOCKS").find("0 MLINE\n"), std::string::npos);
}

TEST(MLine, MultilinesAreCounted)
{
    CExportLog log;
    const CDrawing drawing(1018, nullptr, &log);
    drawing->AddMLine(MLineOf(kTwoPoints));
    QString report;
    log.GetText(report);
    EXPECT_TRUE(report.contains(QStringLiteral("мультилинии - 1"))) << report.toStdString();
}

// SPDX-License-Identifier: MIT
#include "tests/support/DxfDrawing.h"

using namespace VelorExchange;
using namespace VelorExchange::dxf;
using namespace VelorExchange::test;

namespace {

std::string LastRecord(CDrawing& drawing)
{
    CTags last = RecordsOf(TableOf(ParseTags(drawing.Bytes()), "LTYPE"), "LTYPE").back();
    last.erase(last.begin(), last.begin() + 4);
    return AsText(last);
}

CLineStyleDXF StyleOf(std::vector<CLineElementDXF> pattern)
{
    CLineStyleDXF style;
    style.name = QStringLiteral("a");
    style.pattern = std::move(pattern);
    return style;
}

CLineTextDXF Text(bool absolute = false)
{
    CLineTextDXF text;
    text.absolute = absolute;
    text.rotation = 30;
    text.scale = 0.5;
    text.offsetX = -1;
    text.offsetY = -2;
    text.text = QStringLiteral("GAS");
    text.style = QStringLiteral("ST");
    return text;
}

CLineShapeDXF Shape(bool absolute = false)
{
    CLineShapeDXF shape;
    shape.absolute = absolute;
    shape.rotation = 45;
    shape.number = 130;
    shape.style = QStringLiteral("ltypeshp.shx");
    return shape;
}

} // namespace

TEST(LineTypes, DashesAreCountedAndTheirLengthsAddUp)
{
    CDrawing drawing;
    CLineStyleDXF style = StyleOf({0.5, -0.25, 0.0, -0.25});
    style.description = QStringLiteral(" dash dot ");
    EXPECT_EQ(drawing->AddLineStyle(style), 0xD0);
    EXPECT_EQ(LastRecord(drawing),
              "2 a\n70 0\n3 dash dot\n72 65\n73 4\n40 1.000000\n49 0.500000\n74 0\n"
              "49 -0.250000\n74 0\n49 0.000000\n74 0\n49 -0.250000\n74 0\n");
}

TEST(LineTypes, NameStandsInForAMissingDescription)
{
    CDrawing drawing;
    CLineStyleDXF style = StyleOf({});
    style.name = QStringLiteral(" b:c ");
    style.description = QStringLiteral("   ");
    drawing->AddLineStyle(style);
    EXPECT_EQ(LastRecord(drawing), "2 b_c\n70 0\n3 b_c\n72 65\n73 0\n40 0.000000\n");
}

TEST(LineTypes, DashesTakeThePrecisionAndNotTheScale)
{
    CTestContext context;
    CDrawing drawing(1018, &context);
    drawing->SetPrecision(2);
    drawing->AddLineStyle(StyleOf({1.0}));
    EXPECT_EQ(LastRecord(drawing), "2 a\n70 0\n3 a\n72 65\n73 1\n40 1.00\n49 1.00\n74 0\n");
}

TEST(LineTypes, TextFollowsItsDashWithATextStyle)
{
    CDrawing drawing;
    drawing->AddLineStyle(StyleOf({1.0, Text(), -0.5}));
    EXPECT_EQ(LastRecord(drawing),
              "2 a\n70 0\n3 a\n72 65\n73 2\n40 1.500000\n49 1.000000\n74 2\n"
              "75 0\n340 d1\n46 0.500000\n50 30.000000\n44 -1.000000\n45 -2.000000\n9 GAS\n"
              "49 -0.500000\n74 0\n");
    EXPECT_EQ(ValuesOf(TableOf(ParseTags(drawing.Bytes()), "STYLE"), 2),
              (std::vector<std::string>{"STANDARD", "ST"}));
}

TEST(LineTypes, ShapeFollowsItsDashWithAShapeFile)
{
    CDrawing drawing;
    drawing->AddLineStyle(StyleOf({1.0, Shape()}));
    EXPECT_EQ(LastRecord(drawing),
              "2 a\n70 0\n3 a\n72 65\n73 1\n40 1.000000\n49 1.000000\n74 4\n"
              "75 130\n340 d1\n46 1.000000\n50 45.000000\n44 0.000000\n45 0.000000\n");
    const CTags style = RecordsOf(TableOf(ParseTags(drawing.Bytes()), "STYLE"), "STYLE").back();
    EXPECT_EQ(ValuesOf(style, 2), std::vector<std::string>{""});
    EXPECT_EQ(ValuesOf(style, 70), std::vector<std::string>{"1"});
    EXPECT_EQ(ValuesOf(style, 3), std::vector<std::string>{"ltypeshp.shx"});
}

TEST(LineTypes, AbsoluteRotationAddsOneToTheKind)
{
    CDrawing drawing;
    drawing->AddLineStyle(StyleOf({1.0, Text(true), 2.0, Shape(true), 3.0, 4.0}));
    const CTags record = RecordsOf(TableOf(ParseTags(drawing.Bytes()), "LTYPE"), "LTYPE").back();
    EXPECT_EQ(ValuesOf(record, 74), (std::vector<std::string>{"3", "5", "0", "0"}));
}

TEST(LineTypes, ComplexElementInTheFirstPlaceWritesNothing)
{
    CDrawing drawing;
    drawing->AddLineStyle(StyleOf({Text()}));
    EXPECT_EQ(LastRecord(drawing), "2 a\n70 0\n3 a\n72 65\n73 0\n40 0.000000\n");
    CLineStyleDXF style = StyleOf({Shape(), 1.0});
    style.name = QStringLiteral("b");
    drawing->AddLineStyle(style);
    EXPECT_EQ(LastRecord(drawing), "2 b\n70 0\n3 b\n72 65\n73 1\n40 1.000000\n49 1.000000\n74 0\n");
    EXPECT_EQ(RecordsOf(ParseTags(drawing.Bytes()), "STYLE").size(), 1U);
}

TEST(LineTypes, ContextCompletesTheTextStyle)
{
    CTestContext context;
    CDrawing drawing(1018, &context);
    drawing->AddLineStyle(StyleOf({1.0, Text()}));
    EXPECT_EQ(context.calls, "text style ST\n");
    const CTags style = RecordsOf(TableOf(ParseTags(drawing.Bytes()), "STYLE"), "STYLE").back();
    EXPECT_EQ(ValuesOf(style, 3), std::vector<std::string>{"completed"});
    EXPECT_EQ(ValuesOf(style, 40), std::vector<std::string>{"3.000000"});
}

TEST(LineTypes, ComplexElementsStandAsStoredWhateverTheScale)
{
    CTestContext context;
    CDrawing drawing(1018, &context);
    drawing->AddLineStyle(StyleOf({1.0, Text(), 1.0, Shape()}));
    const CTags record = RecordsOf(TableOf(ParseTags(drawing.Bytes()), "LTYPE"), "LTYPE").back();
    EXPECT_EQ(ValuesOf(record, 46), (std::vector<std::string>{"0.500000", "1.000000"}));
    EXPECT_EQ(ValuesOf(record, 50), (std::vector<std::string>{"30.000000", "45.000000"}));
    EXPECT_EQ(ValuesOf(record, 44), (std::vector<std::string>{"-1.000000", "0.000000"}));
    EXPECT_EQ(ValuesOf(record, 45), (std::vector<std::string>{"-2.000000", "0.000000"}));
}

TEST(LineTypes, TextWithoutAStyleNamesNone)
{
    CDrawing drawing;
    CLineTextDXF text = Text();
    text.style.clear();
    drawing->AddLineStyle(StyleOf({1.0, text}));
    EXPECT_EQ(LastRecord(drawing),
              "2 a\n70 0\n3 a\n72 65\n73 1\n40 1.000000\n49 1.000000\n74 2\n"
              "75 0\n46 0.500000\n50 30.000000\n44 -1.000000\n45 -2.000000\n9 GAS\n");
}

TEST(LineTypes, KnownNameWritesNothing)
{
    CDrawing drawing;
    const int first = drawing->AddLineStyle(StyleOf({1.0}));
    const int next = drawing->GetNextHandle();
    EXPECT_EQ(drawing->AddLineStyle(StyleOf({2.0, Text()})), first);
    EXPECT_EQ(drawing->GetNextHandle(), next);
}

TEST(LineTypes, NamesThatDifferByCaseAreTwo)
{
    CDrawing drawing;
    CLineStyleDXF style;
    style.name = QStringLiteral("Continuous");
    EXPECT_NE(drawing->AddLineStyle(style), 0xCD);
    style.name = QStringLiteral("CONTINUOUS");
    EXPECT_EQ(drawing->AddLineStyle(style), 0xCD);
}

TEST(LineTypes, StyleWithoutANameIsNotWritten)
{
    CDrawing drawing;
    CLineStyleDXF style;
    style.name.clear();
    EXPECT_EQ(drawing->AddLineStyle(style), -1);
    EXPECT_EQ(drawing->GetNextHandle(), 0xD0);
}

TEST(LineTypes, BlankNameIsWrittenAsAnEmptyOne)
{
    CDrawing drawing;
    CLineStyleDXF style;
    style.name = QStringLiteral("  ");
    EXPECT_EQ(drawing->AddLineStyle(style), 0xD0);
    EXPECT_EQ(LastRecord(drawing), "2 \n70 0\n3 \n72 65\n73 0\n40 0.000000\n");
}

TEST(LineTypes, OneTextStyleServesSeveralTexts)
{
    CDrawing drawing;
    drawing->AddLineStyle(StyleOf({1.0, Text(), 1.0, Text()}));
    const CTags record = RecordsOf(TableOf(ParseTags(drawing.Bytes()), "LTYPE"), "LTYPE").back();
    EXPECT_EQ(ValuesOf(record, 340), (std::vector<std::string>{"d1", "d1"}));
}

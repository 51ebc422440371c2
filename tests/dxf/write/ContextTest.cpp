// SPDX-License-Identifier: MIT
// What the writer asks of its context, and what becomes of an element when the context misbehaves. Each
// test runs over every operation that needs the scale.
#include "tests/support/DxfDrawing.h"

#include <functional>
#include <limits>
#include <stdexcept>

using namespace VelorExchange;
using namespace VelorExchange::dxf;
using namespace VelorExchange::test;

namespace {

// Calls back for each question after the scale.
class CScaleContext final : public IDXFWriter::IContext
{
public:
    CPoint2D TransformPoint(const CPoint2D& in) override { return in; }
    bool GetLineStyle(const QString&, CLineStyleDXF&) override { return false; }
    void CompleteTextStyle(CTextStyleDXF&) override { }
    double GetScale() override
    {
        ++asked;
        return onScale ? onScale() : 1.0;
    }

    int asked = 0;
    std::function<double()> onScale;
};

// A record on a new layer, in new styles that need text styles of their own.
template <class Record>
Record New()
{
    Record record;
    record.layer = QStringLiteral("layer");
    if constexpr (std::is_base_of_v<CEntityDXF, Record>) {
        CLineTextDXF text;
        text.style = QStringLiteral("letters");
        CLineShapeDXF shape;
        shape.style = QStringLiteral("shapes");
        record.lineStyle.name = QStringLiteral("line style");
        record.lineStyle.pattern = {1.0, text, -1.0, shape};
    }
    if constexpr (std::is_base_of_v<CTextDXF, Record>) {
        record.text = QStringLiteral("text");
        record.style.name = QStringLiteral("text style");
    }
    return record;
}

template <class Record>
Record NewWithVertices()
{
    Record record = New<Record>();
    record.vertices = {{{0, 0, 0}, 0.5}, {{1, 0, 0}, 0}};
    return record;
}

void AddInsertWithAttributes(IDXFWriter& writer)
{
    auto insert = New<CInsertDXF>();
    insert.name = QStringLiteral("block");
    insert.attributes = {New<CAttribDXF>(), New<CAttribDXF>()};
    writer.AddInsert(insert);
}

void AddNamedImage(IDXFWriter& writer)
{
    auto image = New<CImageDXF>();
    image.name = QStringLiteral("image");
    writer.AddImage(image);
}

struct COperation
{
    const char* name;
    void (*add)(IDXFWriter& writer);
};

constexpr COperation kOperations[] = {
    {"arc", [](IDXFWriter& writer) { writer.AddArc(New<CArcDXF>()); }},
    {"line", [](IDXFWriter& writer) { writer.AddLine(New<CLineDXF>()); }},
    {"face", [](IDXFWriter& writer) { writer.Add3DFace(New<C3DFaceDXF>()); }},
    {"spline", [](IDXFWriter& writer) { writer.AddSpline(New<CSplineDXF>()); }},
    {"xline", [](IDXFWriter& writer) { writer.AddXLine(New<CXLineDXF>()); }},
    {"image", AddNamedImage},
    {"attribute", [](IDXFWriter& writer) { writer.AddAttribute(New<CAttribDXF>(), true); }},
    {"insert", AddInsertWithAttributes},
    {"mtext", [](IDXFWriter& writer) { writer.AddMText(New<CMTextDXF>()); }},
    {"text", [](IDXFWriter& writer) { writer.AddText(New<CTextDXF>()); }},
    {"space polyline",
     [](IDXFWriter& writer) { writer.Add3DPolyline(NewWithVertices<CPolylineDXF>()); }},
    {"polyline", [](IDXFWriter& writer) { writer.AddPolyline(NewWithVertices<CLWPolylineDXF>()); }},
    {"line style", [](IDXFWriter& writer) { writer.AddLineStyle(New<CLineDXF>().lineStyle); }},
    {"text style", [](IDXFWriter& writer) { writer.AddTextStyle(New<CTextDXF>().style, false); }},
};

} // namespace

TEST(Context, ScaleIsAskedForOnceAnOperation)
{
    for (const COperation& operation : kOperations) {
        CScaleContext context;
        const CDrawing drawing(1018, &context);
        context.asked = 0;
        operation.add(*drawing);
        EXPECT_EQ(context.asked, 1) << operation.name;
    }
}

TEST(Context, ScaleThatIsNoNumberTheSecondTimeReachesNoFile)
{
    for (const COperation& operation : kOperations) {
        CScaleContext context;
        CDrawing drawing(1018, &context);
        context.asked = 0;
        context.onScale = [&context] {
            return context.asked == 1 ? 1.0 : std::numeric_limits<double>::quiet_NaN();
        };
        operation.add(*drawing);
        EXPECT_GT(drawing->GetNextHandle(), 0xD0) << operation.name;
        EXPECT_FALSE(drawing.Bytes().contains("nan")) << operation.name;
    }
}

TEST(Context, ExceptionOutOfTheScaleWritesNothing)
{
    for (const COperation& operation : kOperations) {
        CScaleContext context;
        CDrawing drawing(1018, &context);
        const QByteArray before = drawing.Bytes();
        context.onScale = []() -> double { throw std::runtime_error("host"); };
        EXPECT_THROW(operation.add(*drawing), std::runtime_error) << operation.name;
        EXPECT_EQ(drawing->GetNextHandle(), 0xD0) << operation.name;
        EXPECT_EQ(drawing.Bytes(), before) << operation.name;
    }
}

TEST(Context, ElementAddedWhileTheScaleIsAskedForStandsApart)
{
    for (const COperation& operation : kOperations) {
        CScaleContext context;
        CDrawing drawing(1018, &context);
        context.onScale = [&context] {
            context.writer->AddPoint(CPointDXF{});
            return 1.0;
        };
        operation.add(*drawing);
        const CTags entities = drawing.EntityTags();
        ASSERT_FALSE(RecordsOf(entities, "POINT").empty()) << operation.name;
        EXPECT_EQ(RecordsOf(entities, "POINT")[0].size(), 10U) << operation.name;
        EXPECT_EQ(entities[0].value, "POINT") << operation.name;
    }
}

// SPDX-License-Identifier: MIT
// Numbers that are not finite never reach a file, and a refused record registers nothing.
#include "tests/support/DxfDrawing.h"
#include "VelorExchange/foundation/ExportLog.h"

#include <functional>
#include <limits>

using namespace VelorExchange;
using namespace VelorExchange::dxf;
using namespace VelorExchange::test;

namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

// A record of every kind that passes as it is, on a layer and in styles not yet known.
template <class Record>
Record Good()
{
    Record record;
    record.layer = QStringLiteral("new layer");
    if constexpr (std::is_base_of_v<CEntityDXF, Record>) {
        record.lineStyle.name = QStringLiteral("new line style");
        record.lineStyle.pattern = {1.0, CLineTextDXF{}, -1.0, CLineShapeDXF{}};
    }
    if constexpr (std::is_base_of_v<CTextDXF, Record>) {
        record.text = QStringLiteral("text");
        record.style.name = QStringLiteral("new text style");
    }
    return record;
}

template <>
CMLineDXF Good<CMLineDXF>()
{
    CMLineDXF record;
    record.layer = QStringLiteral("new layer");
    record.vertices = {{{0, 0, 0}, 0}, {{1, 0, 0}, 0}, {{1, 1, 0}, 0}};
    record.style.name = QStringLiteral("style");
    record.style.body = QStringLiteral("2\nstyle\n");
    record.style.offsets = {1.0};
    return record;
}

template <>
CHatchDXF Good<CHatchDXF>()
{
    CHatchDXF record;
    record.layer = QStringLiteral("new layer");
    record.outline = {{0, 0, 0}, {3, 0, 0}, {0, 3, 0}};
    record.markedBoundaries = {{{1, 1, 0}, {2, 1, 0}, {1, 2, 0}}};
    record.style.name = QStringLiteral("pattern");
    record.style.lines.resize(1);
    record.style.lines[0].dashes = {1.0};
    return record;
}

template <class Record>
using Change = std::function<double&(Record&)>;

template <class Record>
using Add = bool (IDXFWriter::*)(const Record&);

// Puts NaN and both infinities in the place that `change` names: nothing may happen.
template <class Record>
void ExpectRefused(Add<Record> add, const Change<Record>& change, Record record = Good<Record>())
{
    for (const double value : {kNan, kInfinity, -kInfinity}) {
        CExportLog log;
        CDrawing drawing(1018, nullptr, &log);
        const QByteArray before = drawing.Bytes();
        QString reportBefore;
        log.GetText(reportBefore);
        Record broken = record;
        change(broken) = value;
        EXPECT_FALSE((*drawing.operator->().*add)(broken)) << value;
        EXPECT_EQ(drawing->GetNextHandle(), 0xD0);
        EXPECT_EQ(drawing.Bytes(), before);
        QString report;
        log.GetText(report);
        EXPECT_EQ(report.left(report.size() - 20), reportBefore.left(reportBefore.size() - 20));
    }
    CDrawing drawing;
    EXPECT_TRUE((*drawing.operator->().*add)(record)); // the record itself is good
    drawing.Bytes();
}

// A value that is not written may be anything.
template <class Record>
void ExpectTaken(Add<Record> add, const Change<Record>& change, Record record = Good<Record>())
{
    for (const double value : {kNan, kInfinity}) {
        CDrawing drawing;
        Record broken = record;
        change(broken) = value;
        EXPECT_TRUE((*drawing.operator->().*add)(broken)) << value;
        drawing.Bytes(); // the checker looks for numbers that are none
    }
}

template <class Record>
Record WithVertices()
{
    Record record = Good<Record>();
    record.vertices = {{{0, 0, 0}, 0.5}, {{1, 0, 0}, 0}};
    return record;
}

template <class Record>
void ExpectHeadIsLookedAt(Add<Record> add, const Record& record)
{
    ExpectRefused<Record>(
        add, [](Record& r) -> double& { return r.lineWeight; }, record);
    ExpectRefused<Record>(
        add,
        [](Record& r) -> double& { return boost::variant2::get<double>(r.lineStyle.pattern[0]); },
        record);
    ExpectRefused<Record>(
        add,
        [](Record& r) -> double& {
            return boost::variant2::get<CLineTextDXF>(r.lineStyle.pattern[1]).scale;
        },
        record);
    ExpectRefused<Record>(
        add,
        [](Record& r) -> double& {
            return boost::variant2::get<CLineShapeDXF>(r.lineStyle.pattern[3]).offsetY;
        },
        record);
}

} // namespace

TEST(NotFinite, Arc)
{
    ExpectRefused<CArcDXF>(&IDXFWriter::AddArc, [](CArcDXF& r) -> double& { return r.center.x; });
    ExpectRefused<CArcDXF>(&IDXFWriter::AddArc, [](CArcDXF& r) -> double& { return r.center.y; });
    ExpectRefused<CArcDXF>(&IDXFWriter::AddArc, [](CArcDXF& r) -> double& { return r.center.z; });
    ExpectRefused<CArcDXF>(&IDXFWriter::AddArc, [](CArcDXF& r) -> double& { return r.radius; });
    ExpectRefused<CArcDXF>(&IDXFWriter::AddArc, [](CArcDXF& r) -> double& { return r.startAngle; });
    ExpectRefused<CArcDXF>(&IDXFWriter::AddArc, [](CArcDXF& r) -> double& { return r.endAngle; });
    ExpectHeadIsLookedAt<CArcDXF>(&IDXFWriter::AddArc, Good<CArcDXF>());
}

TEST(NotFinite, Line)
{
    ExpectRefused<CLineDXF>(&IDXFWriter::AddLine, [](CLineDXF& r) -> double& { return r.start.x; });
    ExpectRefused<CLineDXF>(&IDXFWriter::AddLine, [](CLineDXF& r) -> double& { return r.end.z; });
    ExpectHeadIsLookedAt<CLineDXF>(&IDXFWriter::AddLine, Good<CLineDXF>());
}

TEST(NotFinite, XLine)
{
    ExpectRefused<CXLineDXF>(&IDXFWriter::AddXLine,
                             [](CXLineDXF& r) -> double& { return r.origin.y; });
    ExpectRefused<CXLineDXF>(&IDXFWriter::AddXLine,
                             [](CXLineDXF& r) -> double& { return r.direction.x; });
    ExpectTaken<CXLineDXF>(&IDXFWriter::AddXLine,
                           [](CXLineDXF& r) -> double& { return r.originZ; });
}

TEST(NotFinite, Face)
{
    ExpectRefused<C3DFaceDXF>(&IDXFWriter::Add3DFace,
                              [](C3DFaceDXF& r) -> double& { return r.corners[3].z; });
    ExpectHeadIsLookedAt<C3DFaceDXF>(&IDXFWriter::Add3DFace, Good<C3DFaceDXF>());
}

TEST(NotFinite, Spline)
{
    CSplineDXF spline = Good<CSplineDXF>();
    spline.knots = {0, 1};
    spline.controlPoints.resize(2);
    spline.fitPoints.resize(1);
    ExpectRefused<CSplineDXF>(
        &IDXFWriter::AddSpline, [](CSplineDXF& r) -> double& { return r.knots[1]; }, spline);
    ExpectRefused<CSplineDXF>(
        &IDXFWriter::AddSpline, [](CSplineDXF& r) -> double& { return r.controlPoints[1].z; },
        spline);
    ExpectTaken<CSplineDXF>(
        &IDXFWriter::AddSpline, [](CSplineDXF& r) -> double& { return r.fitPoints[0].x; }, spline);
}

TEST(NotFinite, Point)
{
    ExpectRefused<CPointDXF>(&IDXFWriter::AddPoint,
                             [](CPointDXF& r) -> double& { return r.point.z; });
    ExpectTaken<CPointDXF>(&IDXFWriter::AddPoint,
                           [](CPointDXF& r) -> double& { return r.thickness; });
}

TEST(NotFinite, Polyline)
{
    const auto record = WithVertices<CLWPolylineDXF>();
    const Add<CLWPolylineDXF> add = &IDXFWriter::AddPolyline;
    ExpectRefused<CLWPolylineDXF>(
        add, [](CLWPolylineDXF& r) -> double& { return r.vertices[1].point.z; }, record);
    ExpectRefused<CLWPolylineDXF>(
        add, [](CLWPolylineDXF& r) -> double& { return r.vertices[0].bulge; }, record);
    ExpectRefused<CLWPolylineDXF>(
        add, [](CLWPolylineDXF& r) -> double& { return r.width; }, record);
    ExpectRefused<CLWPolylineDXF>(
        add, [](CLWPolylineDXF& r) -> double& { return r.elevation; }, record);
    ExpectHeadIsLookedAt<CLWPolylineDXF>(add, record);
}

TEST(NotFinite, SpacePolyline)
{
    const auto record = WithVertices<CPolylineDXF>();
    const Add<CPolylineDXF> add = &IDXFWriter::Add3DPolyline;
    ExpectRefused<CPolylineDXF>(
        add, [](CPolylineDXF& r) -> double& { return r.vertices[0].point.x; }, record);
    ExpectRefused<CPolylineDXF>(
        add, [](CPolylineDXF& r) -> double& { return r.lineWeight; }, record);
    ExpectTaken<CPolylineDXF>(
        add, [](CPolylineDXF& r) -> double& { return r.width; }, record);
}

TEST(NotFinite, Text)
{
    const Add<CTextDXF> add = &IDXFWriter::AddText;
    ExpectRefused<CTextDXF>(add, [](CTextDXF& r) -> double& { return r.position.x; });
    ExpectRefused<CTextDXF>(add, [](CTextDXF& r) -> double& { return r.height; });
    ExpectRefused<CTextDXF>(add, [](CTextDXF& r) -> double& { return r.rotation; });
    ExpectRefused<CTextDXF>(add, [](CTextDXF& r) -> double& { return r.style.widthFactor; });
    ExpectRefused<CTextDXF>(add, [](CTextDXF& r) -> double& { return r.style.obliqueAngle; });
    ExpectRefused<CTextDXF>(add, [](CTextDXF& r) -> double& { return r.style.height; });
}

TEST(NotFinite, MText)
{
    const Add<CMTextDXF> add = &IDXFWriter::AddMText;
    ExpectRefused<CMTextDXF>(add, [](CMTextDXF& r) -> double& { return r.position.y; });
    ExpectRefused<CMTextDXF>(add, [](CMTextDXF& r) -> double& { return r.height; });
    ExpectRefused<CMTextDXF>(add, [](CMTextDXF& r) -> double& { return r.rotation; });
    ExpectRefused<CMTextDXF>(add, [](CMTextDXF& r) -> double& { return r.rectWidth; });
    ExpectRefused<CMTextDXF>(add, [](CMTextDXF& r) -> double& { return r.style.height; });
}

TEST(NotFinite, InsertAndItsAttributes)
{
    CInsertDXF insert = Good<CInsertDXF>();
    insert.name = QStringLiteral("block");
    insert.attributes.resize(2);
    const Add<CInsertDXF> add = &IDXFWriter::AddInsert;
    ExpectRefused<CInsertDXF>(
        add, [](CInsertDXF& r) -> double& { return r.point.z; }, insert);
    ExpectRefused<CInsertDXF>(
        add, [](CInsertDXF& r) -> double& { return r.rotation; }, insert);
    ExpectRefused<CInsertDXF>(
        add, [](CInsertDXF& r) -> double& { return r.scaleX; }, insert);
    ExpectRefused<CInsertDXF>(
        add, [](CInsertDXF& r) -> double& { return r.scaleY; }, insert);
    ExpectRefused<CInsertDXF>(
        add, [](CInsertDXF& r) -> double& { return r.attributes[1].height; }, insert);
    ExpectTaken<CInsertDXF>(
        add, [](CInsertDXF& r) -> double& { return r.scaleZ; }, insert);
}

TEST(NotFinite, Image)
{
    CImageDXF image = Good<CImageDXF>();
    image.name = QStringLiteral("image");
    image.clip = {{0, 0, 0}, {1, 1, 0}};
    const Add<CImageDXF> add = &IDXFWriter::AddImage;
    ExpectRefused<CImageDXF>(
        add, [](CImageDXF& r) -> double& { return r.origin.x; }, image);
    ExpectRefused<CImageDXF>(
        add, [](CImageDXF& r) -> double& { return r.scaleX; }, image);
    ExpectRefused<CImageDXF>(
        add, [](CImageDXF& r) -> double& { return r.scaleY; }, image);
    ExpectRefused<CImageDXF>(
        add, [](CImageDXF& r) -> double& { return r.widthPixels; }, image);
    ExpectRefused<CImageDXF>(
        add, [](CImageDXF& r) -> double& { return r.heightPixels; }, image);
    ExpectRefused<CImageDXF>(
        add, [](CImageDXF& r) -> double& { return r.rotation; }, image);
    ExpectRefused<CImageDXF>(
        add, [](CImageDXF& r) -> double& { return r.clip[1].y; }, image);
    ExpectTaken<CImageDXF>(
        add, [](CImageDXF& r) -> double& { return r.clip[1].z; }, image);
}

TEST(NotFinite, MLine)
{
    const Add<CMLineDXF> add = &IDXFWriter::AddMLine;
    ExpectRefused<CMLineDXF>(add, [](CMLineDXF& r) -> double& { return r.vertices[1].point.x; });
    ExpectRefused<CMLineDXF>(add, [](CMLineDXF& r) -> double& { return r.vertices[2].point.z; });
    ExpectRefused<CMLineDXF>(add, [](CMLineDXF& r) -> double& { return r.style.startAngle; });
    ExpectRefused<CMLineDXF>(add, [](CMLineDXF& r) -> double& { return r.style.endAngle; });
    ExpectRefused<CMLineDXF>(add, [](CMLineDXF& r) -> double& { return r.style.offsets[0]; });
}

TEST(NotFinite, MiterThatDividesByZeroRefusesTheMLine)
{
    // The way back runs along the way there, so that the miter lies in the line and its sine is as
    // good as zero: an offset of this size overflows.
    const CDrawing drawing;
    CMLineDXF mline = Good<CMLineDXF>();
    mline.vertices = {{{0, 0, 0}, 0}, {{1, 0, 0}, 0}, {{0, 0, 0}, 0}};
    mline.style.offsets = {1e300};
    EXPECT_FALSE(drawing->AddMLine(mline));
    EXPECT_EQ(drawing->GetNextHandle(), 0xD0);
}

TEST(NotFinite, LineTypeOfTheContextRefusesTheMLine)
{
    class CBrokenLines final : public IDXFWriter::IContext
    {
    public:
        CPoint2D TransformPoint(const CPoint2D& in) override { return in; }
        bool GetLineStyle(const QString& name, CLineStyleDXF& style) override
        {
            style.name = name;
            style.pattern = {kNan};
            return true;
        }
        void CompleteTextStyle(CTextStyleDXF&) override { }
        double GetScale() override { return 1; }
    };
    CBrokenLines context;
    const CDrawing drawing(1018, &context);
    CMLineDXF mline = Good<CMLineDXF>();
    mline.style.lineTypes = {QStringLiteral("dash")};
    EXPECT_FALSE(drawing->AddMLine(mline));
    EXPECT_EQ(drawing->GetNextHandle(), 0xD0);
}

TEST(NotFinite, Hatch)
{
    const Add<CHatchDXF> add = &IDXFWriter::AddHatch;
    ExpectRefused<CHatchDXF>(add, [](CHatchDXF& r) -> double& { return r.outline[1].x; });
    ExpectRefused<CHatchDXF>(add, [](CHatchDXF& r) -> double& { return r.outline[2].z; });
    ExpectRefused<CHatchDXF>(add,
                             [](CHatchDXF& r) -> double& { return r.markedBoundaries[0][1].y; });
    ExpectRefused<CHatchDXF>(add, [](CHatchDXF& r) -> double& { return r.angle; });
    ExpectRefused<CHatchDXF>(add, [](CHatchDXF& r) -> double& { return r.scale; });
    ExpectRefused<CHatchDXF>(add, [](CHatchDXF& r) -> double& { return r.style.lines[0].angle; });
    ExpectRefused<CHatchDXF>(add, [](CHatchDXF& r) -> double& { return r.style.lines[0].baseX; });
    ExpectRefused<CHatchDXF>(add, [](CHatchDXF& r) -> double& { return r.style.lines[0].offsetY; });
    ExpectRefused<CHatchDXF>(add,
                             [](CHatchDXF& r) -> double& { return r.style.lines[0].dashes[0]; });
    ExpectTaken<CHatchDXF>(add, [](CHatchDXF& r) -> double& { return r.elevation; });
}

TEST(NotFinite, SolidHatchHasNoPatternToLookAt)
{
    CHatchDXF hatch = Good<CHatchDXF>();
    hatch.style.lines.clear();
    const Add<CHatchDXF> add = &IDXFWriter::AddHatch;
    ExpectTaken<CHatchDXF>(
        add, [](CHatchDXF& r) -> double& { return r.angle; }, hatch);
    ExpectTaken<CHatchDXF>(
        add, [](CHatchDXF& r) -> double& { return r.scale; }, hatch);
}

TEST(NotFinite, KnownStylesAreNotLookedAtAgain)
{
    CDrawing drawing;
    CLineDXF line = Good<CLineDXF>();
    drawing->AddLine(line);
    line.lineStyle.pattern = {kNan};
    EXPECT_TRUE(drawing->AddLine(line));
    drawing.Bytes();
}

TEST(NotFinite, TextStyleThatIsNotWrittenIsNotLookedAt)
{
    const CDrawing drawing;
    CMTextDXF text = Good<CMTextDXF>();
    drawing->AddMText(text);
    text.style.height = kNan; // known by now
    EXPECT_TRUE(drawing->AddMText(text));
    text.style.name = QStringLiteral(" ");
    EXPECT_TRUE(drawing->AddMText(text));
}

TEST(NotFinite, StylesOfTheirOwnGiveNoHandle)
{
    CDrawing drawing;
    CLineStyleDXF lineStyle;
    lineStyle.name = QStringLiteral("a");
    lineStyle.pattern = {1e308, 1e308}; // the sum overflows
    EXPECT_EQ(drawing->AddLineStyle(lineStyle), -1);
    CTextStyleDXF textStyle;
    textStyle.name = QStringLiteral("a");
    textStyle.height = kInfinity;
    EXPECT_EQ(drawing->AddTextStyle(textStyle, false), -1);
    EXPECT_EQ(drawing->GetNextHandle(), 0xD0);
}

TEST(NotFinite, ContextThatReturnsNanRefusesTheElement)
{
    class CLostContext final : public IDXFWriter::IContext
    {
    public:
        CPoint2D TransformPoint(const CPoint2D&) override { return {kNan, 0}; }
        bool GetLineStyle(const QString&, CLineStyleDXF&) override { return false; }
        void CompleteTextStyle(CTextStyleDXF&) override { }
        double GetScale() override { return 1; }
    };
    CLostContext context;
    CDrawing drawing(1018, &context);
    EXPECT_FALSE(drawing->AddLine(Good<CLineDXF>()));
    EXPECT_FALSE(drawing->AddPoint(Good<CPointDXF>()));
    EXPECT_FALSE(drawing->AddText(Good<CTextDXF>()));
    EXPECT_FALSE(drawing->AddHatch(Good<CHatchDXF>()));
    EXPECT_FALSE(drawing->AddMLine(Good<CMLineDXF>()));
    EXPECT_FALSE(drawing->AddPolyline(WithVertices<CLWPolylineDXF>()));
    EXPECT_EQ(drawing->GetNextHandle(), 0xD0);
}

TEST(NotFinite, ScaleThatOverflowsRefusesTheElement)
{
    CTestContext context;
    CDrawing drawing(1018, &context);
    context.scale = 1e308;
    CTextDXF text = Good<CTextDXF>();
    text.height = 1e10;
    EXPECT_FALSE(drawing->AddText(text));
    EXPECT_EQ(drawing->GetNextHandle(), 0xD0);
}

TEST(NotFinite, LargestNumbersAreWritten)
{
    CDrawing drawing;
    CPointDXF point;
    point.point = {std::numeric_limits<double>::max(), -std::numeric_limits<double>::max(),
                   std::numeric_limits<double>::denorm_min()};
    EXPECT_TRUE(drawing->AddPoint(point));
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 10).at(0),
              QString::number(point.point.x, 'f', 6).toStdString());
}

// SPDX-License-Identifier: MIT
#include "tests/support/DxfChecker.h"
#include "tests/support/DxfDrawing.h"
#include "VelorExchange/DXFFlat.h"
#include "VelorExchange/foundation/FileError.h"

#include <QTemporaryDir>

using namespace VelorExchange;
using namespace VelorExchange::dxf;
using namespace VelorExchange::test;

namespace {

const DXFChar* Wide(const char16_t* text)
{
    return reinterpret_cast<const DXFChar*>(text); // both are units of UTF-16
}

// A drawing through the plain functions.
class CFlatDrawing
{
public:
    CFlatDrawing() : writer(DXF_CreateWriter()) { }
    ~CFlatDrawing() { DXF_DeleteWriter(writer); }
    CFlatDrawing(const CFlatDrawing&) = delete;
    CFlatDrawing& operator=(const CFlatDrawing&) = delete;

    QByteArray Bytes() const
    {
        const QString path = folder.filePath(QStringLiteral("flat.dxf"));
        DXF_Rewrite(writer, path.utf16());
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        for (const std::string& problem : ProblemsOf(bytes)) {
            ADD_FAILURE() << problem;
        }
        return bytes;
    }
    CTags Entities() const { return SectionOf(ParseTags(Bytes()), "ENTITIES"); }

    DXFWriterHandle writer;

private:
    QTemporaryDir folder;
};

const DXFVertex kTriangle[] = {{0, 0, 0.5}, {3, 0, 0}, {0, 3, 0}};

DXFPolylineData Polyline(const DXFVertex* vertices, int count)
{
    DXFPolylineData data{};
    data.layer = Wide(u"a");
    data.vertices = vertices;
    data.vertexCount = count;
    data.width = 0.25;
    data.color = {255, 128, 1};
    return data;
}

DXFRegionData Region(const char16_t* layer)
{
    DXFRegionData data{};
    data.layer = Wide(layer);
    data.vertices = kTriangle;
    data.vertexCount = 3;
    return data;
}

} // namespace

TEST(Flat, WriterWithoutInitIs1018)
{
    EXPECT_TRUE(CFlatDrawing().Bytes().contains("AC1018\r\n"));
}

TEST(Flat, InitSelectsTheVersion)
{
    const CFlatDrawing drawing;
    DXF_Init(drawing.writer, 0);
    EXPECT_TRUE(drawing.Bytes().contains("AC1015\r\n"));
    for (const int newVersion : {1, -1, 1015}) {
        DXF_Init(drawing.writer, newVersion);
        EXPECT_TRUE(drawing.Bytes().contains("AC1018\r\n"));
    }
}

TEST(Flat, DeletingNullIsNothing)
{
    DXF_DeleteWriter(nullptr);
}

TEST(Flat, PolylineIsThatOfTheRecord)
{
    const CFlatDrawing flat;
    const DXFPolylineData data = Polyline(kTriangle, 3);
    EXPECT_TRUE(DXF_AddPolyline(flat.writer, &data));
    CDrawing drawing;
    CLWPolylineDXF record;
    record.layer = QStringLiteral("a");
    record.color = 0x0180FF;
    record.width = 0.25;
    record.vertices = {{{0, 0, 0}, 0.5}, {{3, 0, 0}, 0}, {{0, 3, 0}, 0}};
    drawing->AddPolyline(record);
    EXPECT_EQ(flat.Bytes(), drawing.Bytes());
}

TEST(Flat, PolylineOfEqualVerticesHasTheLastOneAlone)
{
    const DXFVertex vertices[] = {{1, 1, 0.25}, {1, 1.00001, 0.75}};
    const CFlatDrawing drawing;
    const DXFPolylineData data = Polyline(vertices, 2);
    EXPECT_TRUE(DXF_AddPolyline(drawing.writer, &data));
    const CTags tags = drawing.Entities();
    EXPECT_EQ(ValuesOf(tags, 90), std::vector<std::string>{"1"});
    EXPECT_EQ(ValuesOf(tags, 20), std::vector<std::string>{"1.000010"});
    EXPECT_EQ(ValuesOf(tags, 42), std::vector<std::string>{"0.7500000000"});
}

TEST(Flat, RunOfVerticesIsMeasuredFromTheOneStoredLast)
{
    // Each lies near the one before: step by step the run wanders off.
    const DXFVertex vertices[] = {{0, 0, 0}, {0.00006, 0, 0}, {0.00012, 0, 0}, {1, 0, 0}};
    const CFlatDrawing drawing;
    const DXFPolylineData data = Polyline(vertices, 4);
    DXF_AddPolyline(drawing.writer, &data);
    EXPECT_EQ(ValuesOf(drawing.Entities(), 10), (std::vector<std::string>{"0.000120", "1.000000"}));
}

TEST(Flat, PolylineWithoutVerticesIsRefused)
{
    const CFlatDrawing drawing;
    DXFPolylineData data = Polyline(nullptr, 0);
    EXPECT_FALSE(DXF_AddPolyline(drawing.writer, &data));
    data.vertexCount = -5;
    EXPECT_FALSE(DXF_AddPolyline(drawing.writer, &data));
}

TEST(Flat, NoteLayersTakeTheColourOfTheLayer)
{
    for (const char16_t* layer : {u"Notes", u"Dimensions"}) {
        const CFlatDrawing drawing;
        const DXFRegionData data = Region(layer);
        EXPECT_TRUE(DXF_AddRegion(drawing.writer, &data));
        EXPECT_EQ(ValuesOf(drawing.Entities(), 62), std::vector<std::string>{"256"});
        EXPECT_TRUE(ValuesOf(drawing.Entities(), 420).empty());
    }
}

TEST(Flat, NoteLayersAreComparedAsGiven)
{
    for (const char16_t* layer : {u" Notes", u"notes", u"Notes?"}) {
        const CFlatDrawing drawing;
        const DXFRegionData data = Region(layer);
        DXF_AddRegion(drawing.writer, &data);
        EXPECT_EQ(ValuesOf(drawing.Entities(), 62), std::vector<std::string>{"250"});
    }
}

TEST(Flat, NoteLayersCountForPolylinesAndTextsToo)
{
    const CFlatDrawing drawing;
    DXFPolylineData polyline = Polyline(kTriangle, 3);
    polyline.layer = Wide(u"Notes");
    DXF_AddPolyline(drawing.writer, &polyline);
    DXFTextData text{};
    text.layer = Wide(u"Dimensions");
    text.text = Wide(u"a");
    DXF_AddText(drawing.writer, &text);
    EXPECT_EQ(ValuesOf(drawing.Entities(), 62), (std::vector<std::string>{"256", "256"}));
}

TEST(Flat, RegionIsASolidHatchWithHoles)
{
    const DXFVertex hole[] = {{1, 1, 1}, {2, 1, 1}, {2, 1, 0.5}};
    const DXFHole holes[] = {{hole, 3}, {nullptr, 0}};
    const CFlatDrawing flat;
    DXFRegionData data = Region(u"a");
    data.color = {1, 2, 3};
    data.holes = holes;
    data.holeCount = 2;
    EXPECT_TRUE(DXF_AddRegion(flat.writer, &data));
    CDrawing drawing;
    CHatchDXF record;
    record.layer = QStringLiteral("a");
    record.color = 0x030201;
    record.outline = {{0, 0, 0.5}, {3, 0, 0}, {0, 3, 0}};
    record.markedBoundaries = {{{1, 1, 1}, {2, 1, 0.5}}, {}};
    drawing->AddHatch(record);
    EXPECT_EQ(flat.Bytes(), drawing.Bytes());
}

TEST(Flat, RegionThatEnclosesNothingIsRefused)
{
    const CFlatDrawing drawing;
    DXFRegionData data = Region(u"a");
    data.vertexCount = 2;
    EXPECT_FALSE(DXF_AddRegion(drawing.writer, &data));
}

TEST(Flat, TextIsAnMText)
{
    const CFlatDrawing flat;
    DXFTextData data{};
    data.layer = Wide(u"a");
    data.x = 1;
    data.y = 2;
    data.text = Wide(u"Дом\\P1");
    data.height = 3;
    data.angle = 0.5;
    data.color = {0, 0, 255};
    data.width = 4;
    data.alignment = 5;
    EXPECT_TRUE(DXF_AddText(flat.writer, &data));
    CDrawing drawing;
    CMTextDXF record;
    record.layer = QStringLiteral("a");
    record.position = {1, 2};
    record.text = QStringLiteral("Дом\\P1");
    record.height = 3;
    record.rotation = 0.5;
    record.color = 0xFF0000;
    record.rectWidth = 4;
    record.alignment = 5;
    drawing->AddMText(record);
    EXPECT_EQ(flat.Bytes(), drawing.Bytes());
}

TEST(Flat, NullTextIsEmpty)
{
    const CFlatDrawing drawing;
    const DXFTextData data{};
    EXPECT_FALSE(DXF_AddText(drawing.writer, &data));
}

TEST(Flat, ByteOrderMarkIsALetter)
{
    const CFlatDrawing drawing;
    DXFTextData data{};
    data.layer = Wide(u"a");
    data.text = Wide(u"\uFEFFa");
    DXF_AddText(drawing.writer, &data);
    EXPECT_EQ(ValuesOf(drawing.Entities(), 1), std::vector<std::string>{"?a"});
}

TEST(Flat, ImageIsThatOfTheRecord)
{
    const DXFVertex clip[] = {{1, 1, 9}, {1, 1, 5}, {8, 6, 0}};
    const CFlatDrawing flat;
    DXFImageData data{};
    data.layer = Wide(u"a");
    data.name = Wide(u"plan");
    data.path = Wide(u"plan.png");
    data.x = 1;
    data.y = 2;
    data.pixelWidth = 640;
    data.pixelHeight = 480;
    data.sizeX = 0.5;
    data.sizeY = 0.25;
    data.angle = 0.75;
    data.clip = clip;
    data.clipCount = 3;
    EXPECT_TRUE(DXF_AddImage(flat.writer, &data));
    CDrawing drawing;
    CImageDXF record;
    record.layer = QStringLiteral("a");
    record.name = QStringLiteral("plan");
    record.filePath = QStringLiteral("plan.png");
    record.origin = {1, 2};
    record.widthPixels = 640;
    record.heightPixels = 480;
    record.scaleX = 0.5;
    record.scaleY = 0.25;
    record.rotation = 0.75;
    record.clip = {{1, 1, 5}, {8, 6, 0}};
    drawing->AddImage(record);
    EXPECT_EQ(flat.Bytes(), drawing.Bytes());
}

TEST(Flat, ImageWithoutANameIsRefused)
{
    const CFlatDrawing drawing;
    const DXFImageData data{};
    EXPECT_FALSE(DXF_AddImage(drawing.writer, &data));
}

TEST(Flat, FailedRewriteThrowsThroughThePlainFunction)
{
    const CFlatDrawing drawing;
    EXPECT_THROW(DXF_Rewrite(drawing.writer, Wide(u"/no/such/folder/a.dxf")), FileError);
}

// SPDX-License-Identifier: MIT
// What is written is read back: each kind of element to an equal record where the format keeps it.
#include "tests/support/DxfDrawing.h"
#include "tests/support/DxfSample.h"
#include "VelorExchange/DXF.h"

#include <QTemporaryDir>

#include <map>

using namespace VelorExchange;
using namespace VelorExchange::dxf;
using namespace VelorExchange::test;

namespace {

constexpr double kPi = 3.141592653589793;
constexpr double kNear = 0.000001;

// Keeps everything it gets.
class CKeeper final : public IDXFReader
{
public:
    bool OnPolyline(const CPolylineDXF& record) override { return Keep(polylines, record); }
    bool OnMLine(const CMLineDXF& record) override { return Keep(mlines, record); }
    bool OnLWPolyline(const CLWPolylineDXF& record) override { return Keep(lwPolylines, record); }
    bool OnSpline(const CSplineDXF& record) override { return Keep(splines, record); }
    bool OnLine(const CLineDXF& record) override { return Keep(lines, record); }
    bool On3DFace(const C3DFaceDXF& record) override { return Keep(faces, record); }
    bool OnXLine(const CXLineDXF& record) override { return Keep(xlines, record); }
    bool OnArc(const CArcDXF& record) override { return Keep(arcs, record); }
    bool OnImage(const CImageDXF& record) override { return Keep(images, record); }
    bool OnInsert(const CInsertDXF& record) override { return Keep(inserts, record); }
    bool OnHatch(const CHatchDXF& record) override { return Keep(hatches, record); }
    bool OnMText(const CMTextDXF& record) override { return Keep(mtexts, record); }
    bool OnText(const CTextDXF& record) override { return Keep(texts, record); }
    bool OnPoint(const CPointDXF& record) override { return Keep(points, record); }
    bool OnBlock(const CBlockDXF& record) override { return Keep(blocks, record); }
    bool OnTextStyle(const CTextStyleDXF& record) override { return Keep(textStyles, record); }
    bool OnMLineStyle(const CMLineStyleDXF& record) override { return Keep(mlineStyles, record); }
    bool OnLineStyle(const CLineStyleDXF& record) override { return Keep(lineStyles, record); }
    bool OnLayer(const CLayerDXF& record) override { return Keep(layers, record); }
    bool OnHeader(const CHeaderDXF& record) override { return Keep(headers, record); }

    std::vector<CPolylineDXF> polylines;
    std::vector<CMLineDXF> mlines;
    std::vector<CLWPolylineDXF> lwPolylines;
    std::vector<CSplineDXF> splines;
    std::vector<CLineDXF> lines;
    std::vector<C3DFaceDXF> faces;
    std::vector<CXLineDXF> xlines;
    std::vector<CArcDXF> arcs;
    std::vector<CImageDXF> images;
    std::vector<CInsertDXF> inserts;
    std::vector<CHatchDXF> hatches;
    std::vector<CMTextDXF> mtexts;
    std::vector<CTextDXF> texts;
    std::vector<CPointDXF> points;
    std::vector<CBlockDXF> blocks;
    std::vector<CTextStyleDXF> textStyles;
    std::vector<CMLineStyleDXF> mlineStyles;
    std::vector<CLineStyleDXF> lineStyles;
    std::vector<CLayerDXF> layers;
    std::vector<CHeaderDXF> headers;

private:
    template <class Record>
    static bool Keep(std::vector<Record>& records, const Record& record)
    {
        records.push_back(record);
        return true;
    }
};

void ExpectNear(const CPoint3D& a, const CPoint3D& b)
{
    EXPECT_NEAR(a.x, b.x, kNear);
    EXPECT_NEAR(a.y, b.y, kNear);
    EXPECT_NEAR(a.z, b.z, kNear);
}

// The sample of every kind, written in both versions and read with the codec of the drawing.
class RoundTrip : public testing::TestWithParam<int>
{
protected:
    void SetUp() override
    {
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("windows-1251"));
        CDrawing drawing(GetParam());
        DrawEverything(*drawing);
        const QByteArray bytes = drawing.Bytes();
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("a.dxf"));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.close();
        ASSERT_TRUE(Read(path, &read));
    }
    void TearDown() override { QTextCodec::setCodecForLocale(before); }

    CKeeper read;

private:
    QTextCodec* before = QTextCodec::codecForLocale();
};

} // namespace

TEST_P(RoundTrip, Version)
{
    ASSERT_EQ(read.headers.size(), 1U);
    EXPECT_EQ(read.headers[0].version, GetParam());
}

TEST_P(RoundTrip, Layers)
{
    std::map<QString, CLayerDXF> layers;
    for (const CLayerDXF& layer : read.layers) {
        layers[layer.name] = layer;
    }
    EXPECT_EQ(layers.size(), read.layers.size());
    for (const char* name : {"0", "Дороги_главные", "Скрытый", "Dimensions", "defpoints_1"}) {
        EXPECT_EQ(layers.count(QString::fromUtf8(name)), 1U) << name;
    }
    EXPECT_FALSE(layers[QStringLiteral("Скрытый")].visible);
    EXPECT_FALSE(layers[QStringLiteral("Скрытый")].unlocked);
    EXPECT_TRUE(layers[QStringLiteral("0")].visible);
    EXPECT_TRUE(layers[QStringLiteral("0")].unlocked);
}

TEST_P(RoundTrip, Styles)
{
    ASSERT_EQ(read.lineStyles.size(), 4U);
    EXPECT_EQ(read.lineStyles[3].name, QStringLiteral("GAS_LINE"));
    std::map<QString, CTextStyleDXF> styles;
    for (const CTextStyleDXF& style : read.textStyles) {
        styles[style.name] = style;
    }
    EXPECT_EQ(styles.count(QStringLiteral("STANDARD")), 1U);
    EXPECT_EQ(styles[QStringLiteral("Подписи")].fontFile, QStringLiteral("arial.ttf"));
    ASSERT_EQ(read.mlineStyles.size(), 2U);
    EXPECT_EQ(read.mlineStyles[0].name, QStringLiteral("STANDARD"));
    EXPECT_EQ(read.mlineStyles[1].name, QStringLiteral("WALL"));
}

TEST_P(RoundTrip, Line)
{
    ASSERT_EQ(read.lines.size(), 1U);
    EXPECT_EQ(read.lines[0].layer, QStringLiteral("Дороги_главные"));
    EXPECT_EQ(read.lines[0].color, 0x0000FFU);
    EXPECT_EQ(read.lines[0].lineWeight, 25); // hundredths when read, millimetres when written
    EXPECT_EQ(read.lines[0].lineStyle.name, QStringLiteral("GAS_LINE"));
    ExpectNear(read.lines[0].start, {0, 0, 1.5});
    ExpectNear(read.lines[0].end, {100.125, -50.0625, 0});
}

TEST_P(RoundTrip, ArcsInDegrees)
{
    ASSERT_EQ(read.arcs.size(), 2U);
    ExpectNear(read.arcs[0].center, {10, 20, 0});
    EXPECT_NEAR(read.arcs[0].radius, 5.5, kNear);
    EXPECT_NEAR(read.arcs[0].startAngle, 30, kNear);
    EXPECT_NEAR(read.arcs[0].endAngle, 180, kNear);
    EXPECT_NEAR(read.arcs[1].endAngle, 360, kNear);
}

TEST_P(RoundTrip, FaceSplineXLineAndPoint)
{
    ASSERT_EQ(read.faces.size(), 1U);
    ExpectNear(read.faces[0].corners[2], {10, 10, 2});
    ASSERT_EQ(read.splines.size(), 1U);
    EXPECT_EQ(read.splines[0].knots, (std::vector<double>{0, 0, 0, 0, 1, 1, 1, 1}));
    ASSERT_EQ(read.splines[0].controlPoints.size(), 4U);
    ExpectNear(read.splines[0].controlPoints[2], {4, 5, 0});
    ASSERT_EQ(read.xlines.size(), 1U);
    EXPECT_NEAR(read.xlines[0].origin.x, 3, kNear);
    EXPECT_NEAR(read.xlines[0].direction.x, read.xlines[0].direction.y, kNear);
    ASSERT_EQ(read.points.size(), 1U);
    EXPECT_EQ(read.points[0].layer, QStringLiteral("Точки"));
    ExpectNear(read.points[0].point, {-7.25, 8.5, 120.75});
}

TEST_P(RoundTrip, Polylines)
{
    ASSERT_EQ(read.lwPolylines.size(), 2U);
    const CLWPolylineDXF& polyline = read.lwPolylines[0];
    ASSERT_EQ(polyline.vertices.size(), 4U);
    EXPECT_NEAR(polyline.vertices[0].bulge, 0.5, kNear);
    EXPECT_NEAR(polyline.vertices[1].bulge, 0, kNear);
    EXPECT_NEAR(polyline.vertices[2].point.y, 15, kNear);
    EXPECT_NEAR(polyline.width, 0.75, kNear);
    EXPECT_NEAR(polyline.elevation, 12, kNear);
    ASSERT_EQ(read.polylines.size(), 1U);
    EXPECT_EQ(read.polylines[0].layer, QStringLiteral("Рельеф"));
    ASSERT_EQ(read.polylines[0].vertices.size(), 3U);
    ExpectNear(read.polylines[0].vertices[2].point, {10, 10, 102.5});
    EXPECT_FALSE(read.polylines[0].is2D);
    EXPECT_FALSE(read.polylines[0].closed);
}

TEST_P(RoundTrip, Texts)
{
    ASSERT_EQ(read.texts.size(), 1U);
    EXPECT_EQ(read.texts[0].text, QStringLiteral("Улица Ленина, № 1"));
    EXPECT_EQ(read.texts[0].layer, QStringLiteral("Тексты"));
    EXPECT_NEAR(read.texts[0].height, 2.5, kNear);
    EXPECT_NEAR(read.texts[0].rotation, kPi / 4, kNear);
    EXPECT_NEAR(read.texts[0].position.x, 5, kNear);
    ASSERT_EQ(read.mtexts.size(), 2U);
    EXPECT_EQ(read.mtexts[0].text, QStringLiteral("Первая строка\\PВторая"));
    EXPECT_NEAR(read.mtexts[0].rectWidth, 40, kNear);
    // Three pieces: the reader marks the seam of two of group 3.
    EXPECT_EQ(read.mtexts[1].text,
              QString(250, QChar(u'ж')) + QChar(u';') + QString(350, QChar(u'ж')));
}

TEST_P(RoundTrip, BlocksAndInserts)
{
    std::map<QString, std::size_t> sizes;
    for (const CBlockDXF& block : read.blocks) {
        sizes[block.name] = block.entities.size();
    }
    EXPECT_EQ(sizes.count(QStringLiteral("Inner_1_")), 1U);
    EXPECT_EQ(sizes[QStringLiteral("Inner_1_")], 1U);
    EXPECT_EQ(sizes[QStringLiteral("Колодец")], 3U);
    ASSERT_EQ(read.inserts.size(), 1U);
    const CInsertDXF& insert = read.inserts[0];
    EXPECT_EQ(insert.name, QStringLiteral("Колодец"));
    ExpectNear(insert.point, {30, 40, 5});
    EXPECT_NEAR(insert.rotation, 300, kNear); // the writer turns the other way round
    EXPECT_NEAR(insert.scaleX, 2, kNear);
    EXPECT_NEAR(insert.scaleY, -2, kNear);
    ASSERT_EQ(insert.attributes.size(), 1U);
    EXPECT_EQ(insert.attributes[0].tag, QStringLiteral("NUMBER"));
    EXPECT_EQ(insert.attributes[0].text, QStringLiteral("К-17"));
}

TEST_P(RoundTrip, Hatches)
{
    ASSERT_EQ(read.hatches.size(), 2U);
    EXPECT_EQ(read.hatches[0].style.name, QStringLiteral("SOLID"));
    EXPECT_EQ(read.hatches[0].loops.size(), 3U);
    EXPECT_EQ(read.hatches[1].style.name, QStringLiteral("ANSI31"));
    EXPECT_TRUE(read.hatches[1].style.isDouble);
    EXPECT_NEAR(read.hatches[1].angle, 30, kNear); // degrees when read
}

TEST_P(RoundTrip, MLineAndImages)
{
    ASSERT_EQ(read.mlines.size(), 1U);
    ASSERT_EQ(read.mlines[0].vertices.size(), 3U);
    ExpectNear(read.mlines[0].vertices[2].point, {10, 8, 0});
    EXPECT_EQ(read.mlines[0].style.name, QStringLiteral("WALL"));
    ASSERT_EQ(read.images.size(), 2U);
    EXPECT_EQ(read.images[0].filePath, QStringLiteral("план.png"));
    EXPECT_NEAR(read.images[0].origin.y, -60, kNear);
    EXPECT_EQ(read.images[0].widthPixels,
              0); // the size stands in the definition, not in the entity
    EXPECT_NEAR(read.images[0].rotation, kPi / 2, kNear);
    EXPECT_EQ(read.images[1].clip.size(), 4U); // closed when written
}

INSTANTIATE_TEST_SUITE_P(Versions, RoundTrip, testing::Values(1015, 1018));

// SPDX-License-Identifier: MIT
#include "tests/support/DxfSample.h"

namespace VelorExchange::test {

using namespace VelorExchange::dxf;

namespace {

constexpr double kPi = 3.141592653589793;

CLineStyleDXF GasLine()
{
    CLineTextDXF text;
    text.text = QStringLiteral("ГАЗ");
    text.style = QStringLiteral("STANDARD");
    text.scale = 0.1;
    text.offsetX = -0.1;
    text.offsetY = -0.05;
    CLineShapeDXF shape;
    shape.number = 132;
    shape.style = QStringLiteral("ltypeshp.shx");
    shape.absolute = true;
    shape.rotation = 90;
    CLineStyleDXF style;
    style.name = QStringLiteral("GAS_LINE");
    style.description = QStringLiteral("Gas line ----ГАЗ----");
    style.pattern = {0.5, -0.2, text, -0.25, shape, -0.1};
    return style;
}

// Puts the common head on a record.
template <class Record>
Record Headed(const char* layer, quint32 color, double weight)
{
    Record record;
    record.layer = QString::fromUtf8(layer);
    record.color = color;
    record.lineWeight = weight;
    return record;
}

void DrawSimpleEntities(IDXFWriter& writer)
{
    auto line = Headed<CLineDXF>("Дороги/главные", 0x0000FF, 0.25);
    line.start = {0, 0, 1.5};
    line.end = {100.125, -50.0625, 0};
    line.lineStyle = GasLine();
    writer.AddLine(line);

    auto arc = Headed<CArcDXF>("Arcs", 0x00FF00, 0);
    arc.center = {10, 20, 0};
    arc.radius = 5.5;
    arc.startAngle = kPi / 6;
    arc.endAngle = kPi;
    writer.AddArc(arc);
    arc.startAngle = 0;
    arc.endAngle = 2 * kPi;
    writer.AddArc(arc); // a whole circle

    auto face = Headed<C3DFaceDXF>("Faces", 0x808080, 3.0);
    face.corners = {{{0, 0, 0}, {10, 0, 1}, {10, 10, 2}, {0, 10, 3}}};
    writer.Add3DFace(face);

    auto spline = Headed<CSplineDXF>("Curves", 256, 0.5);
    spline.knots = {0, 0, 0, 0, 1, 1, 1, 1};
    spline.controlPoints = {{0, 0, 0}, {1, 5, 0}, {4, 5, 0}, {5, 0, 0}};
    writer.AddSpline(spline);

    auto xline = Headed<CXLineDXF>("Axes", kByBlockColor, 0);
    xline.origin = {3, 4};
    xline.direction = {1, 1};
    writer.AddXLine(xline);

    CPointDXF point;
    point.layer = QStringLiteral("Точки");
    point.point = {-7.25, 8.5, 120.75};
    writer.AddPoint(point);
}

void DrawPolylines(IDXFWriter& writer)
{
    auto polyline = Headed<CLWPolylineDXF>("Полилинии", 0xFF0000, 1.0);
    polyline.width = 0.75;
    polyline.elevation = 12;
    polyline.vertices = {{{0, 0, 0}, 0.5}, {{20, 0, 0}, 0}, {{20, 15, 0}, -0.25}, {{0, 15, 0}, 0}};
    writer.AddPolyline(polyline);
    polyline.vertices.push_back(polyline.vertices.front());
    writer.AddPolyline(polyline); // closed

    auto space = Headed<CPolylineDXF>("Рельеф", 0x123456, 0.3);
    space.vertices = {{{0, 0, 100}, 0}, {{10, 0, 101}, 0}, {{10, 10, 102.5}, 0}};
    writer.Add3DPolyline(space);
}

template <class Record>
Record Lettered(const char* text)
{
    Record record;
    record.layer = QStringLiteral("Тексты");
    record.text = QString::fromUtf8(text);
    record.position = {5, 6};
    record.height = 2.5;
    record.rotation = kPi / 4;
    return record;
}

void DrawTexts(IDXFWriter& writer)
{
    auto text = Lettered<CTextDXF>("Улица  Ленина,\n№ 1");
    text.style.name = QStringLiteral("Подписи");
    text.style.fontFile = QStringLiteral("arial.ttf");
    text.style.faceName = QStringLiteral("Arial");
    text.style.italic = true;
    text.style.widthFactor = 0.8;
    writer.AddText(text);
    auto paragraph = Lettered<CMTextDXF>("Первая строка\\PВторая");
    paragraph.rectWidth = 40;
    paragraph.alignment = 1;
    writer.AddMText(paragraph);
    paragraph.text = QString(600, QChar(u'ж'));
    writer.AddMText(paragraph);
    auto definition = Lettered<CAttribDXF>("0");
    definition.tag = QStringLiteral("ALONE");
    writer.AddAttribute(definition, false);
}

void DrawBlocks(IDXFWriter& writer)
{
    writer.BeginBlock(QStringLiteral("Колодец"), true, QString());
    auto arc = Headed<CArcDXF>("Arcs", 0x00FF00, 0);
    arc.radius = 1;
    writer.AddArc(arc);
    auto definition = Lettered<CAttribDXF>("К-0");
    definition.tag = QStringLiteral("NUMBER");
    definition.hidden = true;
    writer.AddAttribute(definition, false);
    writer.BeginBlock(QStringLiteral("Inner<1>"), false, QString());
    writer.AddPoint(CPointDXF{});
    writer.EndBlock();
    CInsertDXF inner;
    inner.name = QStringLiteral("Inner<1>");
    writer.AddInsert(inner);
    writer.EndBlock();
    writer.BeginBlock(QStringLiteral("Подложка"), false, QStringLiteral("C:\\Карты\\план.dwg"));
    writer.EndBlock();

    CInsertDXF insert;
    insert.name = QStringLiteral("Колодец");
    insert.layer = QStringLiteral("Сети");
    insert.color = 0x00FFFF;
    insert.point = {30, 40, 5};
    insert.rotation = kPi / 3;
    insert.scaleX = 2;
    insert.scaleY = -2;
    auto number = Lettered<CAttribDXF>("К-17");
    number.tag = QStringLiteral("NUMBER");
    insert.attributes = {number};
    writer.AddInsert(insert);
}

void DrawHatches(IDXFWriter& writer)
{
    CHatchDXF hatch;
    hatch.layer = QStringLiteral("Заливка");
    hatch.color = 0xC0DCC0;
    hatch.outline = {{0, 0, 0}, {30, 0, 0}, {30, 20, 0}, {0, 20, 0}, {0, 0, 0}};
    hatch.markedBoundaries = {{{5, 5, 1}, {10, 5, 1}}, {{20, 5, 0}, {25, 5, 0}, {25, 10, 0}}};
    writer.AddHatch(hatch);

    hatch.style.name = QStringLiteral("ANSI31");
    hatch.style.isDouble = true;
    hatch.angle = kPi / 6;
    hatch.scale = 2;
    CHatchLineDXF line;
    line.angle = 45;
    line.offsetX = -2.25;
    line.offsetY = 2.25;
    line.dashes = {1, -0.5};
    hatch.style.lines = {line};
    writer.AddHatch(hatch);
}

void DrawMLineAndImages(IDXFWriter& writer)
{
    CMLineDXF mline;
    mline.layer = QStringLiteral("Стены");
    mline.vertices = {{{0, 0, 0}, 0}, {{10, 0, 0}, 0}, {{10, 8, 0}, 0}};
    mline.style.name = QStringLiteral("WALL");
    mline.style.body = QStringLiteral("2\nWALL\n70\n0\n3\n\n62\n256\n51\n90.0\n52\n90.0\n71\n2\n"
                                      "49\n0.25\n62\n256\n6\nBYLAYER\n49\n-0.25\n62\n256\n6\n"
                                      "BYLAYER\n");
    mline.style.offsets = {0.25, -0.25};
    writer.AddMLine(mline);

    CImageDXF image;
    image.layer = QStringLiteral("Подложки");
    image.name = QStringLiteral("план");
    image.filePath = QStringLiteral("план.png");
    image.origin = {-50, -60};
    image.scaleX = 0.5;
    image.scaleY = 0.5;
    image.widthPixels = 640;
    image.heightPixels = 480;
    image.rotation = kPi / 2;
    writer.AddImage(image);
    image.name = QStringLiteral("clipped");
    image.filePath = QStringLiteral("clipped.tif");
    image.clip = {{0, 0, 0}, {100, 0, 0}, {50, 100, 0}};
    writer.AddImage(image);
}

} // namespace

void DrawEverything(IDXFWriter& writer)
{
    writer.AddLayer(QStringLiteral("Скрытый"), false, true);
    writer.AddLayer(QStringLiteral("Dimensions"), true, false);
    writer.AddLayer(QStringLiteral("defpoints"), true, false);
    DrawSimpleEntities(writer);
    DrawPolylines(writer);
    DrawTexts(writer);
    DrawBlocks(writer);
    DrawHatches(writer);
    DrawMLineAndImages(writer);
}

} // namespace VelorExchange::test

// SPDX-License-Identifier: MIT
// Takes the input for a list of calls with arbitrary records, writes the drawing and reads it back: as
// many elements have to come as the writer said it took.
#include "VelorExchange/DXF.h"

#include "MemoryFile.h"

#include <cstdint>
#include <cstring>
#include <memory>

using namespace VelorExchange;
using namespace VelorExchange::dxf;

namespace {

// Takes numbers and texts from the input; zeros once it is used up.
class CInput
{
public:
    CInput(const std::uint8_t* data, std::size_t size) : p(data), end(data + size) { }

    bool IsOver() const { return p == end; }
    int Byte() { return p == end ? 0 : *p++; }
    double Real()
    {
        // Mostly ordinary numbers, sometimes any bits at all.
        if (Byte() % 4 != 0) {
            return (Byte() * 256 + Byte() - 32768) / 16.0;
        }
        double value = 0;
        for (std::size_t i = 0; i < sizeof value; ++i) {
            const auto byte = static_cast<std::uint8_t>(Byte());
            std::memcpy(reinterpret_cast<std::uint8_t*>(&value) + i, &byte, 1);
        }
        return value;
    }
    // Short enough for the reader's lines of 1023 characters.
    QString Text()
    {
        QString text;
        for (int left = Byte() % 200; left > 0; --left) {
            const int high = Byte();
            text += QChar(static_cast<ushort>(high % 8 == 0 ? Byte() * 256 + Byte() : high));
        }
        return text;
    }
    CPoint2D Point2D() { return {Real(), Real()}; }
    CPoint3D Point3D() { return {Real(), Real(), Real()}; }
    std::vector<CPoint3D> Points()
    {
        std::vector<CPoint3D> points(static_cast<std::size_t>(Byte() % 8));
        for (CPoint3D& point : points) {
            point = Point3D();
        }
        return points;
    }
    std::vector<CVertexDXF> Vertices()
    {
        std::vector<CVertexDXF> vertices;
        for (const CPoint3D& point : Points()) {
            vertices.push_back({point, Real()});
        }
        return vertices;
    }
    CLineStyleDXF LineStyle()
    {
        CLineStyleDXF style;
        style.name = Text();
        for (int left = Byte() % 5; left > 0; --left) {
            CLineTextDXF text;
            text.text = Text();
            text.style = Text();
            text.scale = Real();
            style.pattern.push_back(Real());
            style.pattern.push_back(text);
        }
        return style;
    }
    void Head(CEntityDXF& head)
    {
        head.layer = Text();
        head.color = static_cast<quint32>(Byte() * 65793);
        head.lineWeight = Real();
        if (Byte() % 2 != 0) {
            head.lineStyle = LineStyle();
        }
    }
    void Letters(CTextDXF& text)
    {
        text.text = Text();
        text.layer = Text();
        text.position = Point2D();
        text.height = Real();
        text.rotation = Real();
        text.alignment = Byte();
        text.style.name = Text();
    }

private:
    const std::uint8_t* p;
    const std::uint8_t* end;
};

struct CCounts
{
    int lines = 0;
    int arcs = 0;
    int points = 0;
    int polylines = 0;
    int spacePolylines = 0;
    int texts = 0;
    int inserts = 0;
    int hatches = 0;

    bool operator==(const CCounts& o) const
    {
        return lines == o.lines && arcs == o.arcs && points == o.points && polylines == o.polylines
            && spacePolylines == o.spacePolylines && texts == o.texts && inserts == o.inserts
            && hatches == o.hatches;
    }
};

class CCountingHost final : public IDXFReader
{
public:
    bool OnLine(const CLineDXF&) override { return ++counts.lines > 0; }
    bool OnArc(const CArcDXF&) override { return ++counts.arcs > 0; }
    bool OnPoint(const CPointDXF&) override { return ++counts.points > 0; }
    bool OnLWPolyline(const CLWPolylineDXF&) override { return ++counts.polylines > 0; }
    bool OnPolyline(const CPolylineDXF&) override { return ++counts.spacePolylines > 0; }
    bool OnText(const CTextDXF&) override { return ++counts.texts > 0; }
    bool OnMText(const CMTextDXF&) override { return ++counts.texts > 0; }
    bool OnInsert(const CInsertDXF&) override { return ++counts.inserts > 0; }
    bool OnHatch(const CHatchDXF&) override { return ++counts.hatches > 0; }

    CCounts counts;
};

class CDriver
{
public:
    CDriver(IDXFWriter& target, CInput& source) : writer(target), input(source) { }

    CCounts Run()
    {
        while (!input.IsOver()) {
            Step();
        }
        while (writer.IsInBlock()) {
            writer.EndBlock();
        }
        return counts;
    }

private:
    void Count(bool taken, int& count) const { count += taken && !writer.IsInBlock() ? 1 : 0; }

    void Step()
    {
        switch (input.Byte() % 14) {
        case 0: {
            CLineDXF line;
            input.Head(line);
            line.start = input.Point3D();
            line.end = input.Point3D();
            return Count(writer.AddLine(line), counts.lines);
        }
        case 1: {
            CArcDXF arc;
            input.Head(arc);
            arc.center = input.Point3D();
            arc.radius = input.Real();
            arc.startAngle = input.Real();
            return Count(writer.AddArc(arc), counts.arcs);
        }
        case 2: {
            CPointDXF point;
            point.layer = input.Text();
            point.point = input.Point3D();
            return Count(writer.AddPoint(point), counts.points);
        }
        case 3: {
            CLWPolylineDXF polyline;
            input.Head(polyline);
            polyline.vertices = input.Vertices();
            polyline.width = input.Real();
            return Count(writer.AddPolyline(polyline), counts.polylines);
        }
        case 4: {
            CPolylineDXF polyline;
            input.Head(polyline);
            polyline.vertices = input.Vertices();
            return Count(writer.Add3DPolyline(polyline), counts.spacePolylines);
        }
        default:
            return StepOn(input.Byte() % 9);
        }
    }

    void StepOn(int kind)
    {
        switch (kind) {
        case 0: {
            CTextDXF text;
            input.Letters(text);
            return Count(writer.AddText(text), counts.texts);
        }
        case 1: {
            CMTextDXF text;
            input.Letters(text);
            return Count(writer.AddMText(text), counts.texts);
        }
        case 2: {
            CInsertDXF insert;
            insert.name = input.Text();
            insert.layer = input.Text();
            insert.point = input.Point3D();
            insert.scaleX = input.Real();
            insert.attributes.resize(static_cast<std::size_t>(input.Byte() % 3));
            for (CAttribDXF& attribute : insert.attributes) {
                input.Letters(attribute);
                attribute.tag = input.Text();
            }
            return Count(writer.AddInsert(insert), counts.inserts);
        }
        case 3: {
            CHatchDXF hatch;
            hatch.layer = input.Text();
            hatch.outline = input.Points();
            hatch.markedBoundaries.push_back(input.Points());
            hatch.style.name = input.Text();
            hatch.style.lines.resize(static_cast<std::size_t>(input.Byte() % 3));
            hatch.angle = input.Real();
            return Count(writer.AddHatch(hatch), counts.hatches);
        }
        default:
            return StepAround(kind);
        }
    }

    void StepAround(int kind)
    {
        switch (kind) {
        case 4: {
            CMLineDXF mline;
            mline.vertices = input.Vertices();
            mline.style.name = input.Text();
            mline.style.body = QStringLiteral("2\nSTYLE\n");
            mline.style.offsets = {input.Real(), input.Real()};
            writer.AddMLine(mline);
            return;
        }
        case 5: {
            CImageDXF image;
            image.name = writer.MakeImageName(input.Text());
            image.filePath = input.Text();
            image.clip = input.Points();
            image.rotation = input.Real();
            if (!writer.IsInBlock()) {
                writer.AddImage(image);
            }
            return;
        }
        case 6:
            // A block within a block is the only one there, so that each ends in its own file.
            if (!writer.IsInBlock()) {
                writer.BeginBlock(input.Text(), input.Byte() % 2 != 0, input.Text());
            }
            return;
        case 7:
            writer.EndBlock();
            return;
        default:
            writer.SetPrecision(input.Byte() % 20);
        }
    }

    IDXFWriter& writer;
    CInput& input;
    CCounts counts;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    CInput input(data, size);
    const std::unique_ptr<IDXFWriter, decltype(&DeleteDXFWriter)> writer(CreateDXFWriter(nullptr),
                                                                         &DeleteDXFWriter);
    writer->Init(input.Byte() % 2 != 0 ? 1015 : 1018, nullptr);
    const CCounts written = CDriver(*writer, input).Run();
    const fuzz::CMemoryFile file(data, 0);
    writer->Rewrite(file.Path());
    CCountingHost host;
    if (!Read(file.Path(), &host) || !(host.counts == written)) {
        __builtin_trap();
    }
    return 0;
}

// SPDX-License-Identifier: MIT
// Takes the input for a list of calls with arbitrary records and a context that answers at will, writes
// the drawing and reads it back: as many elements have to come as the writer said it took, within blocks
// and outside them.
#include "DxfInput.h"
#include "MemoryFile.h"

#include <memory>

using namespace VelorExchange;
using namespace VelorExchange::dxf;
using fuzz::CDxfInput;

namespace {

enum EKind {
    kLine,
    kArc,
    kPoint,
    kPolyline,
    kSpacePolyline,
    kText,
    kInsert,
    kHatch,
    kFace,
    kSpline,
    kXLine,
    kMLine,
    kInBlocks,
    kKindCount
};

struct CCounts
{
    int of[kKindCount] = {};
};

class CCountingHost final : public IDXFReader
{
public:
    bool OnLine(const CLineDXF&) override { return Count(kLine); }
    bool OnArc(const CArcDXF&) override { return Count(kArc); }
    bool OnPoint(const CPointDXF&) override { return Count(kPoint); }
    bool OnLWPolyline(const CLWPolylineDXF&) override { return Count(kPolyline); }
    bool OnPolyline(const CPolylineDXF&) override { return Count(kSpacePolyline); }
    bool OnText(const CTextDXF&) override { return Count(kText); }
    bool OnMText(const CMTextDXF&) override { return Count(kText); }
    bool OnInsert(const CInsertDXF&) override { return Count(kInsert); }
    bool OnHatch(const CHatchDXF&) override { return Count(kHatch); }
    bool On3DFace(const C3DFaceDXF&) override { return Count(kFace); }
    bool OnSpline(const CSplineDXF&) override { return Count(kSpline); }
    bool OnXLine(const CXLineDXF&) override { return Count(kXLine); }
    bool OnMLine(const CMLineDXF&) override { return Count(kMLine); }
    bool OnBlock(const CBlockDXF& block) override
    {
        counts.of[kInBlocks] += static_cast<int>(block.entities.size());
        return true;
    }

    CCounts counts;

private:
    bool Count(EKind kind) { return ++counts.of[kind] > 0; }
};

class CAnswering final : public IDXFWriter::IContext
{
public:
    explicit CAnswering(CDxfInput& source) : input(source) { }

    CPoint2D TransformPoint(const CPoint2D& in) override
    {
        return isFar ? CPoint2D{in.x * 1e300, in.y + 1} : in;
    }
    bool GetLineStyle(const QString&, CLineStyleDXF& style) override
    {
        style = input.LineStyle();
        return input.Flag();
    }
    void CompleteTextStyle(CTextStyleDXF& style) override { style.height = input.Real(); }
    double GetScale() override { return input.Byte() % 16 == 0 ? input.Real() : 2.0; }

    bool isFar = false;

private:
    CDxfInput& input;
};

// One step an operation; each returns whether the writer took its record.
class CDriver
{
public:
    CDriver(IDXFWriter& target, CDxfInput& source) : writer(target), input(source) { }

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
    void Count(bool taken, EKind kind)
    {
        counts.of[writer.IsInBlock() ? kInBlocks : kind] += taken ? 1 : 0;
    }

    void Step()
    {
        constexpr void (CDriver::*kSteps[])() = {
            &CDriver::Line,     &CDriver::Arc,    &CDriver::Point,     &CDriver::Polyline,
            &CDriver::Space,    &CDriver::Text,   &CDriver::MText,     &CDriver::Insert,
            &CDriver::Hatch,    &CDriver::Face,   &CDriver::Spline,    &CDriver::XLine,
            &CDriver::MLine,    &CDriver::Image,  &CDriver::Attribute, &CDriver::Begin,
            &CDriver::EndBlock, &CDriver::Styles, &CDriver::Settings,  &CDriver::StartAnew};
        (this->*kSteps[static_cast<std::size_t>(input.Byte()) % std::size(kSteps)])();
    }

    template <class Record>
    Record Headed()
    {
        Record record;
        input.Head(record);
        return record;
    }

    void Line()
    {
        auto line = Headed<CLineDXF>();
        line.start = input.Point3D();
        line.end = input.Point3D();
        Count(writer.AddLine(line), kLine);
    }
    void Arc()
    {
        auto arc = Headed<CArcDXF>();
        arc.center = input.Point3D();
        arc.radius = input.Real();
        arc.startAngle = input.Real();
        Count(writer.AddArc(arc), kArc);
    }
    void Point()
    {
        CPointDXF point;
        point.layer = input.Text();
        point.point = input.Point3D();
        Count(writer.AddPoint(point), kPoint);
    }
    void Polyline()
    {
        auto polyline = Headed<CLWPolylineDXF>();
        polyline.vertices = input.Vertices();
        polyline.width = input.Real();
        Count(writer.AddPolyline(polyline), kPolyline);
    }
    void Space()
    {
        auto polyline = Headed<CPolylineDXF>();
        polyline.vertices = input.Vertices();
        Count(writer.Add3DPolyline(polyline), kSpacePolyline);
    }
    void Text()
    {
        CTextDXF text;
        input.Letters(text);
        Count(writer.AddText(text), kText);
    }
    void MText()
    {
        CMTextDXF text;
        input.Letters(text);
        Count(writer.AddMText(text), kText);
    }
    void Insert()
    {
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
        Count(writer.AddInsert(insert), kInsert);
    }
    void Hatch()
    {
        CHatchDXF hatch;
        hatch.layer = input.Text();
        hatch.outline = input.Points();
        hatch.markedBoundaries.push_back(input.Points());
        hatch.style = input.HatchStyle();
        hatch.angle = input.Real();
        Count(writer.AddHatch(hatch), kHatch);
    }
    void Face()
    {
        auto face = Headed<C3DFaceDXF>();
        for (CPoint3D& corner : face.corners) {
            corner = input.Point3D();
        }
        Count(writer.Add3DFace(face), kFace);
    }
    void Spline()
    {
        auto spline = Headed<CSplineDXF>();
        spline.knots = input.Reals();
        spline.controlPoints = input.Points();
        Count(writer.AddSpline(spline), kSpline);
    }
    void XLine()
    {
        auto xline = Headed<CXLineDXF>();
        xline.origin = input.Point2D();
        xline.direction = input.Point2D();
        Count(writer.AddXLine(xline), kXLine);
    }
    void MLine()
    {
        CMLineDXF mline;
        mline.layer = input.Text();
        mline.vertices = input.Vertices();
        mline.style.name = input.Text();
        mline.style.body = QStringLiteral("2\nSTYLE\n");
        mline.style.offsets = input.Reals();
        mline.style.lineTypes.resize(static_cast<std::size_t>(input.Byte() % 3));
        Count(writer.AddMLine(mline), kMLine);
    }
    // Its second half would leave an open block.
    void Image()
    {
        CImageDXF image;
        image.name = writer.MakeImageName(input.Text());
        image.filePath = input.Text();
        image.clip = input.Points();
        image.rotation = input.Real();
        if (!writer.IsInBlock()) {
            writer.AddImage(image);
        }
    }
    // The reader takes definitions within blocks alone.
    void Attribute()
    {
        CAttribDXF attribute;
        input.Letters(attribute);
        attribute.tag = input.Text();
        if (writer.AddAttribute(attribute, false) && writer.IsInBlock()) {
            ++counts.of[kInBlocks];
        }
    }
    // What follows a nested block lands in the file of a closed sibling: none is made here.
    void Begin()
    {
        if (!hasClosedInside) {
            writer.BeginBlock(input.Text(), input.Flag(), input.Text());
        }
    }
    void EndBlock()
    {
        writer.EndBlock();
        hasClosedInside = writer.IsInBlock();
    }
    void Styles()
    {
        writer.AddLayer(input.Text(), input.Flag(), input.Flag());
        writer.AddTextStyle(input.TextStyle(), input.Flag());
        writer.AddLineStyle(input.LineStyle());
    }
    void Settings() { writer.SetPrecision(input.Byte() % 20); }
    void StartAnew()
    {
        if (!writer.IsInBlock()) {
            writer.Init(input.Flag() ? 1015 : 1018, nullptr);
            counts = {};
        }
    }

    IDXFWriter& writer;
    CDxfInput& input;
    CCounts counts;
    bool hasClosedInside = false;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    CDxfInput input(data, size);
    CAnswering context(input);
    const std::unique_ptr<IDXFWriter, decltype(&DeleteDXFWriter)> writer(
        CreateDXFWriter(input.Flag() ? &context : nullptr), &DeleteDXFWriter);
    context.isFar = input.Byte() % 8 == 0;
    const CCounts written = CDriver(*writer, input).Run();
    const fuzz::CMemoryFile file(data, 0);
    writer->Rewrite(file.Path());
    CCountingHost host;
    if (!Read(file.Path(), &host) || std::memcmp(&host.counts, &written, sizeof written) != 0) {
        __builtin_trap();
    }
    return 0;
}

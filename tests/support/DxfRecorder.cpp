// SPDX-License-Identifier: MIT
#include "tests/support/DxfRecorder.h"

#include <QLocale>
#include <QTemporaryFile>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace VelorExchange::test {

using namespace VelorExchange::dxf;

namespace {

// One line of text, built field by field.
class CLine
{
public:
    explicit CLine(const char* name) : line(name) { }

    template <class T>
    CLine& Add(const char* name, const T& value, const T& usual)
    {
        const std::string shown = Shown(value);
        if (shown != Shown(usual)) {
            line += ' ';
            line += name;
            line += '=' + shown;
        }
        return *this;
    }

    template <class T>
    CLine& Add(const char* name, const T& value)
    {
        return Add(name, value, T());
    }

    CLine& Head(const CEntityDXF& head)
    {
        const CEntityDXF usual;
        return Add("layer", head.layer)
            .Add("color", head.color)
            .Add("weight", head.lineWeight)
            .Add("style", head.lineStyle.name, usual.lineStyle.name);
    }

    const std::string& Text() const { return line; }

    static std::string Shown(double value) { return Shortest(value); }
    static std::string Shown(bool value) { return value ? "true" : "false"; }
    static std::string Shown(int value) { return std::to_string(value); }
    static std::string Shown(const QString& value) { return '"' + value.toStdString() + '"'; }
    static std::string Shown(const CPoint2D& p)
    {
        return '(' + Shown(p.x) + ' ' + Shown(p.y) + ')';
    }

    static std::string Shown(quint32 value)
    {
        char hex[16];
        std::snprintf(hex, sizeof hex, "#%06X", value);
        return hex;
    }

    static std::string Shown(const CPoint3D& p)
    {
        return '(' + Shown(p.x) + ' ' + Shown(p.y) + ' ' + Shown(p.z) + ')';
    }

    static std::string Shown(const CVertexDXF& vertex)
    {
        return vertex.bulge == 0.0 ? Shown(vertex.point)
                                   : Shown(vertex.point) + '^' + Shown(vertex.bulge);
    }

    static std::string Shown(const CMLineSegmentDXF& segment)
    {
        return Shown(segment.direction) + '/' + Shown(segment.miter);
    }

    template <class T>
    static std::string Shown(const std::vector<T>& items)
    {
        std::string shown = "[";
        for (const T& item : items) {
            shown += (shown.size() > 1 ? " " : "") + Shown(item);
        }
        return shown + ']';
    }

    static std::string Shown(const CHatchEdgeDXF& edge);
    static std::string Shown(const CAttribDXF& attribute);

private:
    std::string line;
};

CLine& AddText(CLine& line, const CTextDXF& text)
{
    return line.Add("text", text.text)
        .Add("layer", text.layer)
        .Add("at", text.position)
        .Add("height", text.height)
        .Add("rotation", text.rotation)
        .Add("color", text.color)
        .Add("align", text.alignment)
        .Add("style", text.style.name, QStringLiteral("STANDARD"))
        .Add("style.height", text.style.height)
        .Add("style.width", text.style.widthFactor, 1.0)
        .Add("style.oblique", text.style.obliqueAngle);
}

CLine LineOf(const char* name, const CPolylineDXF& r)
{
    return CLine(name)
        .Head(r)
        .Add("vertices", r.vertices)
        .Add("width", r.width)
        .Add("2d", r.is2D)
        .Add("closed", r.closed);
}

CLine LineOf(const char* name, const CMLineDXF& r)
{
    return CLine(name)
        .Add("layer", r.layer)
        .Add("color", r.color)
        .Add("weight", r.lineWeight)
        .Add("mstyle", r.style.name)
        .Add("vertices", r.vertices)
        .Add("segments", r.segments);
}

CLine LineOf(const char* name, const CEllipseDXF& r)
{
    return CLine(name)
        .Head(r)
        .Add("center", r.center)
        .Add("major", r.majorAxis)
        .Add("ratio", r.ratio)
        .Add("start", r.startParameter)
        .Add("end", r.endParameter)
        .Add("ccw", r.counterClockwise, true);
}

CLine LineOf(const char* name, const CLWPolylineDXF& r)
{
    return CLine(name)
        .Head(r)
        .Add("vertices", r.vertices)
        .Add("width", r.width)
        .Add("elevation", r.elevation);
}

CLine LineOf(const char* name, const CSplineDXF& r)
{
    return CLine(name)
        .Head(r)
        .Add("knots", r.knots)
        .Add("control", r.controlPoints)
        .Add("fit", r.fitPoints);
}

CLine LineOf(const char* name, const CSolidDXF& r)
{
    return CLine(name)
        .Add("layer", r.layer)
        .Add("color", r.color)
        .Add("weight", r.lineWeight)
        .Add("points", r.points);
}

CLine LineOf(const char* name, const CLineDXF& r)
{
    return CLine(name).Head(r).Add("start", r.start).Add("end", r.end);
}

CLine LineOf(const char* name, const C3DFaceDXF& r)
{
    const std::vector<CPoint3D> corners(r.corners.begin(), r.corners.end());
    return CLine(name).Head(r).Add("corners", corners);
}

CLine LineOf(const char* name, const CXLineDXF& r)
{
    return CLine(name)
        .Head(r)
        .Add("origin", r.origin)
        .Add("z", r.originZ)
        .Add("direction", r.direction);
}

CLine LineOf(const char* name, const CRayDXF& r)
{
    return CLine(name).Head(r).Add("origin", r.origin).Add("direction", r.direction);
}

CLine LineOf(const char* name, const CArcDXF& r)
{
    return CLine(name)
        .Head(r)
        .Add("center", r.center)
        .Add("radius", r.radius)
        .Add("start", r.startAngle)
        .Add("end", r.endAngle)
        .Add("ccw", r.counterClockwise, true);
}

CLine LineOf(const char* name, const CImageDXF& r)
{
    return CLine(name)
        .Add("layer", r.layer)
        .Add("clip", r.clip)
        .Add("path", r.filePath)
        .Add("name", r.name)
        .Add("origin", r.origin)
        .Add("scaleX", r.scaleX, 1.0)
        .Add("scaleY", r.scaleY, 1.0)
        .Add("width", r.widthPixels)
        .Add("height", r.heightPixels)
        .Add("rotation", r.rotation);
}

CLine LineOf(const char* name, const CInsertDXF& r)
{
    return CLine(name)
        .Add("name", r.name)
        .Add("layer", r.layer)
        .Add("point", r.point)
        .Add("rotation", r.rotation)
        .Add("scaleX", r.scaleX, 1.0)
        .Add("scaleY", r.scaleY, 1.0)
        .Add("scaleZ", r.scaleZ, 1.0)
        .Add("color", r.color)
        .Add("style", r.lineStyle.name, QStringLiteral("CONTINUOUS"))
        .Add("attributes", r.attributes);
}

CLine LineOf(const char* name, const CHatchDXF& r)
{
    return CLine(name)
        .Add("layer", r.layer)
        .Add("outline", r.outline)
        .Add("marked", r.markedBoundaries)
        .Add("loops", r.loops)
        .Add("color", r.color)
        .Add("angle", r.angle)
        .Add("scale", r.scale, 1.0)
        .Add("style", r.style.name, QStringLiteral("SOLID"))
        .Add("double", r.style.isDouble)
        .Add("elevation", r.elevation);
}

CLine LineOf(const char* name, const CTextDXF& r)
{
    CLine line(name);
    return AddText(line, r);
}

CLine LineOf(const char* name, const CMTextDXF& r)
{
    CLine line(name);
    return AddText(line, r).Add("rectWidth", r.rectWidth);
}

CLine LineOf(const char* name, const CPointDXF& r)
{
    return CLine(name)
        .Add("layer", r.layer)
        .Add("color", r.color)
        .Add("point", r.point)
        .Add("thickness", r.thickness);
}

CLine LineOf(const char* name, const CAttDefDXF& r)
{
    return CLine(name).Add("tag", r.tag).Add("value", r.value).Add("extra", r.extra);
}

CLine LineOf(const char* name, const CTextStyleDXF& r)
{
    return CLine(name)
        .Add("name", r.name)
        .Add("font", r.fontFile)
        .Add("face", r.faceName)
        .Add("width", r.widthFactor, 1.0)
        .Add("oblique", r.obliqueAngle)
        .Add("height", r.height)
        .Add("bold", r.bold)
        .Add("italic", r.italic);
}

CLine LineOf(const char* name, const CMLineStyleDXF& r)
{
    return CLine(name)
        .Add("name", r.name)
        .Add("types", r.lineTypes)
        .Add("colors", r.colors)
        .Add("offsets", r.offsets);
}

CLine LineOf(const char* name, const CLineStyleDXF& r)
{
    return CLine(name).Add("name", r.name).Add("description", r.description);
}

CLine LineOf(const char* name, const CLayerDXF& r)
{
    return CLine(name)
        .Add("name", r.name)
        .Add("type", r.lineType, QStringLiteral("CONTINUOUS"))
        .Add("color", r.color)
        .Add("weight", r.lineWeight)
        .Add("visible", r.visible, true)
        .Add("unlocked", r.unlocked, true);
}

CLine LineOf(const char* name, const CHeaderDXF& r)
{
    return CLine(name).Add("version", r.version).Add("min", r.extMin).Add("max", r.extMax);
}

std::string CLine::Shown(const CHatchEdgeDXF& edge)
{
    static const char* const kNames[] = {"Arc", "Spline", "LWPolyline", "Ellipse"};
    const char* const name = kNames[edge.index()];
    return '{' + boost::variant2::visit([&](const auto& r) { return LineOf(name, r).Text(); }, edge)
        + '}';
}

std::string CLine::Shown(const CAttribDXF& attribute)
{
    CLine line("Attrib");
    AddText(line, attribute).Add("tag", attribute.tag).Add("hidden", attribute.hidden);
    return '{' + line.Text() + '}';
}

CLine LineOf(const char* name, const CBlockDXF& r)
{
    static const char* const kNames[] = {"Point",      "Line",     "XLine",  "Arc",   "Spline",
                                         "LWPolyline", "Polyline", "Text",   "MText", "Solid",
                                         "Hatch",      "3DFace",   "Image",  "Ray",   "MLine",
                                         "AttDef",     "Insert",   "Ellipse"};
    CLine line(name);
    line.Add("name", r.name);
    std::string entities;
    for (const CEntityVariantDXF& entity : r.entities) {
        entities +=
            "\n  "
            + boost::variant2::visit(
                [&](const auto& e) { return LineOf(kNames[entity.index()], e).Text(); }, entity);
    }
    return CLine((line.Text() + entities).c_str());
}

} // namespace

void CProgressRecorder::Begin(const QString& title, qint64 total)
{
    text += "Begin \"" + title.toStdString() + "\" " + std::to_string(total) + '\n';
}

void CProgressRecorder::SetPosition(qint64 position)
{
    positions.push_back(position);
    text += "Position " + std::to_string(position) + '\n';
}

void CProgressRecorder::Finish()
{
    text += "Finish\n";
}

template <class Record>
bool CDxfRecorder::Write(const char* operation, const Record& record)
{
    ++counts[operation];
    text += LineOf(operation + 2, record).Text() + '\n'; // without "On"
    return true;
}

bool CDxfRecorder::OnSection(int stage)
{
    if (recordsGates) {
        text += "Section " + std::to_string(stage) + '\n';
    }
    return std::find(refused.begin(), refused.end(), stage) == refused.end();
}

bool CDxfRecorder::OnPolyline(const CPolylineDXF& record)
{
    return Write("OnPolyline", record);
}
bool CDxfRecorder::OnMLine(const CMLineDXF& record)
{
    return Write("OnMLine", record);
}
bool CDxfRecorder::OnEllipse(const CEllipseDXF& record)
{
    return Write("OnEllipse", record);
}
bool CDxfRecorder::OnLWPolyline(const CLWPolylineDXF& record)
{
    return Write("OnLWPolyline", record);
}
bool CDxfRecorder::OnSpline(const CSplineDXF& record)
{
    return Write("OnSpline", record);
}
bool CDxfRecorder::OnSolid(const CSolidDXF& record)
{
    return Write("OnSolid", record);
}
bool CDxfRecorder::OnLine(const CLineDXF& record)
{
    return Write("OnLine", record);
}
bool CDxfRecorder::On3DFace(const C3DFaceDXF& record)
{
    return Write("On3DFace", record);
}
bool CDxfRecorder::OnXLine(const CXLineDXF& record)
{
    return Write("OnXLine", record);
}
bool CDxfRecorder::OnRay(const CRayDXF& record)
{
    return Write("OnRay", record);
}
bool CDxfRecorder::OnArc(const CArcDXF& record)
{
    return Write("OnArc", record);
}
bool CDxfRecorder::OnImage(const CImageDXF& record)
{
    return Write("OnImage", record);
}
bool CDxfRecorder::OnInsert(const CInsertDXF& record)
{
    return Write("OnInsert", record);
}
bool CDxfRecorder::OnHatch(const CHatchDXF& record)
{
    return Write("OnHatch", record);
}
bool CDxfRecorder::OnMText(const CMTextDXF& record)
{
    return Write("OnMText", record);
}
bool CDxfRecorder::OnText(const CTextDXF& record)
{
    return Write("OnText", record);
}
bool CDxfRecorder::OnPoint(const CPointDXF& record)
{
    return Write("OnPoint", record);
}
bool CDxfRecorder::OnTextStyle(const CTextStyleDXF& record)
{
    return Write("OnTextStyle", record);
}
bool CDxfRecorder::OnMLineStyle(const CMLineStyleDXF& record)
{
    return Write("OnMLineStyle", record);
}
bool CDxfRecorder::OnLineStyle(const CLineStyleDXF& record)
{
    return Write("OnLineStyle", record);
}
bool CDxfRecorder::OnLayer(const CLayerDXF& record)
{
    return Write("OnLayer", record);
}
bool CDxfRecorder::OnHeader(const CHeaderDXF& record)
{
    return Write("OnHeader", record);
}

bool CDxfRecorder::OnBlock(const CBlockDXF& record)
{
    blocks.push_back(record);
    return Write("OnBlock", record);
}

bool ReadBytes(const QByteArray& bytes, IDXFReader& host)
{
    QTemporaryFile file;
    if (!file.open() || file.write(bytes) != bytes.size() || !file.flush()) {
        std::abort(); // no test can go on without its input
    }
    return Read(file.fileName(), &host);
}

std::string Recorded(const QByteArray& bytes)
{
    CDxfRecorder recorder;
    const bool result = ReadBytes(bytes, recorder);
    return result ? recorder.text : recorder.text + "false\n";
}

QByteArray Tags(const char* lines, const char* lineEnd)
{
    QByteArray bytes;
    for (const QByteArray& line : QByteArray(lines).split('\n')) {
        if (line.isEmpty()) {
            continue;
        }
        const int blank = line.indexOf(' ');
        bytes += (blank < 0 ? line : line.left(blank)).rightJustified(3) + lineEnd;
        bytes += (blank < 0 ? QByteArray() : line.mid(blank + 1)) + lineEnd;
    }
    return bytes;
}

QByteArray Entities(const char* entities)
{
    return Tags("0 SECTION\n2 ENTITIES\n") + Tags(entities) + Tags("0 ENDSEC\n0 EOF\n");
}

QByteArray Block(const char* entities)
{
    return Tags("0 SECTION\n2 BLOCKS\n0 BLOCK\n2 B\n") + Tags(entities)
        + Tags("0 ENDBLK\n0 ENDSEC\n0 EOF\n");
}

std::string Replayed(const char* entities, const CInsertDXF& insert)
{
    CDxfRecorder file;
    ReadBytes(Block(entities), file);
    CDxfRecorder replay;
    const bool result = ParseBlock(file.blocks.at(0), insert, &replay);
    return result ? replay.text : replay.text + "false\n";
}

std::string Shortest(double value)
{
    return QByteArray::number(value, 'g', QLocale::FloatingPointShortest).toStdString();
}

} // namespace VelorExchange::test

// SPDX-License-Identifier: MIT
#include "tests/support/MifRecorder.h"

#include "VelorExchange/mif/Read.h"

#include <QFile>
#include <QLocale>
#include <QTextCodec>
#include <QVariant>

#include <stdexcept>

namespace VelorExchange::test {

using namespace VelorExchange::mif;

namespace {

std::string Shown(double value)
{
    return QByteArray::number(value, 'g', QLocale::FloatingPointShortest).toStdString();
}

std::string Shown(const CPoint2D& point)
{
    return '(' + Shown(point.x) + ' ' + Shown(point.y) + ')';
}

std::string ShownColor(quint32 color)
{
    return '#' + QByteArray::number(color, 16).rightJustified(6, '0').toStdString();
}

std::string Shown(const std::vector<CPoint2D>& points)
{
    std::string shown;
    for (const CPoint2D& point : points) {
        shown += Shown(point);
    }
    return shown;
}

std::string Shown(const QVariant& value)
{
    return std::string(value.typeName()) + ':' + value.toString().toStdString();
}

} // namespace

void CMifRecorder::Begin(const char* operation)
{
    ++counts[operation];
    text += operation;
}

void CMifRecorder::End(const CAttributeHolderMIF& record)
{
    attributesTotal += record.attributes.size();
    for (const CAttributeMIF& attribute : record.attributes) {
        text += " [" + attribute.name.toStdString() + '=' + Shown(attribute.value) + ']';
    }
    text += '\n';
}

void CMifRecorder::Put(const char* name, const std::string& value)
{
    text += std::string(" ") + name + '=' + value;
}

void CMifRecorder::Put(const char* name, const CPoint2D& value)
{
    if (value.x != 0.0 || value.y != 0.0) {
        Put(name, Shown(value));
    }
}

void CMifRecorder::Put(const CPenMIF& pen)
{
    if (pen.width != 1 || pen.pattern != 2 || pen.color != 0) {
        Put("pen",
            std::to_string(pen.width) + ',' + std::to_string(pen.pattern) + ','
                + ShownColor(pen.color));
    }
}

void CMifRecorder::Put(const CBrushMIF& brush, int usualPattern)
{
    if (brush.pattern != usualPattern || brush.backColor != 0xFFFFFF || brush.foreColor != 0) {
        Put("brush",
            std::to_string(brush.pattern) + ',' + ShownColor(brush.foreColor) + ','
                + ShownColor(brush.backColor));
    }
}

void CMifRecorder::AddArc(const CArcMIF& arc)
{
    Begin("AddArc");
    text += ' ' + Shown(arc.corner1) + Shown(arc.corner2);
    Put("angles", Shown(arc.startAngle) + ',' + Shown(arc.endAngle));
    Put(arc.pen);
    End(arc);
}

void CMifRecorder::AddRoundRect(const CRoundRectMIF& rect)
{
    Begin("AddRoundRect");
    text += ' ' + Shown(rect.corner1) + Shown(rect.corner2);
    Put("radius", Shown(rect.radius));
    Put(rect.pen);
    Put(rect.brush, 2);
    End(rect);
}

void CMifRecorder::AddEllipse(const CRectMIF& rect)
{
    Begin("AddEllipse");
    text += ' ' + Shown(rect.corner1) + Shown(rect.corner2);
    Put(rect.pen);
    Put(rect.brush, 2);
    End(rect);
}

void CMifRecorder::AddRect(const CRectMIF& rect)
{
    Begin("AddRect");
    text += ' ' + Shown(rect.corner1) + Shown(rect.corner2);
    Put(rect.pen);
    Put(rect.brush, 2);
    End(rect);
}

void CMifRecorder::AddText(const CTextMIF& record)
{
    Begin("AddText");
    text += " <" + record.text.toStdString() + "> " + Shown(record.corner1) + Shown(record.corner2);
    if (record.angle != 0.0) {
        Put("angle", Shown(record.angle));
    }
    if (record.spacing != 0.0) {
        Put("spacing", Shown(record.spacing));
    }
    const CFontMIF& font = record.font;
    if (font.name != QLatin1String("Arial") || font.style != 0 || font.size != 0.0
        || font.color != 0 || font.backColor != 0)
    {
        Put("font",
            font.name.toStdString() + ',' + std::to_string(font.style) + ',' + Shown(font.size)
                + ',' + ShownColor(font.color) + ',' + ShownColor(font.backColor));
    }
    if (record.justify != 0) {
        Put("justify", std::to_string(record.justify));
    }
    if (record.labelArrow != 0) {
        Put("arrow", std::to_string(record.labelArrow));
    }
    Put("label", record.labelPoint);
    End(record);
}

void CMifRecorder::AddPolyline(const CPolylineMIF& line)
{
    Begin("AddPolyline");
    text += ' ' + Shown(line.points);
    Put(line.pen);
    text += line.smooth ? " smooth" : "";
    End(line);
}

void CMifRecorder::AddRegion(const CRegionMIF& region)
{
    Begin("AddRegion");
    text += ' ' + Shown(region.points);
    Put(region.brush, 1);
    Put(region.pen);
    Put("center", region.center);
    End(region);
}

void CMifRecorder::AddPoint(const CPointMIF& point)
{
    Begin("AddPoint");
    text += ' ' + Shown(point.position);
    const CSymbolMIF& symbol = point.symbol;
    if (symbol.shape != 0 || !symbol.font.isEmpty() || symbol.color != 0 || symbol.size != 12
        || symbol.style != 0 || symbol.angle != 0.0)
    {
        Put("symbol",
            std::to_string(symbol.shape) + ',' + ShownColor(symbol.color) + ','
                + std::to_string(symbol.size) + ",<" + symbol.font.toStdString() + ">,"
                + std::to_string(symbol.style) + ',' + Shown(symbol.angle));
    }
    End(point);
}

void CMifRecorder::SetProgressRange(int total)
{
    if (recordsProgress) {
        text += "SetProgressRange " + std::to_string(total) + '\n';
    }
}

void CMifRecorder::SetProgress(int position)
{
    if (recordsProgress) {
        text += "SetProgress " + std::to_string(position) + '\n';
    }
}

void CMifRecorder::Finish()
{
    if (recordsProgress) {
        text += "Finish\n";
    }
}

void CMifPair::Write(const char* extension, const QByteArray& bytes) const
{
    QFile file(Path() + QLatin1Char('.') + QLatin1String(extension));
    file.remove(); // cutting an old file short waits for the disk
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        throw std::runtime_error("a test file can't be written");
    }
}

std::string Recorded(const CMifPair& pair, bool withProgress)
{
    CMifRecorder recorder;
    recorder.recordsProgress = withProgress;
    const bool result = Read(pair.Path(), &recorder);
    return recorder.text + (result ? "" : "false\n");
}

std::string RecordedObjects(const QByteArray& data)
{
    return Recorded(CMifPair("Version 300\nColumns 0\nData\n" + data));
}

CLocalCodec::CLocalCodec(const char* name) : before(QTextCodec::codecForLocale())
{
    QTextCodec::setCodecForLocale(QTextCodec::codecForName(name));
}

CLocalCodec::~CLocalCodec()
{
    QTextCodec::setCodecForLocale(before);
}

} // namespace VelorExchange::test

// SPDX-License-Identifier: MIT
#include "PnrRecorder.h"

#include <QTemporaryDir>

#include <cstdio>

using namespace VelorExchange::pnr;
using VelorExchange::CPoint2D;
using VelorExchange::CPoint3D;

namespace {

std::string Number(double value)
{
    return QString::number(value, 'g', 17).toStdString();
}

std::string Vertices(const CAbstractVertexHolder& holder)
{
    std::string out;
    if (holder.Is2D()) {
        for (const CPoint2D& p : static_cast<const CVertexHolder2D&>(holder).vertices) {
            out += " (" + Number(p.x) + ' ' + Number(p.y) + ')';
        }
    } else {
        for (const CPoint3D& p : static_cast<const CVertexHolder3D&>(holder).vertices) {
            out += " (" + Number(p.x) + ' ' + Number(p.y) + ' ' + Number(p.z) + ')';
        }
    }
    return out;
}

} // namespace

std::string Shown(const QString& text)
{
    std::string out;
    for (const QChar c : text) {
        if (c.unicode() < 0x20) {
            char escaped[8];
            std::snprintf(escaped, sizeof escaped, "\\x%02x", c.unicode());
            out += escaped;
        } else {
            out += QString(c).toStdString();
        }
    }
    return out;
}

std::string Shown(const QVariant& value)
{
    if (!value.isValid()) {
        return "invalid";
    }
    const std::string name = value.typeName();
    return value.type() == QVariant::Double ? name + ' ' + Number(value.toDouble())
                                            : name + ' ' + Shown(value.toString());
}

void CPnrRecorder::Head(const char* kind, const CBaseObject& object)
{
    log += kind;
    log += ' ' + std::to_string(object.code) + " '" + Shown(object.codeText) + "' "
        + Shown(object.layer) + (object.hasImage ? " image" : "") + '\n';
}

void CPnrRecorder::Tail(const CBaseObject& object)
{
    for (const auto& holder : object.holders) {
        log += std::string(holder->Is2D() ? " 2D" : " 3D") + Vertices(*holder) + '\n';
    }
    for (const PnrSemantic& semantic : object.semantics) {
        log += " semantic " + std::to_string(semantic.code) + " kind "
            + std::to_string(semantic.semanticType) + " type " + std::to_string(semantic.dataType)
            + " scale " + std::to_string(semantic.scale) + " = " + Shown(semantic.value)
            + (semantic.name.isEmpty() ? "" : " named") + '\n';
    }
}

void CPnrRecorder::AddText(CTextObject* text)
{
    Head("text", *text);
    const PnrTextImage& image = text->image;
    log += " '" + Shown(text->text) + "' own " + std::to_string(text->hasOwnImage) + " extra "
        + std::to_string(text->extraTexts.size()) + ' ' + std::to_string(text->extraAligns.size())
        + '\n';
    log += " drawn " + std::to_string(image.color) + ' ' + std::to_string(image.bColor) + ' '
        + std::to_string(image.sColor) + ' ' + std::to_string(image.height) + ' '
        + std::to_string(image.weight) + " align " + std::to_string(image.align) + " bytes "
        + std::to_string(image.wide) + ' ' + std::to_string(image.horizontal) + ' '
        + std::to_string(image.italic) + ' ' + std::to_string(image.uline) + ' '
        + std::to_string(image.xline) + ' ' + std::to_string(image.charset) + " font '"
        + Shown(image.fontName) + "'\n";
    Tail(*text);
}

void CPnrRecorder::AddSquare(CSquareObject* square)
{
    Head("square", *square);
    if (square->image) {
        log += " color " + std::to_string(square->image->color) + '\n';
    }
    Tail(*square);
}

void CPnrRecorder::AddLine(CLineObject* line)
{
    Head("line", *line);
    if (line->image) {
        log += " color " + std::to_string(line->image->color) + " thickness "
            + std::to_string(line->image->thickness) + '\n';
    }
    Tail(*line);
}

void CPnrRecorder::AddPoint(CPointObject* point)
{
    Head("point", *point);
    if (point->image) {
        log += " size " + std::to_string(point->image->size) + " color "
            + std::to_string(point->image->color) + '\n';
    }
    Tail(*point);
}

CPnrResult ReadPnrFile(const QString& fileName, bool text)
{
    CPnrRecorder recorder;
    const std::unique_ptr<IPnrReader, void (*)(IPnrReader*)> reader(CreateReader(text, &recorder),
                                                                    DeleteReader);
    CPnrResult result;
    result.result = reader->Read(fileName);
    result.message = reader->GetLastError();
    result.log = recorder.Log();
    return result;
}

CPnrResult ReadPnr(const QByteArray& bytes, bool text)
{
    static const QTemporaryDir folder; // making one a file costs more than reading it
    const QString fileName =
        folder.filePath(text ? QStringLiteral("map.txt") : QStringLiteral("map.sxf"));
    QFile file(fileName);
    file.remove(); // writing over a file waits for the disk
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        return {};
    }
    file.close();
    return ReadPnrFile(fileName, text);
}

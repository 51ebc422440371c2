// SPDX-License-Identifier: MIT
#include "tests/tools/SxfMaps.h"

#include <QFile>

namespace velorx::test {

using namespace VelorExchange::pnr;

namespace {

std::string Number(double value)
{
    return QString::number(value, 'g', 15).toStdString();
}

std::string Vertices(const CAbstractVertexHolder& holder)
{
    std::string out;
    if (holder.Is2D()) {
        for (const auto& p : static_cast<const CVertexHolder2D&>(holder).vertices) {
            out += " (" + Number(p.x) + ' ' + Number(p.y) + ')';
        }
        return out;
    }
    for (const auto& p : static_cast<const CVertexHolder3D&>(holder).vertices) {
        out += " (" + Number(p.x) + ' ' + Number(p.y) + ' ' + Number(p.z) + ')';
    }
    return out;
}

std::string Shown(QString text)
{
    return text.replace(QLatin1Char('\n'), QLatin1String("\\n")).toStdString();
}

std::string Shown(const CTextObject& text)
{
    std::string out = " '" + Shown(text.text) + "' " + std::to_string(text.image.align);
    for (std::size_t i = 0; i < text.extraTexts.size(); ++i) {
        out += " '" + Shown(text.extraTexts[i]) + "' " + std::to_string(text.extraAligns[i]);
    }
    return out;
}

} // namespace

void CSxfRecorder::Record(const std::string& kind, const CBaseObject& object,
                          const std::string& drawing)
{
    log += kind + ' ' + std::to_string(object.code) + ' ' + Shown(object.layer) + drawing;
    for (const auto& holder : object.holders) {
        log += " |" + Vertices(*holder);
    }
    for (const PnrSemantic& semantic : object.semantics) {
        log += " ; " + std::to_string(semantic.code) + ':' + std::to_string(semantic.dataType) + '='
            + Shown(semantic.value.toString());
    }
    log += '\n';
}

void CSxfRecorder::Take(CLineObject& line)
{
    Record("line", line,
           line.image ? " color " + std::to_string(line.image->color) + " thickness "
                   + std::to_string(line.image->thickness)
                      : "");
}

void CSxfRecorder::Take(CSquareObject& area)
{
    Record("area", area, area.image ? " color " + std::to_string(area.image->color) : "");
}

void CSxfRecorder::Take(CPointObject& point)
{
    Record("point", point,
           point.image ? " color " + std::to_string(point.image->color) + " size "
                   + std::to_string(point.image->size) + " bits "
                   + QByteArray(reinterpret_cast<const char*>(point.image->bits.data()), 8)
                         .toHex()
                         .toStdString()
                       : "");
}

void CSxfRecorder::Take(CTextObject& text)
{
    const PnrTextImage& image = text.image;
    Record("text", text,
           Shown(text)
               + (text.hasOwnImage ? " color " + std::to_string(image.color) + " height "
                          + std::to_string(image.height) + " font " + image.fontName.toStdString()
                                   : ""));
}

QString CSxfMaps::Write(const QByteArray& bytes, const char* name) const
{
    const QString path = folder.filePath(QLatin1String(name));
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    return path;
}

std::string CSxfMaps::ReadFile(const QString& path)
{
    CSxfRecorder recorder;
    const QString problem = ReadSxf(path, ReadSxfHeader(path), nullptr, recorder);
    return recorder.log + problem.toStdString();
}

std::string CSxfMaps::Read(const QByteArray& map) const
{
    return ReadFile(Write(map));
}

std::string CSxfMaps::Losses(const CConversionReport& report)
{
    std::string out;
    for (const SConversionLoss& loss : report.losses) {
        out += std::to_string(loss.count) + ' ' + loss.what.toStdString() + '\n';
    }
    return out;
}

} // namespace velorx::test

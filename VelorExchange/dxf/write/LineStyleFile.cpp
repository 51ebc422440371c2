// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/write/LineElement_p.h"
#include "VelorExchange/dxf/write/StyleFiles.h"
#include "VelorExchange/dxf/write/StyleLines_p.h"

namespace VelorExchange::dxf {

namespace {

// The compiled file that belongs to a shape source: its name with "shx" for the last three letters.
QString ShapeStyleOf(const QString& shapePath)
{
    QString name = shapePath.mid(shapePath.lastIndexOf(QChar(u'\\')) + 1);
    name.chop(3);
    return name + QLatin1String("shx");
}

void ReadHead(const QString& line, CLineStyleDXF& style)
{
    const int comma = line.indexOf(QChar(u','));
    style.name = comma < 0 ? line.mid(1) : line.mid(1, comma - 1).trimmed();
    style.description = comma < 0 ? style.name : line.mid(comma + 1).trimmed();
}

// Dashes and bracketed elements, in their order. What follows a bracket that is never closed is lost.
void ReadPattern(const QString& line, const std::map<QString, int>& shapes,
                 const QString& shapeStyle, std::vector<CLineElementDXF>& pattern)
{
    CLineCutter cutter(line);
    while (!cutter.Rest().isEmpty()) {
        const QStringView rest = cutter.Rest();
        if (rest.at(0) != QChar(u'[')) {
            double dash = 0.0;
            if (ToNumber(cutter.TakeToCommaOrEnd(), dash)) {
                pattern.emplace_back(dash);
            }
            continue;
        }
        const auto closing = rest.indexOf(u']');
        if (closing < 0) {
            return;
        }
        ReadLineElement(rest.mid(1, closing - 1), shapes, shapeStyle, pattern);
        cutter = CLineCutter(rest.mid(closing + 1));
    }
}

} // namespace

bool GetLineStylesFromFile(const QString& path, std::list<CLineStyleDXF>& styles,
                           const QString& shapePath)
{
    CStyleLines lines(path);
    if (!lines.IsOpen()) {
        return false;
    }
    std::map<QString, int> shapes;
    GetShapesFromFile(shapePath, shapes);
    const QString shapeStyle = ShapeStyleOf(shapePath);
    for (QString line; lines.Next(line);) {
        line = line.trimmed();
        if (!line.startsWith(QChar(u'*'))) {
            continue;
        }
        CLineStyleDXF style;
        ReadHead(line, style);
        QString patternLine;
        lines.Next(patternLine);
        patternLine = patternLine.trimmed().remove(QStringLiteral(" "), Qt::CaseSensitive);
        if (patternLine.isEmpty() || patternLine.startsWith(QChar(u';'))) {
            continue;
        }
        ReadPattern(patternLine, shapes, shapeStyle, style.pattern);
        if (style.name.isEmpty() || style.pattern.empty()) {
            continue;
        }
        if (style.description.isEmpty()) {
            style.description = style.name;
        }
        styles.push_back(std::move(style));
    }
    return !styles.empty();
}

} // namespace VelorExchange::dxf

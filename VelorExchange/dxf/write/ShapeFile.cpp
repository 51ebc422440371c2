// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/write/StyleFiles.h"
#include "VelorExchange/dxf/write/StyleLines_p.h"

namespace VelorExchange::dxf {

namespace {

constexpr int kDecimal = 10;

// "*130,6,BOX": number, size of the definition, name.
void ReadHead(const QString& text, std::map<QString, int>& shapes)
{
    CLineCutter cutter(QStringView(text).mid(1));
    QStringView number;
    QStringView size;
    if (!cutter.TakeToComma(number) || !cutter.TakeToComma(size)) {
        return;
    }
    bool isNumber = false;
    const int shape = number.toString().toInt(&isNumber, kDecimal);
    const QString name = cutter.Rest().trimmed().toString();
    if (isNumber && shape > 0 && !name.isEmpty()) {
        shapes[name] = shape;
    }
}

} // namespace

bool GetShapesFromFile(const QString& path, std::map<QString, int>& shapes)
{
    CStyleLines lines(path);
    if (!lines.IsOpen()) {
        return false;
    }
    for (QString text; lines.Next(text);) {
        text.remove(QStringLiteral(" "), Qt::CaseSensitive);
        if (text.startsWith(QChar(u'*'))) {
            ReadHead(text, shapes);
        }
    }
    return !shapes.empty();
}

} // namespace VelorExchange::dxf

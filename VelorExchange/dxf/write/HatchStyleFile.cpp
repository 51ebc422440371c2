// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/write/Angles_p.h"
#include "VelorExchange/dxf/write/StyleFiles.h"
#include "VelorExchange/dxf/write/StyleLines_p.h"

#include <cmath>

namespace VelorExchange::dxf {

namespace {

// The numbers of a pattern line by their position; from kFirstDash on they are dashes.
enum EPosition { kAngle, kBaseX, kBaseY, kOffsetX, kOffsetY, kFirstDash };

// A pattern line under construction.
struct CWorkLine
{
    CHatchLineDXF line;
    double x = 0.0001; // the offsets as they stand in the file
    double y = 0.0001;
    double heldBack = 0.0; // becomes baseX when the next number comes
    int filled = 0;

    void Take(double number);
};

void CWorkLine::Take(double number)
{
    switch (filled++) {
    case kAngle:
        line.angle = number;
        break;
    case kBaseX:
        heldBack = number;
        break;
    case kBaseY:
        line.baseX = heldBack;
        line.baseY = number;
        y = number; // stays if the line ends without an offset
        break;
    case kOffsetX:
        x = number;
        break;
    case kOffsetY:
        y = number;
        break;
    default:
        line.dashes.push_back(number);
    }
}

// False for a line with too few numbers.
bool ReadLine(const QString& text, CHatchLineDXF& line)
{
    CWorkLine work;
    CLineCutter cutter(text);
    QStringView token;
    double number = 0.0;
    while (cutter.TakeToComma(token)) {
        if (ToNumber(token, number)) {
            work.Take(number);
        }
    }
    if (work.filled <= kOffsetX) {
        return false;
    }
    if (ToNumber(cutter.Rest(), number)) {
        work.Take(number);
    }
    const double angle = RadiansOf(work.line.angle);
    line = std::move(work.line);
    line.offsetX = std::cos(angle) * work.x - std::sin(angle) * work.y;
    line.offsetY = std::cos(angle) * work.y + std::sin(angle) * work.x;
    return true;
}

// The line end stays on the description, and on the name of a line without a comma.
void ReadHead(const QString& text, CHatchStyleDXF& style)
{
    const int comma = text.indexOf(QChar(u','));
    style.name = comma < 0 ? text.mid(1) : text.mid(1, comma - 1);
    style.description = comma < 0 ? style.name : text.mid(comma + 1);
    style.lines.clear();
}

void Deliver(const CHatchStyleDXF& style, std::list<CHatchStyleDXF>& styles)
{
    if (!style.lines.empty()) {
        styles.push_back(style);
    }
}

} // namespace

bool GetHatchStylesFromFile(const QString& path, std::list<CHatchStyleDXF>& styles)
{
    CStyleLines lines(path);
    if (!lines.IsOpen()) {
        return false;
    }
    CHatchStyleDXF style;
    CHatchLineDXF line;
    for (QString text; lines.Next(text);) {
        if (text.startsWith(QChar(u';'))) {
            continue;
        }
        if (text.startsWith(QChar(u'*'))) {
            Deliver(style, styles);
            ReadHead(text, style);
        } else if (ReadLine(text, line)) {
            style.lines.push_back(std::move(line));
        }
    }
    Deliver(style, styles);
    return !styles.empty();
}

} // namespace VelorExchange::dxf

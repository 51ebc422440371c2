// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/write/Angles_p.h"
#include "VelorExchange/dxf/write/StyleFiles.h"
#include "VelorExchange/dxf/write/StyleLines_p.h"

namespace VelorExchange::dxf {

namespace {

constexpr int kDecimal = 10;
constexpr int kNoCode = -1;

enum ECode { kStart = 0, kName = 2, kLineType = 6, kOffset = 49, kStartAngle = 51, kEndAngle = 52 };

// Gathers the groups of one style after the other.
class CStyleGatherer
{
public:
    explicit CStyleGatherer(std::list<CMLineStyleDXF>& list) : styles(list) { }

    // False where reading stops: at a code that is no number.
    bool TakeLine(const QString& line);
    void Deliver();

private:
    bool TakeCode(const QString& line);
    void TakeValue(const QString& value);

    std::list<CMLineStyleDXF>& styles;
    CMLineStyleDXF style;
    int code = kNoCode;
};

// A style counts once it has a name and a line.
void CStyleGatherer::Deliver()
{
    if (!style.name.isEmpty() && !style.offsets.empty()) {
        styles.push_back(style);
    }
    style = CMLineStyleDXF{};
}

bool CStyleGatherer::TakeLine(const QString& line)
{
    if (line.compare(QLatin1String("MLSTYLE"), Qt::CaseInsensitive) == 0) {
        Deliver();
        code = kNoCode;
        return true;
    }
    if (code == kNoCode) {
        return TakeCode(line);
    }
    TakeValue(line);
    code = kNoCode;
    return true;
}

// A code of 0 ends a style and waits for its value like any other.
bool CStyleGatherer::TakeCode(const QString& line)
{
    bool isNumber = false;
    const int number = line.toInt(&isNumber, kDecimal);
    if (!isNumber) {
        return false;
    }
    code = number;
    if (code == kStart) {
        Deliver();
    }
    return true;
}

void CStyleGatherer::TakeValue(const QString& value)
{
    style.body += QStringLiteral("%1\n%2\n").arg(QString::number(code), value);
    double number = 0.0;
    switch (code) {
    case kName:
        style.name = value;
        break;
    case kLineType:
        style.lineTypes.push_back(value);
        break;
    case kOffset:
        if (ToNumber(value, number)) {
            style.offsets.push_back(number);
        }
        break;
    case kStartAngle:
        if (ToNumber(value, number)) {
            style.startAngle = RadiansOf(number);
        }
        break;
    case kEndAngle:
        if (ToNumber(value, number)) {
            style.endAngle = RadiansOf(number);
        }
        break;
    default:
        break;
    }
}

} // namespace

bool GetMLineStylesFromFile(const QString& path, std::list<CMLineStyleDXF>& styles)
{
    CStyleLines lines(path);
    if (!lines.IsOpen()) {
        return false;
    }
    CStyleGatherer gatherer(styles);
    for (QString text; lines.Next(text);) {
        if (!gatherer.TakeLine(text.trimmed())) {
            break;
        }
    }
    gatherer.Deliver();
    return !styles.empty();
}

} // namespace VelorExchange::dxf

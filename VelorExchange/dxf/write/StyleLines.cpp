// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/write/StyleLines_p.h"

namespace VelorExchange::dxf {

CStyleLines::CStyleLines(const QString& path) : file(path)
{
    if (!path.isEmpty()) {
        file.open(QIODevice::ReadOnly);
    }
}

bool CStyleLines::Next(QString& line)
{
    const QByteArray bytes = file.readLine();
    line = QString::fromLocal8Bit(bytes);
    return !bytes.isEmpty();
}

bool CLineCutter::TakeToComma(QStringView& part)
{
    const auto comma = rest.indexOf(u',');
    if (comma < 0) {
        return false;
    }
    part = rest.left(comma);
    rest = rest.mid(comma + 1);
    return true;
}

QStringView CLineCutter::TakeToCommaOrEnd()
{
    QStringView part = rest;
    if (!TakeToComma(part)) {
        rest = QStringView();
    }
    return part;
}

bool ToNumber(QStringView text, double& value)
{
    bool isNumber = false;
    const double number = text.trimmed().toString().toDouble(&isNumber);
    if (isNumber) {
        value = number;
    }
    return isNumber;
}

} // namespace VelorExchange::dxf

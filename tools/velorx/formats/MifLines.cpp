// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/MifLines.h"

#include <algorithm>

namespace velorx {

CMifLines::CMifLines(const QString& path) : file(path)
{
    if (file.open(QIODevice::ReadOnly)) {
        last = file.size();
    }
}

void CMifLines::Seek(qint64 position, qint64 end)
{
    last = file.seek(position) ? end : 0;
}

bool CMifLines::Next(QString& line)
{
    while (file.isOpen() && file.pos() < last && !file.atEnd()) {
        line = Decoded(file.readLine());
        if (!line.isEmpty()) {
            return true;
        }
    }
    return false;
}

QString CMifLines::EndingAt(qint64 lower, qint64 end)
{
    constexpr qint64 kFirstPiece = 256;
    for (qint64 size = kFirstPiece; file.isOpen(); size *= 8) {
        const qint64 start = std::max(lower, end - size);
        file.seek(start);
        QByteArray bytes = file.read(end - start);
        if (bytes.endsWith('\n')) {
            bytes.chop(1);
        }
        const int lineFeed = bytes.lastIndexOf('\n');
        if (lineFeed >= 0 || start == lower) {
            return Decoded(bytes.mid(lineFeed + 1));
        }
    }
    return QString();
}

QString CMifLines::Decoded(QByteArray bytes)
{
    const int nul = bytes.indexOf('\0');
    if (nul >= 0) {
        bytes.truncate(nul);
    }
    return QString::fromLocal8Bit(bytes).remove(QLatin1Char('\r')).trimmed();
}

} // namespace velorx

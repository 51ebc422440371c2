// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/SxfHeader.h"

#include "VelorExchange/Pnr.h"

#include <QFile>
#include <QtEndian>

namespace velorx {

namespace {

constexpr char kMagic[] = {'S', 'X', 'F', '\0'};
constexpr qint64 kScaleOffset = 60;
constexpr qint64 kCountOffset = 440;

qint64 Int32At(QFile& file, qint64 offset)
{
    QByteArray bytes = file.seek(offset) ? file.read(sizeof(qint32)) : QByteArray();
    bytes.resize(sizeof(qint32));
    return qFromLittleEndian<qint32>(bytes.constData());
}

// Up to the line with the count, which the library's reader looks for as well.
void ReadPassport(QFile& file, SSxfHeader& header)
{
    while (!file.atEnd()) {
        const QByteArray line = file.readLine().simplified();
        const QByteArray last = line.mid(line.lastIndexOf(' ') + 1);
        if (line.startsWith("P207 ")) {
            header.scale = last.toLongLong();
        } else if (line.toUpper().contains(".DAT")) {
            header.declaredRecords = last.toInt();
            return;
        }
    }
}

} // namespace

SSxfHeader ReadSxfHeader(const QString& path)
{
    SSxfHeader header;
    QFile file(path);
    if (!VelorExchange::pnr::IsTxtFile(path, header.isText) || !file.open(QIODevice::ReadOnly)) {
        return header;
    }
    if (header.isText) {
        ReadPassport(file, header);
    } else {
        header.scale = Int32At(file, kScaleOffset);
        header.declaredRecords = Int32At(file, kCountOffset);
    }
    return header;
}

bool IsSxfContent(const QByteArray& head)
{
    return head.startsWith(QByteArray(kMagic, sizeof(kMagic)));
}

bool IsSxfTextContent(const QByteArray& head)
{
    const QByteArray start = head.trimmed().left(4).toUpper();
    return start == ".SXF" || start == ".SIT" || start == ".DAT";
}

} // namespace velorx

// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/SxfHeader.h"

#include "tools/velorx/formats/SxfCodec.h"
#include "VelorExchange/Pnr.h"

#include <QFile>
#include <QtEndian>

#include <cmath>

namespace velorx {

namespace {

constexpr char kMagic[] = {'S', 'X', 'F', '\0'};
constexpr int kVersionOffset = 8;
constexpr qint64 kStartSize = 4096;
constexpr int kHeaderSize = 444; // as far as anything of use stands
constexpr int kNameSize = 32;
constexpr int kSheetOffset = 28;
constexpr int kScaleOffset = 60;
constexpr int kNameOffset = 64;
constexpr int kFlagsOffset = 96;
constexpr int kCornerOffset = 104; // the south-western corner on the ground
constexpr int kGridOffset = 316; // the four corners in units of the file
constexpr int kGridSize = 32;
constexpr int kCountOffset = 440;
constexpr int kRealCoordinates = 0x18;
constexpr qint64 kLongestLine = 65536; // of a text map; what is longer is looked at in pieces

template <class T>
T Number(const QByteArray& bytes, int offset)
{
    return qFromLittleEndian<T>(bytes.constData() + offset);
}

// A header without a grid says nothing of where the sheet lies: the coordinates stand as they are.
void ReadOrigin(const QByteArray& bytes, SSxfHeader& header)
{
    const bool isReal = (bytes.at(kFlagsOffset) & kRealCoordinates) != 0;
    const QByteArray grid = bytes.mid(kGridOffset, kGridSize);
    const auto x = Number<double>(bytes, kCornerOffset);
    const auto y = Number<double>(bytes, kCornerOffset + static_cast<int>(sizeof x));
    if (!isReal && grid.count('\0') < grid.size() && std::isfinite(x) && std::isfinite(y)) {
        header.originX = x;
        header.originY = y;
    }
}

void ReadBinary(QFile& file, SSxfHeader& header)
{
    QByteArray bytes = file.read(kHeaderSize);
    bytes.append(QByteArray(kHeaderSize - bytes.size(), '\0'));
    header.scale = Number<qint32>(bytes, kScaleOffset);
    header.declaredRecords = Number<qint32>(bytes, kCountOffset);
    header.name = SxfFieldText(bytes.mid(kNameOffset, kNameSize));
    header.sheet = SxfFieldText(bytes.mid(kSheetOffset, kNameSize));
    ReadOrigin(bytes, header);
}

QString Rest(const QByteArray& line)
{
    return SxfFieldText(line.mid(line.indexOf(' ')));
}

// The library takes for the text form whatever is not a binary map of version 4.
QString WhyNoObjects(QFile& file)
{
    file.seek(0);
    const QByteArray head = file.read(kStartSize);
    if (IsSxfContent(head) && head.size() >= kVersionOffset + static_cast<int>(sizeof(qint32))) {
        const auto word = Number<quint32>(head, kVersionOffset);
        const quint32 version = word > 0xFFFFU ? word >> 16U : word;
        return QStringLiteral("it is a map of version %1, and only those of version 4 are read")
            .arg(version);
    }
    return IsSxfTextContent(head) ? QStringLiteral("the map ends ahead of its objects (.DAT)")
                                  : QStringLiteral("it does not start like an SXF map");
}

// Up to the line with the count, which the library's reader looks for as well.
void ReadPassport(QFile& file, SSxfHeader& header)
{
    while (!file.atEnd()) {
        const QByteArray line = file.readLine(kLongestLine).trimmed();
        const QByteArray last = line.simplified().split(' ').last();
        if (line.toUpper().startsWith(".SIT")) {
            header.isUserMap = true;
        } else if (line.startsWith("P000 ")) {
            header.sheet = Rest(line);
        } else if (line.startsWith("P001 ")) {
            header.name = Rest(line);
        } else if (line.simplified().startsWith("P207 ")) {
            header.scale = last.toLongLong();
        } else if (line.toUpper().contains(".DAT")) {
            header.declaredRecords = last.toInt();
            return;
        }
    }
    header.fault = WhyNoObjects(file);
}

} // namespace

SSxfHeader ReadSxfHeader(const QString& path)
{
    SSxfHeader header;
    QFile file(path);
    if (!VelorExchange::pnr::IsTxtFile(path, header.isText) || !file.open(QIODevice::ReadOnly)) {
        return header;
    }
    header.isText ? ReadPassport(file, header) : ReadBinary(file, header);
    if (header.name.isEmpty() || header.name == header.sheet) {
        header.name = header.sheet;
        header.sheet.clear();
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

// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfContent.h"

#include <QFile>

#include <algorithm>

namespace velorx {

namespace {

constexpr char kComment[] = "999";
constexpr char kBinaryStart[] = "AutoCAD Binary DXF";
constexpr qint64 kEndSize = 4096;
constexpr int kVersionDigits = 4;
constexpr int kDefaultVersion = 1009;

// Takes one line off the front; all three kinds of line ends count.
QByteArray TakeLine(QByteArray& text)
{
    int end = 0;
    while (end < text.size() && text.at(end) != '\n' && text.at(end) != '\r') {
        ++end;
    }
    QByteArray line = text.left(end).trimmed();
    const bool isPair = text.mid(end, 2) == "\r\n";
    text.remove(0, end + (isPair ? 2 : 1));
    return line;
}

} // namespace

bool IsDxfContent(const QByteArray& head)
{
    QByteArray rest = head;
    while (!rest.isEmpty()) {
        const QByteArray code = TakeLine(rest);
        const QByteArray value = TakeLine(rest);
        if (code != kComment) {
            return code == "0" && value.toUpper() == "SECTION";
        }
    }
    return false;
}

QString WhyNoDrawing(const QString& path)
{
    QFile file(path);
    const QByteArray head = file.open(QIODevice::ReadOnly) ? file.read(kEndSize) : QByteArray();
    if (IsDxfContent(head)) {
        return {};
    }
    return head.startsWith(kBinaryStart) ? QStringLiteral(
               "it does not start like a text drawing but like a binary one, which is not "
               "read: save it as text")
                                         : QStringLiteral("it does not start like a text drawing");
}

bool HasEndMark(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || !file.seek(std::max<qint64>(file.size() - kEndSize, 0)))
    {
        return false;
    }
    QByteArray rest = file.read(kEndSize);
    QByteArray before;
    while (!rest.isEmpty()) {
        const QByteArray line = TakeLine(rest);
        if (line == "EOF" && before == "0") {
            return true;
        }
        before = line;
    }
    return false;
}

int VersionNearStart(const QByteArray& head)
{
    QByteArray rest = head;
    bool isNext = false;
    while (!rest.isEmpty()) {
        const QByteArray code = TakeLine(rest);
        const QByteArray value = TakeLine(rest);
        if (isNext && code == "1") {
            bool ok = false;
            const int version = value.right(kVersionDigits).toInt(&ok);
            return ok ? version : kDefaultVersion;
        }
        isNext = isNext || (code == "9" && value.toUpper() == "$ACADVER");
    }
    return kDefaultVersion;
}

} // namespace velorx

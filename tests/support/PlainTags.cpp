// SPDX-License-Identifier: MIT
#include "tests/support/PlainTags.h"

#include <QIODevice>
#include <QTextCodec>

namespace VelorExchange::test {

QByteArray PlainRawLine(QIODevice& device)
{
    const qint64 start = device.pos();
    if (device.atEnd()) {
        return QByteArray();
    }
    char buffer[1000];
    qint64 size = device.readLine(buffer, sizeof buffer);
    for (qint64 i = 0; size != 2 && i < size - 2; ++i) {
        if (buffer[i] == '\r') {
            size = i;
            device.seek(start + i + 1);
        }
    }
    return QByteArray(buffer, static_cast<int>(size));
}

QString PlainLine(QIODevice& device, int version)
{
    const QByteArray line = PlainRawLine(device);
    QTextCodec* const ibm866 = version == 1006 ? QTextCodec::codecForName("IBM866") : nullptr;
    if (ibm866 != nullptr) {
        return ibm866->toUnicode(line.constData(), line.size()).trimmed();
    }
    return version < 1019 ? QString::fromLocal8Bit(line.constData(), line.size()).trimmed()
                          : QString::fromUtf8(line.constData(), line.size()).trimmed();
}

CPlainTag PlainTag(QIODevice& device, int version)
{
    CPlainTag tag;
    tag.code = PlainLine(device, version);
    tag.value = PlainLine(device, version);
    return tag;
}

void CPlainTagMap::Store(const CPlainTag& tag, bool overwrite)
{
    QString& value = values[tag.code];
    value = value.isEmpty() || overwrite ? tag.value : value + QLatin1Char(';') + tag.value;
}

CPlainTag CPlainTagMap::ReadChain(QIODevice& device, const CPlainTag& first)
{
    Store(first);
    CPlainTag tag = first;
    bool consumed = true;
    for (int i = 1; i < chainCodes.size(); ++i) {
        if (consumed) {
            tag = PlainTag(device, version);
        }
        consumed = tag.code.contains(chainCodes[i]);
        Store(consumed ? tag : CPlainTag{chainCodes[i], chainDefaults[i - 1]});
    }
    return consumed ? PlainTag(device, version) : tag;
}

CPlainTag CPlainTagMap::ReadUntil(QIODevice& device, const QStringList& stopCodes, bool clear)
{
    if (clear) {
        values.clear();
    }
    CPlainTag tag;
    while (!device.atEnd()) {
        tag = PlainTag(device, version);
        while (!chainCodes.isEmpty() && tag.code == chainCodes[0]) {
            tag = ReadChain(device, tag);
        }
        if (stopCodes.contains(tag.code)) {
            return tag;
        }
        Store(tag);
    }
    return tag;
}

CPlainTag CPlainTagMap::ReadWhile(QIODevice& device, const QStringList& allowedCodes, bool clear)
{
    if (clear) {
        values.clear();
    }
    CPlainTag tag = PlainTag(device, version);
    while (allowedCodes.contains(tag.code)) {
        Store(tag);
        tag = PlainTag(device, version);
    }
    return tag;
}

QString CPlainTagMap::Value(const QString& code, const QString& absent) const
{
    return values.value(code, absent);
}

int CPlainTagMap::Int(const QString& code, int absent) const
{
    return values.contains(code) ? values[code].toInt() : absent;
}

double CPlainTagMap::Double(const QString& code, double absent) const
{
    return values.contains(code) ? values[code].toDouble() : absent;
}

QStringList CPlainTagMap::Split(const QString& code) const
{
    return Value(code, QString()).split(QLatin1Char(';'), Qt::SkipEmptyParts);
}

} // namespace VelorExchange::test

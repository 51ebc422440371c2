// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

class QIODevice;

namespace VelorExchange::test {

// The layers below the parsers once more, as plain as can be: a device's own lines, strings and a map.
// The library's fast ones must give the same.

/// The bytes of a line, as `QIODevice::readLine` takes it and cut at a CR.
QByteArray PlainRawLine(QIODevice& device);

/// The line decoded for a version of the drawing, and trimmed.
QString PlainLine(QIODevice& device, int version);

/// A group: two lines.
struct CPlainTag
{
    QString code;
    QString value;
};

CPlainTag PlainTag(QIODevice& device, int version);

/// The groups of an object, by code.
class CPlainTagMap final
{
public:
    explicit CPlainTagMap(int drawingVersion) : version(drawingVersion) { }

    QMap<QString, QString> values;
    QStringList chainCodes;
    QStringList chainDefaults;

    void Store(const CPlainTag& tag, bool overwrite = false);
    CPlainTag ReadUntil(QIODevice& device, const QStringList& stopCodes, bool clear);
    CPlainTag ReadWhile(QIODevice& device, const QStringList& allowedCodes, bool clear);

    QString Value(const QString& code, const QString& absent) const;
    int Int(const QString& code, int absent) const;
    double Double(const QString& code, double absent) const;
    QStringList Split(const QString& code) const;

private:
    CPlainTag ReadChain(QIODevice& device, const CPlainTag& first);

    int version;
};

} // namespace VelorExchange::test

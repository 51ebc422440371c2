// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

namespace velorx {

/// Looks at single lines of a ".mif" beside the library, which tells a host its objects but not its
/// header. Lines are trimmed and decoded by the local codec, and blank ones are passed over, as in
/// the library's reader.
class CMifLines
{
public:
    /// Opens the file; where that fails there are no lines.
    explicit CMifLines(const QString& path);

    /// Goes to a byte, from which `Next` reads up to the byte `end`.
    void Seek(qint64 position, qint64 end);

    /// The next line that is not blank. False behind the last.
    bool Next(QString& line);

    /// The line that ends just ahead of the byte `end`, and starts at `lower` or behind it.
    QString EndingAt(qint64 lower, qint64 end);

private:
    static QString Decoded(QByteArray bytes);

    QFile file;
    qint64 last = 0;
};

} // namespace velorx

// SPDX-License-Identifier: MIT
#include "tools/velorx/features/MifTableFiles.h"

#include "VelorExchange/foundation/FileError.h"

#include <QFile>

#include <algorithm>

namespace velorx {

using VelorExchange::FileError;

namespace {

constexpr qint64 kBlock = 1024 * 1024;
constexpr char kColumns[] = "Columns ";
constexpr char kNoColumn[] = "TEXT CHAR(80)\n"; // that the library writes where there is none

void Open(QFile& file, QIODevice::OpenMode mode)
{
    if (!file.open(mode)) {
        throw FileError(file);
    }
}

void Write(QFile& file, const QByteArray& bytes)
{
    if (file.write(bytes) != bytes.size()) {
        throw FileError(file);
    }
}

void Flush(QFile& file)
{
    if (!file.flush()) {
        throw FileError(file);
    }
}

// `QFile` does not rename over a file.
void Move(const QString& from, const QString& to)
{
    QFile old(to);
    if (old.exists()) {
        QFile::setPermissions(from, old.permissions());
        if (!old.remove()) {
            throw FileError(old);
        }
    }
    QFile file(from);
    if (!file.rename(to)) {
        throw FileError(file);
    }
}

QByteArray ChangedColumn(const QByteArray& line, const SMifTableChanges& changes)
{
    const int behindName = line.indexOf(' ');
    const QString type = changes.typeOf(QString::fromLocal8Bit(line.left(behindName)));
    return type.isEmpty() ? line : line.left(behindName + 1) + type.toLatin1() + '\n';
}

QByteArray ChangedColumns(QFile& from, int count, const SMifTableChanges& changes)
{
    QByteArray columns;
    int left = count;
    for (int i = 0; i < count; ++i) {
        const QByteArray line = from.readLine();
        if (i == 0 && changes.dropsFirst) {
            --left;
        } else {
            columns += ChangedColumn(line, changes);
        }
    }
    if (left == 0) {
        left = 1;
        columns = kNoColumn;
    }
    return kColumns + QByteArray::number(left) + '\n' + columns;
}

// The header up to the columns' end. `from` stands behind it then.
QByteArray ChangedHeader(QFile& from, const SMifTableChanges& changes)
{
    QByteArray header;
    while (!from.atEnd()) {
        const QByteArray line = from.readLine();
        if (line.startsWith(kColumns)) {
            const int count = line.mid(static_cast<int>(sizeof kColumns) - 1).trimmed().toInt();
            return header + ChangedColumns(from, count, changes);
        }
        header += line;
    }
    return header;
}

// Blocks of whole lines; a line that is longer than a block makes a longer one.
QByteArray NextLines(QFile& from)
{
    QByteArray block = from.read(kBlock);
    if (!block.isEmpty() && !block.endsWith('\n')) {
        block += from.readLine();
    }
    return block;
}

void CopyObjects(QFile& from, QFile& to, const std::vector<SMifDetail>& details)
{
    CMifDetailWriter writer(details);
    QByteArray out;
    for (QByteArray block = NextLines(from); !block.isEmpty(); block = NextLines(from)) {
        if (writer.IsDone()) {
            Write(to, block);
            continue;
        }
        out.clear();
        const char* const end = block.constData() + block.size();
        for (const char* line = block.constData(); line != end;) {
            const char* feed = std::find(line, end, '\n');
            const char* next = feed == end ? end : feed + 1;
            writer.Take(line, next, out);
            line = next;
        }
        Write(to, out);
    }
}

void CopyTable(const QString& fromName, const QString& toName, const SMifTableChanges& changes)
{
    QFile from(fromName);
    Open(from, QIODevice::ReadOnly);
    const QByteArray header = ChangedHeader(from, changes);
    const qint64 length = from.pos();
    from.seek(0);
    if (from.read(length) == header && changes.details.empty()) {
        from.close();
        Move(fromName, toName);
        return;
    }
    QFile to(toName);
    Open(to, QIODevice::WriteOnly);
    Write(to, header);
    CopyObjects(from, to, changes.details);
    Flush(to);
    if (from.error() != QFileDevice::NoError) {
        throw FileError(from);
    }
}

void CopyRowsWithoutFirst(const QString& fromName, const QString& toName, const QString& value)
{
    QFile from(fromName);
    Open(from, QIODevice::ReadOnly);
    QFile to(toName);
    Open(to, QIODevice::WriteOnly);
    const QByteArray first = '"' + value.toLocal8Bit() + '"';
    while (!from.atEnd()) {
        const QByteArray row = from.readLine();
        const int behind = row.startsWith(first) ? first.size() : 0;
        const bool hasMore = behind > 0 && row.at(behind) == ';';
        Write(to, row.mid(hasMore ? behind + 1 : behind));
    }
    Flush(to);
    if (from.error() != QFileDevice::NoError) {
        throw FileError(from);
    }
}

} // namespace

void PutMifTable(const SMifTablePaths& from, const SMifTablePaths& to,
                 const SMifTableChanges& changes)
{
    CopyTable(from.table, to.table, changes);
    if (changes.dropsFirst) {
        CopyRowsWithoutFirst(from.rows, to.rows, changes.firstValue);
    } else {
        Move(from.rows, to.rows);
    }
}

void WriteEmptyMifTable(const SMifTablePaths& to)
{
    QFile table(to.table);
    Open(table, QIODevice::WriteOnly);
    Write(table,
          QByteArray("Version 450\nCharSet \"WindowsCyrillic\"\nDelimiter \";\"\n"
                     "CoordSys Nonearth Units \"m\"\nBounds (0, 0) (1, 1)\nColumns 1\n")
              + kNoColumn + "DATA\n\n");
    Flush(table);
    QFile rows(to.rows);
    Open(rows, QIODevice::WriteOnly);
}

} // namespace velorx

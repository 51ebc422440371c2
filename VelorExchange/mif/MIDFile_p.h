// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/mif/LineScanner_p.h"
#include "VelorExchange/mif/LineText_p.h"

#include <QFile>
#include <QString>
#include <QStringList>

#include <vector>

namespace VelorExchange::mif {

/// The rows of a ".mid", one at a time. Holds one row.
class CMIDFile final
{
public:
    /// Opens `path` plus ".mid", or plus ".MID" if the first doesn't exist. A failure shows only in
    /// that there are no rows.
    explicit CMIDFile(const QString& path);

    /// Its first character separates the fields of a row. A tab at first.
    void SetDelimiter(const QString& value);

    /// How many further calls of `NextRecord` keep the row at hand.
    void SetRepeatCount(int count) { repeatCount = count; }

    /// Goes to the next row, or to none behind the last. False at the end of the file.
    bool NextRecord();

    /// True if there is no row at hand. An empty row has one empty field.
    bool IsEmpty() const { return !hasRow; }

    /// A field without its double quotes; empty behind the last field.
    QString Field(int index);

    /// How many rows have been read.
    int RowsTaken() const { return rowsTaken; }

    /// The field as it stands in `Line()`, for reading in place: false if it has to be asked of
    /// `Field`, which is so where it has quotes inside or the delimiter isn't ASCII.
    bool PlainField(std::size_t index, CSpan& field);

    /// The row at hand.
    const CLineText& Line() const { return line; }

private:
    void CutRow();
    void CutText(const QString& text);

    QFile file;
    CLineScanner scanner;
    CLineText line;
    std::vector<CSpan> fields; // cut on the first demand
    QStringList textFields; // instead of `fields` where the delimiter isn't ASCII
    QString delimiter = QStringLiteral("\t");
    int repeatCount = 0;
    int rowsTaken = 0;
    bool hasRow = false;
    bool isCut = false;
    bool isCutAsText = false;
};

/// Opens `path` with one of two extensions read-only: the second where the first doesn't exist.
bool OpenEither(QFile& file, const QString& path, const char* extension, const char* other);

} // namespace VelorExchange::mif

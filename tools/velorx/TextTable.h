// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace velorx {

/// Rows of cells, printed as columns of even width.
class CTextTable
{
public:
    enum class EAlign { Left, Right };

    /// One alignment for each column.
    explicit CTextTable(std::vector<EAlign> columns) : alignments(std::move(columns)) { }

    /// Appends a row; cells beyond the columns are dropped, missing ones are empty.
    void Add(const QStringList& cells);

    /// The rows, each behind two blanks and with no blanks at its end.
    QString ToText() const;

private:
    std::vector<EAlign> alignments;
    std::vector<QStringList> rows;
};

/// Text of a file for a terminal: control characters stand as `\x1b`, so that a file cannot steer
/// the terminal.
QString Printable(const QString& text);

/// The shortest decimal that reads back as the same number.
QString PlainNumber(double value);

} // namespace velorx

// SPDX-License-Identifier: MIT
#include "tools/velorx/TextTable.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

namespace velorx {

namespace {

constexpr double kLargestPlain = 1e15;

bool IsControl(QChar c)
{
    return c.category() == QChar::Other_Control;
}

} // namespace

void CTextTable::Add(const QStringList& cells)
{
    QStringList row = cells.mid(0, static_cast<int>(alignments.size()));
    while (row.size() < static_cast<int>(alignments.size())) {
        row.append(QString());
    }
    rows.push_back(row);
}

QString CTextTable::ToText() const
{
    std::vector<int> widths(alignments.size(), 0);
    for (const QStringList& row : rows) {
        for (std::size_t i = 0; i < widths.size(); ++i) {
            widths[i] = std::max(widths[i], row.at(static_cast<int>(i)).size());
        }
    }
    QString text;
    for (const QStringList& row : rows) {
        QString line;
        for (std::size_t i = 0; i < widths.size(); ++i) {
            const QString& cell = row.at(static_cast<int>(i));
            line += QStringLiteral("  ");
            line += alignments[i] == EAlign::Left ? cell.leftJustified(widths[i])
                                                  : cell.rightJustified(widths[i]);
        }
        while (line.endsWith(QLatin1Char(' '))) {
            line.chop(1);
        }
        text += line + QLatin1Char('\n');
    }
    return text;
}

QString Printable(const QString& text)
{
    if (std::none_of(text.begin(), text.end(), IsControl)) {
        return text;
    }
    QString printable;
    for (const QChar c : text) {
        printable += IsControl(c)
            ? QStringLiteral("\\x%1").arg(c.unicode(), 2, 16, QLatin1Char('0'))
            : QString(c);
    }
    return printable;
}

QString PlainNumber(double value)
{
    const char format = std::abs(value) < kLargestPlain ? 'f' : 'g';
    return QString::number(value, format, QLocale::FloatingPointShortest);
}

} // namespace velorx

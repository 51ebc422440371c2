// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/MifHeader.h"

#include "tools/velorx/formats/MifLines.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

namespace velorx {

namespace {

// In the order in which the reader looks for them.
constexpr const char* kTypes[] = {"Char",  "Integer", "Smallint", "Decimal",
                                  "Float", "Date",    "Logical"};

struct SClause
{
    const char* word;
    QString SMifHeader::*value;
};

// Without meaning to the reader, but to people.
constexpr SClause kClauses[] = {{"Version", &SMifHeader::version},
                                {"Charset", &SMifHeader::charset},
                                {"CoordSys", &SMifHeader::coordSys}};

bool Contains(const QString& line, const char* word)
{
    return line.contains(QLatin1String(word), Qt::CaseInsensitive);
}

QStringList Split(const QString& line, const char* separators)
{
    return line.split(QRegularExpression(QLatin1String(separators)), Qt::SkipEmptyParts);
}

const char* TypeOf(const QString& token)
{
    for (const char* type : kTypes) {
        if (Contains(token, type)) {
            return type;
        }
    }
    return nullptr;
}

bool HasDigit(const QString& line)
{
    return std::any_of(line.begin(), line.end(), [](QChar c) { return c.isDigit(); });
}

void ReadColumns(CMifLines& lines, QString line, SMifHeader& header)
{
    header.columns = {};
    const bool isHere = HasDigit(line);
    if (!isHere && !lines.Next(line)) {
        return;
    }
    const int count = (isHere ? Split(line, "[\t ]").value(1) : line).toInt();
    for (int i = 0; i < count && lines.Next(line); ++i) {
        const QStringList tokens = Split(line, "[ ()]");
        if (tokens.size() < 2) {
            return;
        }
        const int behindName = line.indexOf(tokens[0]) + tokens[0].size();
        header.columns.Add({tokens[0], line.mid(behindName).trimmed(), TypeOf(tokens[1])});
    }
}

QString WithoutQuotes(const QString& value)
{
    const QLatin1Char quote('"');
    const bool isQuoted = value.size() > 1 && value.startsWith(quote) && value.endsWith(quote);
    return isQuoted ? value.mid(1, value.size() - 2) : value;
}

void TakeClause(const QString& line, SMifHeader& header)
{
    for (const SClause& clause : kClauses) {
        const QLatin1String word(clause.word);
        if (line.startsWith(word, Qt::CaseInsensitive)) {
            header.*clause.value = WithoutQuotes(line.mid(word.size()).simplified());
        }
    }
}

} // namespace

SMifHeader ReadMifHeader(const QString& path)
{
    SMifHeader header;
    CMifLines lines(path);
    QString line;
    while (lines.Next(line)) {
        if (Contains(line, "Delimiter")) {
            header.delimiter = Split(line, "\"").value(1);
        } else if (Contains(line, "Columns")) {
            ReadColumns(lines, line, header);
        } else if (Contains(line, "Data")) {
            break;
        } else {
            TakeClause(line, header);
        }
    }
    return header;
}

} // namespace velorx

// SPDX-License-Identifier: MIT
#include "VelorExchange/mif/MIDFile_p.h"

#include <algorithm>

namespace VelorExchange::mif {

namespace {

constexpr char kDoubleQuote = '"';

// A host's number may be any; counting down from the least one wraps.
int OneLess(int count)
{
    return static_cast<int>(static_cast<unsigned>(count) - 1U);
}

} // namespace

bool OpenEither(QFile& file, const QString& path, const char* extension, const char* other)
{
    const QString usual = path + QLatin1String(extension);
    file.setFileName(QFile::exists(usual) ? usual : path + QLatin1String(other));
    return file.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

CMIDFile::CMIDFile(const QString& path)
{
    if (OpenEither(file, path, ".mid", ".MID")) {
        scanner.Start(file);
    }
}

void CMIDFile::SetDelimiter(const QString& value)
{
    delimiter = value;
}

bool CMIDFile::NextRecord()
{
    if (!file.isOpen() || scanner.AtEnd(file)) {
        if (repeatCount == 0) {
            hasRow = false;
        } else {
            repeatCount = OneLess(repeatCount);
        }
        return false;
    }
    if (repeatCount == 0 || !hasRow) {
        CSpan raw;
        scanner.Next(file, raw);
        line.SetRow(raw, scanner.HasLineFeed());
        hasRow = true;
        isCut = false;
        ++rowsTaken;
    }
    if (repeatCount != 0) {
        repeatCount = OneLess(repeatCount);
    }
    return true;
}

void CMIDFile::CutRow()
{
    isCut = true;
    fields.clear();
    const QChar separator = delimiter.at(0);
    isCutAsText = separator.unicode() == 0 || separator.unicode() >= 0x80;
    if (isCutAsText) {
        CutText(line.Text());
        return;
    }
    const char d = separator.toLatin1();
    const CSpan row = line.Span();
    const char* start = row.begin;
    bool isQuoted = false;
    for (const char* p = row.begin; p != row.end; ++p) {
        if (*p == kDoubleQuote) {
            isQuoted = !isQuoted;
        } else if (*p == d && !isQuoted) {
            fields.push_back({start, p});
            start = p + 1;
        }
    }
    fields.push_back({start, row.end});
}

void CMIDFile::CutText(const QString& text)
{
    textFields.clear();
    int start = 0;
    bool isQuoted = false;
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i) == QLatin1Char(kDoubleQuote)) {
            isQuoted = !isQuoted;
        } else if (text.at(i) == delimiter.at(0) && !isQuoted) {
            textFields.append(text.mid(start, i - start));
            start = i + 1;
        }
    }
    textFields.append(text.mid(start));
}

bool CMIDFile::PlainField(std::size_t index, CSpan& field)
{
    if (!isCut) {
        CutRow();
    }
    if (isCutAsText) {
        return false;
    }
    field = index < fields.size() ? fields[index] : CSpan();
    // The usual quotes stand around the value.
    if (field.Size() >= 2 && *field.begin == kDoubleQuote && field.end[-1] == kDoubleQuote) {
        ++field.begin;
        --field.end;
    }
    return std::find(field.begin, field.end, kDoubleQuote) == field.end;
}

QString CMIDFile::Field(int index)
{
    CSpan field;
    if (PlainField(static_cast<std::size_t>(index), field)) {
        return line.Text(field);
    }
    QString text = isCutAsText ? textFields.value(index) : line.Text(field);
    return text.remove(QLatin1Char(kDoubleQuote));
}

} // namespace VelorExchange::mif

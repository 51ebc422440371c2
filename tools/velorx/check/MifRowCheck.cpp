// SPDX-License-Identifier: MIT
#include "tools/velorx/check/MifRowCheck.h"

#include "tools/velorx/check/Bytes.h"
#include "tools/velorx/check/Encoding.h"
#include "tools/velorx/check/MifKindsOfFinding.h"
#include "tools/velorx/formats/SingleNumber.h"

#include <QDate>

#include <algorithm>
#include <cmath>

namespace velorx {

using namespace miffindings;

namespace {

constexpr char kQuote = '"';

bool IsNumber(std::string_view field)
{
    bool isNumber = false;
    const double number = Bytes(field).toDouble(&isNumber);
    return isNumber && std::isfinite(number);
}

// Whether single precision holds all its digits.
bool IsSingle(std::string_view field)
{
    const double number = Bytes(field).toDouble();
    return ShortestOf(static_cast<float>(number)).value == number;
}

template <class T, T (QByteArray::*convert)(bool*, int) const>
bool IsWhole(std::string_view field)
{
    constexpr int kDecimal = 10;
    bool isNumber = false;
    (Bytes(field).*convert)(&isNumber, kDecimal);
    return isNumber;
}

// Quotes around a field, and doubled ones within.
std::string_view WithoutQuotes(std::string_view field)
{
    const bool isQuoted = field.size() > 1 && field.front() == kQuote && field.back() == kQuote;
    return isQuoted ? field.substr(1, field.size() - 2) : field;
}

} // namespace

CMifRowCheck::CMifRowCheck(QIODevice& source, const SMifTableHead& table, CFindings& results)
    : head(table), findings(results), lines(source, ELineEnd::Feed),
      codec(QTextCodec::codecForLocale())
{
    const QTextCodec* told = QTextCodec::codecForName(head.charset);
    if (told != nullptr && told->mibEnum() != codec->mibEnum()) {
        charset = head.charset;
    }
}

void CMifRowCheck::Run(qint64 objects)
{
    qint64 rows = 0;
    while (lines.Next()) {
        ++rows;
        TakeRow();
    }
    const QString counts = QStringLiteral("%1 objects, %2 rows").arg(objects).arg(rows);
    if (rows < objects) {
        findings.Add(kFewRows, Place(), counts, objects - rows);
    } else if (rows > objects) {
        findings.Add(kManyRows, Place(), counts, rows - objects);
    }
}

void CMifRowCheck::TakeRow()
{
    const std::string_view row = lines.Text();
    if (!IsAscii(row)) {
        if (!charset.isEmpty()) {
            findings.Add(kOtherCodePage, Place(), QString::fromLatin1(charset));
        }
        if (!Decodes(row, *codec)) {
            findings.Add(kBadText, Place(), Shown(row));
        }
    }
    if (std::count(row.begin(), row.end(), kQuote) % 2 != 0) {
        findings.Add(kBadQuotes, Place(), Shown(row));
        return;
    }
    Cut();
    if (fields.size() != head.columns.size()) {
        findings.Add(
            kBadRow, Place(),
            QStringLiteral("%1 fields for %2 columns").arg(fields.size()).arg(head.columns.size()));
        return;
    }
    for (std::size_t i = 0; i < fields.size(); ++i) {
        CheckValue(head.columns[i], WithoutQuotes(WithoutBlanks(fields[i])));
    }
}

void CMifRowCheck::Cut()
{
    const std::string_view row = lines.Text();
    fields.clear();
    std::size_t start = 0;
    bool isQuoted = false;
    for (std::size_t i = 0; i < row.size(); ++i) {
        isQuoted = row[i] == kQuote ? !isQuoted : isQuoted;
        if (row[i] == head.delimiter && !isQuoted) {
            fields.push_back(row.substr(start, i - start));
            start = i + 1;
        }
    }
    fields.push_back(row.substr(start));
}

void CMifRowCheck::Add(const SFindingKind& kind, const SMifColumnType& column,
                       std::string_view field)
{
    findings.Add(kind, Place(), column.name + QStringLiteral(": ") + Shown(field));
}

void CMifRowCheck::CheckValue(const SMifColumnType& column, std::string_view field)
{
    if (field.empty()) {
        return;
    }
    bool isGood = true;
    switch (column.type) {
    case EMifType::Char:
        CheckChars(column, field);
        break;
    case EMifType::Integer:
        isGood = IsWhole<int, &QByteArray::toInt>(field);
        break;
    case EMifType::SmallInt:
        isGood = IsWhole<short, &QByteArray::toShort>(field);
        break;
    case EMifType::Decimal:
        isGood = IsNumber(field);
        break;
    case EMifType::Float:
        isGood = IsNumber(field);
        if (isGood && !IsSingle(field)) {
            Add(kFloat, column, field);
        }
        break;
    case EMifType::Date:
        CheckDate(column, field);
        break;
    case EMifType::Logical:
        CheckLogical(column, field);
        break;
    case EMifType::Other:
        break;
    }
    if (!isGood) {
        Add(kBadValue, column, field);
    }
}

void CMifRowCheck::CheckChars(const SMifColumnType& column, std::string_view field)
{
    constexpr char kTwoQuotes[] = "\"\"";
    const QByteArray plain = Bytes(field).replace(kTwoQuotes, "\"");
    if (column.width > 0 && codec->toUnicode(plain).size() > column.width) {
        Add(kLongValue, column, field);
    }
}

// Eight digits are what the format wants; a time may follow in columns of both.
void CMifRowCheck::CheckDate(const SMifColumnType& column, std::string_view field)
{
    constexpr std::size_t kDigits = 8;
    const QString digits = QString::fromLatin1(Bytes(field.substr(0, kDigits)));
    if (!QDate::fromString(digits, QStringLiteral("yyyyMMdd")).isValid()) {
        Add(kBadValue, column, field);
    } else {
        findings.Add(kDate, Place(), column.name);
    }
}

void CMifRowCheck::CheckLogical(const SMifColumnType& column, std::string_view field)
{
    constexpr const char* kTrue[] = {"t", "1", "y", "yes"};
    constexpr const char* kOther[] = {"f", "0", "n", "no", "true", "false"};
    const QByteArray value = Bytes(field).toLower();
    const auto isValue = [&value](const char* known) { return value == known; };
    if (std::any_of(std::begin(kTrue), std::end(kTrue), isValue)) {
        findings.Add(kLogical, Place(), column.name);
    } else if (std::none_of(std::begin(kOther), std::end(kOther), isValue)) {
        Add(kBadValue, column, field);
    }
}

} // namespace velorx

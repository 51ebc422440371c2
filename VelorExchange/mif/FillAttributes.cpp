// SPDX-License-Identifier: MIT
#include "VelorExchange/mif/MIFReader_p.h"
#include "VelorExchange/mif/NormalizeName_p.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <utility>

namespace VelorExchange::mif {

namespace {

constexpr int kMostCharacters = 255;

// What two names have in common that are equal without regard to case. Names of attributes hold
// letters, digits and underlines of the basic plane only.
QString Folded(QString name)
{
    for (QChar& c : name) {
        c = c.toCaseFolded();
    }
    return name;
}

// Gives the names that `CAttributeHolderMIF::AddAttribute` would give on one record, without looking
// at all the others each time.
class CNameGiver
{
public:
    QString Give(const QString& clean)
    {
        QString candidate = clean;
        int& number = lastNumber[Folded(clean)];
        while (taken.contains(Folded(candidate))) {
            ++number;
            candidate = clean + QLatin1Char('_') + QString::number(number);
        }
        taken.insert(Folded(candidate));
        return candidate;
    }

private:
    QSet<QString> taken;
    QHash<QString, int> lastNumber;
};

bool IsAsciiSpace(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

// True if `simplified` would leave it as it is: ASCII, with single blanks between its words.
bool IsSimple(CSpan field)
{
    bool afterSpace = true;
    for (const char* p = field.begin; p != field.end; ++p) {
        const bool isSpace = IsAsciiSpace(*p);
        if (static_cast<unsigned char>(*p) >= 0x80 || (isSpace && (afterSpace || *p != ' '))) {
            return false;
        }
        afterSpace = isSpace;
    }
    return !afterSpace;
}

QDate ToDate(const QString& text)
{
    const QDate date = QDate::fromString(text, Qt::TextDate);
    return date.isValid() ? date : QDate::currentDate();
}

QVariant TextToValue(const QString& text, ColumnType type)
{
    switch (type) {
    case Char:
        return text.simplified().left(kMostCharacters);
    case Integer:
        return text.toInt();
    case Smallint:
        return QVariant::fromValue(text.toShort());
    case Decimal:
        return text.toDouble();
    case Float:
        return QVariant::fromValue(static_cast<float>(text.toDouble()));
    case Date:
        return ToDate(text);
    case Logical:
        return text.contains(QLatin1String("true"), Qt::CaseInsensitive);
    }
    return QVariant();
}

} // namespace

void CMIFReader::LearnNames()
{
    names.clear();
    QSet<QString> folded;
    for (const CColumnMIF& column : columns) {
        names.push_back(NormalizeName(column.name, false));
        folded.insert(Folded(names.back()));
    }
    namesDiffer = static_cast<std::size_t>(folded.size()) == names.size();
}

// False if the field is empty. Plain numbers and texts are read where they stand.
bool CMIFReader::MakeValue(std::size_t column, QVariant& value)
{
    const ColumnType type = columns[column].type;
    CSpan field;
    if (!midFile->PlainField(column, field)) {
        const QString text = midFile->Field(static_cast<int>(column));
        value = TextToValue(text, type);
        return !text.isEmpty();
    }
    if (field.IsEmpty()) {
        return false;
    }
    const CLineText& row = midFile->Line();
    switch (type) {
    case Char:
        if (IsSimple(field) && field.Size() <= static_cast<std::size_t>(kMostCharacters)) {
            value = row.Text(field);
        } else {
            value = TextToValue(row.Text(field), type);
        }
        break;
    case Integer:
        value = row.ToInt(field);
        break;
    case Decimal:
        value = row.ToDouble(field);
        break;
    case Float:
        value = QVariant::fromValue(static_cast<float>(row.ToDouble(field)));
        break;
    default:
        value = TextToValue(row.Text(field), type);
        break;
    }
    return true;
}

void CMIFReader::FillAttributes(CAttributeHolderMIF& record)
{
    if (midFile->IsEmpty() || columns.empty()) {
        return;
    }
    record.attributes.reserve(columns.size());
    CNameGiver giver;
    QVariant value;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (MakeValue(i, value)) {
            record.attributes.push_back(
                {namesDiffer ? names[i] : giver.Give(names[i]), std::move(value)});
        }
    }
}

} // namespace VelorExchange::mif

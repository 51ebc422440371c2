// SPDX-License-Identifier: MIT
#include "VelorExchange/mif/Attribute.h"

#include "VelorExchange/mif/NormalizeName_p.h"

#include <algorithm>
#include <utility>

namespace VelorExchange::mif {

namespace {

bool IsTaken(const std::vector<CAttributeMIF>& attributes, const QString& name)
{
    return std::any_of(attributes.begin(), attributes.end(), [&name](const CAttributeMIF& other) {
        return other.name.compare(name, Qt::CaseInsensitive) == 0;
    });
}

void Append(std::vector<CAttributeMIF>& attributes, const CColumnMIF& column, QVariant value)
{
    const QString clean = NormalizeName(column.name, false);
    QString candidate = clean;
    for (int number = 1; IsTaken(attributes, candidate); ++number) {
        candidate = clean + QLatin1Char('_') + QString::number(number);
    }
    attributes.push_back({candidate, std::move(value)});
}

} // namespace

QString NormalizeName(const QString& name, bool allowLeadingDigit)
{
    QString clean = name.trimmed();
    for (QChar& c : clean) {
        if (!c.isLetterOrNumber()) {
            c = QLatin1Char('_');
        }
    }
    if (!allowLeadingDigit && !clean.isEmpty() && clean.at(0).isDigit()) {
        clean.prepend(QLatin1Char('_'));
    }
    return clean;
}

void CAttributeHolderMIF::AddAttribute(const CColumnMIF& column, const QString& value)
{
    Append(attributes, column, value);
}

void CAttributeHolderMIF::AddAttribute(const CColumnMIF& column, int value)
{
    Append(attributes, column, value);
}

void CAttributeHolderMIF::AddAttribute(const CColumnMIF& column, short value)
{
    Append(attributes, column, QVariant::fromValue(value));
}

void CAttributeHolderMIF::AddAttribute(const CColumnMIF& column, double value)
{
    Append(attributes, column, value);
}

void CAttributeHolderMIF::AddAttribute(const CColumnMIF& column, float value)
{
    Append(attributes, column, QVariant::fromValue(value));
}

void CAttributeHolderMIF::AddAttribute(const CColumnMIF& column, const QDate& value)
{
    Append(attributes, column, value);
}

void CAttributeHolderMIF::AddAttribute(const CColumnMIF& column, bool value)
{
    Append(attributes, column, value);
}

} // namespace VelorExchange::mif

// SPDX-License-Identifier: MIT
#include "tools/velorx/features/MifColumns.h"

#include "tools/velorx/features/MifAttributes.h"
#include "tools/velorx/features/MifCodePage.h"
#include "tools/velorx/formats/SingleNumber.h"

#include <QDate>
#include <QLocale>

#include <algorithm>
#include <cmath>

namespace velorx {

namespace {

constexpr int kLongestName = 31;
constexpr int kWidestText = 254;
constexpr int kUsualWidth = 80; // that the library gives
constexpr int kUsualDecimals = 5; // likewise
constexpr int kDecimalWidth = 20; // likewise

// A type that holds all values of another one.
struct SWider
{
    int type;
    int holds;
};

// Numbers first: a text would hold them too, but is no number any more.
constexpr SWider kWider[] = {
    {QMetaType::Int, QMetaType::Short},      {QMetaType::Float, QMetaType::Short},
    {QMetaType::Double, QMetaType::Short},   {QMetaType::Double, QMetaType::Int},
    {QMetaType::Double, QMetaType::Float},   {QMetaType::QString, QMetaType::Short},
    {QMetaType::QString, QMetaType::Int},    {QMetaType::QString, QMetaType::Float},
    {QMetaType::QString, QMetaType::Double},
};

bool Holds(int type, int other, bool asText)
{
    if (type == other) {
        return true;
    }
    return std::any_of(std::begin(kWider), std::end(kWider), [=](const SWider& wider) {
        return wider.type == type && wider.holds == other && (type == QMetaType::QString) == asText;
    });
}

QString PlainText(const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::Bool:
        return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    case QMetaType::QDate:
        return value.toDate().toString(Qt::ISODate);
    default:
        return value.toString();
    }
}

// A row is a line, so that a value has no line breaks and no other control characters.
QString InOneLine(const QString& text, SMifRow& row)
{
    QString line = text;
    bool isBroken = false;
    for (QChar& c : line) {
        if (c < QLatin1Char(' ')) {
            isBroken = isBroken || c == QLatin1Char('\n') || c == QLatin1Char('\r');
            c = QLatin1Char(' ');
        }
    }
    row.inOneLine += isBroken ? 1 : 0;
    return line;
}

QVariant TextValue(const QVariant& value, SMifRow& row)
{
    QString text = InOneLine(PlainText(value), row);
    row.unknownLetters += FitsCodePage(text) ? 0 : 1;
    if (text.size() > kWidestText) {
        text.truncate(kWidestText);
        ++row.cut;
    }
    return text;
}

// A value of a type that columns have; null for a number that is none.
QVariant Storable(const QVariant& value, SMifRow& row)
{
    switch (value.userType()) {
    case QMetaType::Int:
    case QMetaType::Short:
        return value;
    case QMetaType::Double:
    case QMetaType::Float:
        if (!std::isfinite(value.toDouble())) {
            ++row.notFinite;
            return {};
        }
        return value;
    default:
        return TextValue(value, row);
    }
}

QVariant AsType(const QVariant& value, int type)
{
    if (value.userType() == type) {
        return value;
    }
    const bool isSingle = value.userType() == QMetaType::Float;
    QVariant converted = isSingle ? QVariant(ShortestOf(value.toFloat()).value) : value;
    converted.convert(type);
    return converted;
}

// The library puts a text between quotes as it is, and a number of single precision into the digits of the nearest
// double.
QVariant ForLibrary(const QVariant& value)
{
    if (value.userType() == QMetaType::Float) {
        return ShortestOf(value.toFloat()).value;
    }
    if (value.userType() != QMetaType::QString) {
        return value;
    }
    return value.toString().replace(QLatin1Char('"'), QLatin1String("\"\""));
}

QString LegalName(const QString& source)
{
    QString name = source.trimmed().left(kLongestName);
    for (QChar& c : name) {
        if (!c.isLetterOrNumber() || c.isSurrogate() || !FitsCodePage(c)) {
            c = QLatin1Char('_');
        }
    }
    if (name.isEmpty() || name.front().isDigit()) {
        name.prepend(QLatin1Char('_'));
    }
    return name.left(kLongestName);
}

} // namespace

void CMifColumns::AddOwn(SMifRow& row, const char* name, const QVariant& value)
{
    const QVariant stored = Storable(value, row);
    const QString column = QLatin1String(name);
    const auto known = byName.constFind(column);
    if (known == byName.constEnd()) {
        used.insert(column.toCaseFolded());
        byName.insert(column, columns.size());
        columns.push_back({column, stored.userType()});
    }
    Measure(columns[byName.value(column)], stored);
    row.attributes.push_back({column, ForLibrary(stored)});
}

void CMifColumns::Add(SMifRow& row, const std::vector<SFeatureAttribute>& attributes)
{
    QHash<QString, int> occurrences;
    for (const SFeatureAttribute& attribute : attributes) {
        const int occurrence = occurrences[attribute.name]++;
        const QVariant value = Storable(attribute.value, row);
        if (value.isNull()) {
            continue;
        }
        SColumn& column = ColumnFor(attribute.name, occurrence, value.userType());
        const QVariant stored = AsType(value, column.type);
        Measure(column, stored);
        row.attributes.push_back({column.name, ForLibrary(stored)});
    }
}

CMifColumns::SColumn& CMifColumns::ColumnFor(const QString& source, int occurrence, int type)
{
    std::vector<std::size_t>& known = bySource[{source, occurrence}];
    for (const bool asText : {false, true}) {
        for (const std::size_t index : known) {
            if (Holds(columns[index].type, type, asText)) {
                return columns[index];
            }
        }
    }
    const QString name = Unused(source);
    if (name != source) {
        renamed.push_back({source, name, !known.empty()});
    }
    known.push_back(columns.size());
    byName.insert(name, columns.size());
    columns.push_back({name, type});
    return columns.back();
}

QString CMifColumns::Unused(const QString& source)
{
    for (const char* own : {kMifLayerColumn, kMifCodeColumn}) {
        used.insert(QString(QLatin1String(own)).toCaseFolded());
    }
    const QString legal = LegalName(source);
    QString name = legal;
    for (int i = 1; used.contains(name.toCaseFolded()); ++i) {
        const QString suffix = QLatin1Char('_') + QString::number(i);
        name = legal.left(kLongestName - suffix.size()) + suffix;
    }
    used.insert(name.toCaseFolded());
    return name;
}

void CMifColumns::Measure(SColumn& column, const QVariant& value)
{
    if (column.type == QMetaType::QString) {
        column.longest = std::max(column.longest, value.toString().size());
    } else if (column.type == QMetaType::Double) {
        const QString digits =
            QString::number(std::fabs(value.toDouble()), 'f', QLocale::FloatingPointShortest);
        const int point = digits.indexOf(QLatin1Char('.'));
        const int whole = point < 0 ? digits.size() : point;
        column.whole = std::max(column.whole, whole);
        column.decimals = std::max(column.decimals, point < 0 ? 0 : digits.size() - point - 1);
    }
}

QString CMifColumns::TypeOf(const QString& name) const
{
    const auto known = byName.constFind(name);
    if (known == byName.constEnd()) {
        return {};
    }
    const SColumn& column = columns[*known];
    if (column.type == QMetaType::QString && column.longest > kUsualWidth) {
        return QStringLiteral("CHAR(%1)").arg(column.longest);
    }
    if (column.type == QMetaType::Float) {
        return QStringLiteral("FLOAT");
    }
    // The width counts the sign and the point.
    const int decimals = std::min(column.decimals, kDecimalWidth - 2 - column.whole);
    if (column.type == QMetaType::Double && decimals > kUsualDecimals) {
        return QStringLiteral("DECIMAL(%1,%2)").arg(kDecimalWidth).arg(decimals);
    }
    return {};
}

std::vector<CMifColumns::SRenamed> CMifColumns::TakeRenamed()
{
    return std::exchange(renamed, {});
}

} // namespace velorx

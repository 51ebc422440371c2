// SPDX-License-Identifier: MIT
// The summary of a MIF/MID pair for programs.
#include "tools/velorx/formats/MifKinds.h"
#include "tools/velorx/info/MifSummary.h"

#include <QJsonArray>
#include <QJsonObject>

namespace velorx {

using VelorExchange::mif::CAttributeMIF;

namespace {

QJsonObject Counts(const CMifSummary::CCounts& counts, const char* SMifKind::*name)
{
    QJsonObject object;
    for (std::size_t i = 0; i < counts.size(); ++i) {
        if (counts[i] > 0) {
            object.insert(QLatin1String(kMifKinds[i].*name), counts[i]);
        }
    }
    return object;
}

QJsonValue ColumnObject(const SMifColumn& column)
{
    const QJsonValue noType(QJsonValue::Null);
    return QJsonObject{
        {QStringLiteral("name"), column.name},
        {QStringLiteral("type"), column.type != nullptr ? QLatin1String(column.type) : noType},
        {QStringLiteral("definition"), column.definition}};
}

QJsonValue AttributeValue(const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::QString:
    case QMetaType::QDate:
        return value.toString();
    case QMetaType::Bool:
        return value.toBool();
    default:
        return value.toDouble();
    }
}

QJsonArray RowArray(const std::vector<CMifSummary::SRow>& rows)
{
    QJsonArray array;
    for (const CMifSummary::SRow& row : rows) {
        QJsonObject attributes;
        for (const CAttributeMIF& attribute : row.attributes) {
            attributes.insert(attribute.name, AttributeValue(attribute.value));
        }
        array.append(QJsonObject{{QStringLiteral("kind"), kMifKinds[row.kind].name},
                                 {QStringLiteral("attributes"), attributes}});
    }
    return array;
}

} // namespace

QJsonObject CMifSummary::ToJson() const
{
    const QJsonValue noRows(QJsonValue::Null);
    return QJsonObject{
        {QStringLiteral("result"), result},
        {QStringLiteral("version"), header.version},
        {QStringLiteral("charset"), header.charset},
        {QStringLiteral("delimiter"), header.delimiter},
        {QStringLiteral("coordsys"), header.coordSys},
        {QStringLiteral("columns"), ToArray(header.columns, ColumnObject)},
        {QStringLiteral("extents"), extents.ToJson()},
        {QStringLiteral("objects"), Counts(objects, &SMifKind::name)},
        {QStringLiteral("callbacks"), Counts(records, &SMifKind::operation)},
        {QStringLiteral("attributes_total"), attributesTotal},
        {QStringLiteral("records_without_attributes"), recordsWithoutAttributes},
        {QStringLiteral("mid_rows_taken"), rowsTaken},
        {QStringLiteral("mid_rows_left"), rowsLeft ? QJsonValue(*rowsLeft) : noRows},
        {QStringLiteral("rows"), RowArray(rows)},
    };
}

} // namespace velorx

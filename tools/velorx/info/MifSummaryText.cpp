// SPDX-License-Identifier: MIT
// The summary of a MIF/MID pair for people.
#include "tools/velorx/formats/MifKinds.h"
#include "tools/velorx/info/MifSummary.h"
#include "tools/velorx/info/Report.h"
#include "tools/velorx/TextTable.h"

namespace velorx {

using VelorExchange::mif::CAttributeMIF;

namespace {

using EAlign = CTextTable::EAlign;

void AddClause(CTextTable& table, const char* name, const QString& value)
{
    if (!value.isEmpty()) {
        table.Add({QLatin1String(name), Printable(value)});
    }
}

QString RowsText(const CMifSummary& summary)
{
    if (!summary.rowsLeft) {
        return QStringLiteral("no .mid file");
    }
    return QStringLiteral("%1 of %2 taken")
        .arg(summary.rowsTaken)
        .arg(summary.rowsTaken + *summary.rowsLeft);
}

QString HeaderText(const CMifSummary& summary)
{
    CTextTable table({EAlign::Left, EAlign::Left});
    AddClause(table, "Version", summary.header.version);
    AddClause(table, "Character set", summary.header.charset);
    AddClause(table, "Delimiter", summary.header.delimiter);
    AddClause(table, "Coordinates", summary.header.coordSys);
    table.Add({QStringLiteral("Attribute rows"), RowsText(summary)});
    table.Add({QStringLiteral("Attributes"), QString::number(summary.attributesTotal)});
    summary.extents.AddTo(table);
    return table.ToText();
}

QString ColumnsText(const CListed<SMifColumn>& columns)
{
    CTextTable table({EAlign::Left, EAlign::Left, EAlign::Left});
    table.Add({QStringLiteral("Name"), QStringLiteral("Type"), QStringLiteral("Definition")});
    for (const SMifColumn& column : columns.first) {
        const QLatin1String type(column.type != nullptr ? column.type : "(not known)");
        table.Add({Printable(column.name), type, Printable(column.definition)});
    }
    return Title("Columns", columns.total) + table.ToText() + Rest(columns);
}

QString ObjectsText(const CMifSummary& summary)
{
    CTextTable table({EAlign::Left, EAlign::Right, EAlign::Right});
    table.Add({QStringLiteral("Kind"), QStringLiteral("Objects"), QStringLiteral("Parts")});
    qint64 objects = 0;
    qint64 records = 0;
    for (std::size_t i = 0; i < CMifSummary::kKinds; ++i) {
        objects += summary.objects[i];
        records += summary.records[i];
        if (summary.records[i] > 0) {
            table.Add({QLatin1String(kMifKinds[i].name), QString::number(summary.objects[i]),
                       QString::number(summary.records[i])});
        }
    }
    table.Add({QStringLiteral("All"), QString::number(objects), QString::number(records)});
    return Title("Objects", objects) + table.ToText();
}

// The names of all attributes of the rows, in the order in which they come.
QStringList AttributeNames(const std::vector<CMifSummary::SRow>& rows)
{
    QStringList names;
    for (const CMifSummary::SRow& row : rows) {
        for (const CAttributeMIF& attribute : row.attributes) {
            if (!names.contains(attribute.name)) {
                names.append(attribute.name);
            }
        }
    }
    return names;
}

QString FirstRowsText(const std::vector<CMifSummary::SRow>& rows)
{
    const QStringList names = AttributeNames(rows);
    CTextTable table(std::vector<EAlign>(static_cast<std::size_t>(names.size() + 1), EAlign::Left));
    table.Add(QStringList(QStringLiteral("Kind")) + names);
    for (const CMifSummary::SRow& row : rows) {
        QStringList cells(QLatin1String(kMifKinds[row.kind].name));
        for (int i = 0; i < names.size(); ++i) {
            cells.append(QString());
        }
        for (const CAttributeMIF& attribute : row.attributes) {
            cells[names.indexOf(attribute.name) + 1] = Printable(attribute.value.toString());
        }
        table.Add(cells);
    }
    return Title("First rows", static_cast<qint64>(rows.size())) + table.ToText();
}

} // namespace

// A table without entries is left out, its title included.
QString CMifSummary::ToText() const
{
    QString text = HeaderText(*this);
    text += header.columns.total > 0 ? ColumnsText(header.columns) : QString();
    text += ObjectsText(*this);
    text += rows.empty() ? QString() : FirstRowsText(rows);
    return text;
}

} // namespace velorx

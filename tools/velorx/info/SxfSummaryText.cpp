// SPDX-License-Identifier: MIT
// The summary of an SXF map for people.
#include "tools/velorx/info/Report.h"
#include "tools/velorx/info/SxfSummary.h"
#include "tools/velorx/TextTable.h"

namespace velorx {

namespace {

using EAlign = CTextTable::EAlign;

QString HeaderText(const CSxfSummary& summary)
{
    const SSxfHeader& header = summary.header;
    CTextTable table({EAlign::Left, EAlign::Left});
    table.Add({QStringLiteral("Form"),
               header.isText ? QStringLiteral("text") : QStringLiteral("binary")});
    table.Add({QStringLiteral("Scale"),
               header.scale != 0 ? QStringLiteral("1:%1").arg(header.scale)
                                 : QStringLiteral("not told")});
    table.Add({QStringLiteral("Records declared"), QString::number(header.declaredRecords)});
    summary.extents.AddTo(table);
    return table.ToText();
}

void AddCounts(CTextTable& table, const char* name, const CSxfSummary::SCounts& counts)
{
    table.Add({QLatin1String(name), QString::number(counts.objects),
               QString::number(counts.contours), QString::number(counts.vertices)});
}

QString ObjectsText(const CSxfSummary& summary)
{
    CTextTable table({EAlign::Left, EAlign::Right, EAlign::Right, EAlign::Right});
    table.Add({QStringLiteral("Kind"), QStringLiteral("Objects"), QStringLiteral("Contours"),
               QStringLiteral("Vertices")});
    CSxfSummary::SCounts all;
    for (std::size_t i = 0; i < CSxfSummary::kKinds; ++i) {
        const CSxfSummary::SCounts& counts = summary.counts[i];
        all.objects += counts.objects;
        all.contours += counts.contours;
        all.vertices += counts.vertices;
        if (counts.objects > 0) {
            AddCounts(table, kSxfKinds[i].name, counts);
        }
    }
    AddCounts(table, "All", all);
    return Title("Objects", summary.objects) + table.ToText();
}

QString NameOf(const QString& layer)
{
    return Printable(layer);
}

QString NameOf(qint32 code)
{
    return QString::number(code);
}

template <class Key>
QString TallyText(const char* title, const char* keys, const char* occurrences,
                  const CTally<Key>& tally)
{
    if (tally.counts.empty()) {
        return QString();
    }
    CTextTable table({EAlign::Left, EAlign::Right});
    table.Add({QLatin1String(keys), QLatin1String(occurrences)});
    for (const auto& [key, count] : tally.counts) {
        table.Add({NameOf(key), QString::number(count)});
    }
    if (tally.others > 0) {
        table.Add({QStringLiteral("(others)"), QString::number(tally.others)});
    }
    return Title(title, static_cast<qint64>(tally.counts.size())) + table.ToText();
}

} // namespace

// A table without entries is left out, its title included.
QString CSxfSummary::ToText() const
{
    return HeaderText(*this) + ObjectsText(*this) + TallyText("Layers", "Name", "Objects", layers)
        + TallyText("Semantics", "Code", "Values", semantics);
}

} // namespace velorx

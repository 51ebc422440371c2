// SPDX-License-Identifier: MIT
// The summary of an RSC classifier for people.
#include "tools/velorx/info/Report.h"
#include "tools/velorx/info/RscSummary.h"
#include "tools/velorx/TextTable.h"

namespace velorx {

namespace {

using EAlign = CTextTable::EAlign;

QString LayersText(const CRscSummary& summary)
{
    const std::map<QString, qint64> objects = summary.ObjectsByLayer();
    CTextTable table({EAlign::Left, EAlign::Right});
    table.Add({QStringLiteral("Name"), QStringLiteral("Objects")});
    for (const CRscSummary::CReader::CLayer& layer : summary.layers) {
        const auto found = objects.find(layer.name);
        table.Add(
            {Printable(layer.name), QString::number(found != objects.end() ? found->second : 0)});
    }
    return Title("Layers", static_cast<qint64>(summary.layers.size())) + table.ToText();
}

QString ObjectsText(const CRscSummary& summary)
{
    CTextTable table({EAlign::Right, EAlign::Right, EAlign::Left, EAlign::Left, EAlign::Left});
    table.Add({QStringLiteral("Code"), QStringLiteral("Kind"), QStringLiteral("Key"),
               QStringLiteral("Layer"), QStringLiteral("Name")});
    for (const auto& [key, object] : summary.objects) {
        table.Add({QString::number(object.code), QString::number(object.type), Printable(key),
                   Printable(object.layerName), Printable(object.name)});
    }
    return Title("Objects", static_cast<qint64>(summary.objects.size())) + table.ToText();
}

QString SemanticsText(const CRscSummary& summary)
{
    CTextTable table({EAlign::Right, EAlign::Right, EAlign::Left});
    table.Add({QStringLiteral("Code"), QStringLiteral("Kind"), QStringLiteral("Name")});
    for (const auto& [code, semantic] : summary.semantics) {
        table.Add(
            {QString::number(code), QString::number(semantic.second), Printable(semantic.first)});
    }
    return Title("Semantics", static_cast<qint64>(summary.semantics.size())) + table.ToText();
}

} // namespace

QString CRscSummary::ToText() const
{
    return result ? LayersText(*this) + ObjectsText(*this) + SemanticsText(*this) : QString();
}

} // namespace velorx

// SPDX-License-Identifier: MIT
// The summary of an RSC classifier for programs.
#include "tools/velorx/info/RscSummary.h"

#include <QJsonArray>
#include <QJsonObject>

namespace velorx {

namespace {

QJsonArray LayerArray(const CRscSummary& summary)
{
    const std::map<QString, qint64> objects = summary.ObjectsByLayer();
    QJsonArray array;
    for (const CRscSummary::CReader::CLayer& layer : summary.layers) {
        const auto found = objects.find(layer.name);
        array.append(
            QJsonObject{{QStringLiteral("name"), layer.name},
                        {QStringLiteral("objects"), found != objects.end() ? found->second : 0}});
    }
    return array;
}

QJsonArray ObjectArray(const CRscSummary& summary)
{
    QJsonArray array;
    for (const auto& [key, object] : summary.objects) {
        array.append(QJsonObject{{QStringLiteral("number"), object.number},
                                 {QStringLiteral("key"), key},
                                 {QStringLiteral("code"), object.code},
                                 {QStringLiteral("kind"), static_cast<int>(object.type)},
                                 {QStringLiteral("layer"), object.layerName},
                                 {QStringLiteral("name"), object.name}});
    }
    return array;
}

QJsonArray SemanticArray(const CRscSummary& summary)
{
    QJsonArray array;
    for (const auto& [code, semantic] : summary.semantics) {
        array.append(QJsonObject{{QStringLiteral("code"), static_cast<qint64>(code)},
                                 {QStringLiteral("kind"), static_cast<int>(semantic.second)},
                                 {QStringLiteral("name"), semantic.first}});
    }
    return array;
}

} // namespace

QJsonObject CRscSummary::ToJson() const
{
    return QJsonObject{
        {QStringLiteral("result"), result},
        {QStringLiteral("layers"), LayerArray(*this)},
        {QStringLiteral("objects"), ObjectArray(*this)},
        {QStringLiteral("semantics"), SemanticArray(*this)},
    };
}

} // namespace velorx

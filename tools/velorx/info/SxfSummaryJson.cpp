// SPDX-License-Identifier: MIT
// The summary of an SXF map for programs.
#include "tools/velorx/info/SxfSummary.h"

#include <QJsonObject>

namespace velorx {

namespace {

QJsonObject CountsOf(const CSxfSummary& summary, const char* SSxfKind::*name,
                     qint64 CSxfSummary::SCounts::*count)
{
    QJsonObject object;
    for (std::size_t i = 0; i < CSxfSummary::kKinds; ++i) {
        if (summary.counts[i].objects > 0) {
            object.insert(QLatin1String(kSxfKinds[i].*name), summary.counts[i].*count);
        }
    }
    return object;
}

QString KeyOf(const QString& layer)
{
    return layer;
}

QString KeyOf(qint32 code)
{
    return QString::number(code);
}

template <class Key>
QJsonObject TallyObject(const CTally<Key>& tally)
{
    QJsonObject object;
    for (const auto& [key, count] : tally.counts) {
        object.insert(KeyOf(key), count);
    }
    return object;
}

} // namespace

QJsonObject CSxfSummary::ToJson() const
{
    const QJsonValue none(QJsonValue::Null);
    return QJsonObject{
        {QStringLiteral("result"), result},
        {QStringLiteral("message"), message.isEmpty() ? none : QJsonValue(message)},
        {QStringLiteral("form"), header.isText ? QStringLiteral("text") : QStringLiteral("binary")},
        {QStringLiteral("scale"), header.scale != 0 ? QJsonValue(header.scale) : none},
        {QStringLiteral("declared_records"), header.declaredRecords},
        {QStringLiteral("extents"), extents.ToJson()},
        {QStringLiteral("objects"), CountsOf(*this, &SSxfKind::name, &SCounts::objects)},
        {QStringLiteral("callbacks"), CountsOf(*this, &SSxfKind::operation, &SCounts::objects)},
        {QStringLiteral("vertices"), CountsOf(*this, &SSxfKind::operation, &SCounts::vertices)},
        {QStringLiteral("subcontours"), subContours},
        {QStringLiteral("layers"), TallyObject(layers)},
        {QStringLiteral("objects_of_other_layers"), layers.others},
        {QStringLiteral("semantics"), TallyObject(semantics)},
        {QStringLiteral("values_of_other_semantics"), semantics.others},
        {QStringLiteral("semantic_types"), TallyObject(semanticTypes)},
    };
}

} // namespace velorx

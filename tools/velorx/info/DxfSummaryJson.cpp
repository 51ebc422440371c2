// SPDX-License-Identifier: MIT
// The summary of a drawing for programs.
#include "tools/velorx/formats/DxfColour.h"
#include "tools/velorx/info/DxfSummary.h"

#include <QJsonArray>
#include <QJsonObject>

namespace velorx {

using namespace VelorExchange::dxf;

namespace {

void AddCount(QJsonObject& object, const char* name, qint64 count)
{
    if (count > 0) {
        const QLatin1String key(name);
        object.insert(key, object.value(key).toDouble() + static_cast<double>(count));
    }
}

QJsonObject Callbacks(const CDxfSummary& summary)
{
    QJsonObject calls;
    for (std::size_t i = 0; i < summary.drawing.size(); ++i) {
        if (EntityOperation(i) != nullptr) {
            AddCount(calls, EntityOperation(i), summary.drawing[i]);
        }
    }
    AddCount(calls, "OnBlock", summary.blocks.total);
    AddCount(calls, "OnTextStyle", summary.textStyles.total);
    AddCount(calls, "OnMLineStyle", summary.mlineStyles.total);
    AddCount(calls, "OnLineStyle", summary.lineTypes.total);
    AddCount(calls, "OnLayer", summary.layers.total);
    AddCount(calls, "OnHeader", summary.headers);
    return calls;
}

QJsonObject EntityCounts(const CEntityCounts& counts)
{
    QJsonObject object;
    for (std::size_t i = 0; i < counts.size(); ++i) {
        AddCount(object, EntityName(i), counts[i]);
    }
    return object;
}

QJsonArray PointArray(const VelorExchange::CPoint3D& point)
{
    return {point.x, point.y, point.z};
}

QJsonValue Extents(const CDxfSummary& summary)
{
    if (summary.headers == 0) {
        return QJsonValue(QJsonValue::Null);
    }
    return QJsonObject{{QStringLiteral("min"), PointArray(summary.header.extMin)},
                       {QStringLiteral("max"), PointArray(summary.header.extMax)}};
}

QJsonObject LayerObject(const CLayerDXF& layer)
{
    return QJsonObject{{QStringLiteral("name"), layer.name},
                       {QStringLiteral("color"), ColourName(layer.color)},
                       {QStringLiteral("visible"), layer.visible},
                       {QStringLiteral("locked"), !layer.unlocked},
                       {QStringLiteral("line_type"), layer.lineType},
                       {QStringLiteral("line_weight"), layer.lineWeight}};
}

QJsonObject BlockObject(const CDxfSummary::SBlock& block)
{
    return QJsonObject{{QStringLiteral("name"), block.name},
                       {QStringLiteral("entities"), block.entities}};
}

QJsonObject TextStyleObject(const CTextStyleDXF& style)
{
    return QJsonObject{{QStringLiteral("name"), style.name},
                       {QStringLiteral("font"), style.fontFile}};
}

QJsonObject MLineStyleObject(const CDxfSummary::SMLineStyle& style)
{
    return QJsonObject{{QStringLiteral("name"), style.name},
                       {QStringLiteral("lines"), style.elements}};
}

} // namespace

QJsonObject CDxfSummary::ToJson() const
{
    const auto asIs = [](const QString& name) { return QJsonValue(name); };
    return QJsonObject{
        {QStringLiteral("result"), result},
        {QStringLiteral("version"), version},
        {QStringLiteral("end_mark"), hasEndMark},
        {QStringLiteral("extents"), Extents(*this)},
        {QStringLiteral("layers"), ToArray(layers, LayerObject)},
        {QStringLiteral("text_styles"), ToArray(textStyles, TextStyleObject)},
        {QStringLiteral("line_types"), ToArray(lineTypes, asIs)},
        {QStringLiteral("multiline_styles"), ToArray(mlineStyles, MLineStyleObject)},
        {QStringLiteral("blocks"), ToArray(blocks, BlockObject)},
        {QStringLiteral("callbacks"), Callbacks(*this)},
        {QStringLiteral("entities"), EntityCounts(drawing)},
        {QStringLiteral("block_entities"), EntityCounts(inBlocks)},
        {QStringLiteral("insert_attributes"), insertAttributes},
    };
}

} // namespace velorx

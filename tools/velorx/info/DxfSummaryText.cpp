// SPDX-License-Identifier: MIT
// The summary of a drawing for people.
#include "tools/velorx/formats/DxfColour.h"
#include "tools/velorx/info/DxfSummary.h"
#include "tools/velorx/info/Report.h"
#include "tools/velorx/TextTable.h"

namespace velorx {

using namespace VelorExchange::dxf;

namespace {

using EAlign = CTextTable::EAlign;

constexpr int kVersionDigits = 4;

QString YesNo(bool value)
{
    return value ? QStringLiteral("yes") : QStringLiteral("no");
}

QString PointText(const VelorExchange::CPoint3D& point)
{
    return QStringLiteral("%1, %2, %3")
        .arg(PlainNumber(point.x), PlainNumber(point.y), PlainNumber(point.z));
}

QString HeaderText(const CDxfSummary& summary)
{
    CTextTable table({EAlign::Left, EAlign::Left});
    const QString version =
        QStringLiteral("AC%1").arg(summary.version, kVersionDigits, 10, QLatin1Char('0'));
    if (summary.headers == 0) {
        table.Add({QStringLiteral("Version"), version + QStringLiteral(" (no complete header)")});
    } else {
        table.Add({QStringLiteral("Version"), version});
        table.Add({QStringLiteral("Extents from"), PointText(summary.header.extMin)});
        table.Add({QStringLiteral("Extents to"), PointText(summary.header.extMax)});
    }
    if (!summary.fault.isEmpty()) {
        table.Add({QStringLiteral("Content"), QStringLiteral("none: ") + summary.fault});
    } else if (!summary.hasEndMark) {
        table.Add({QStringLiteral("End mark"),
                   QStringLiteral("missing: the file may have been cut short")});
    }
    return table.ToText();
}

QString LayersText(const CListed<CLayerDXF>& layers)
{
    CTextTable table({EAlign::Left, EAlign::Left, EAlign::Left, EAlign::Left, EAlign::Left});
    table.Add({QStringLiteral("Name"), QStringLiteral("Colour"), QStringLiteral("Visible"),
               QStringLiteral("Locked"), QStringLiteral("Line type")});
    for (const CLayerDXF& layer : layers.first) {
        table.Add({Printable(layer.name), ColourName(layer.color), YesNo(layer.visible),
                   YesNo(!layer.unlocked), Printable(layer.lineType)});
    }
    return Title("Layers", layers.total) + table.ToText() + Rest(layers);
}

qint64 Sum(const CEntityCounts& counts)
{
    qint64 sum = 0;
    for (const qint64 count : counts) {
        sum += count;
    }
    return sum;
}

QString EntitiesText(const CDxfSummary& summary)
{
    CTextTable table({EAlign::Left, EAlign::Right, EAlign::Right});
    table.Add({QStringLiteral("Kind"), QStringLiteral("In the drawing"),
               QStringLiteral("Inside blocks")});
    for (std::size_t i = 0; i < summary.drawing.size(); ++i) {
        if (summary.drawing[i] + summary.inBlocks[i] > 0) {
            table.Add({QLatin1String(EntityName(i)), QString::number(summary.drawing[i]),
                       QString::number(summary.inBlocks[i])});
        }
    }
    const qint64 inDrawing = Sum(summary.drawing);
    const qint64 inBlocks = Sum(summary.inBlocks);
    table.Add({QStringLiteral("All"), QString::number(inDrawing), QString::number(inBlocks)});
    return Title("Entities", inDrawing + inBlocks) + table.ToText()
        + QStringLiteral("  Attributes of inserts: %1\n").arg(summary.insertAttributes);
}

QString BlocksText(const CListed<CDxfSummary::SBlock>& blocks)
{
    CTextTable table({EAlign::Left, EAlign::Right});
    table.Add({QStringLiteral("Name"), QStringLiteral("Entities")});
    for (const CDxfSummary::SBlock& block : blocks.first) {
        table.Add({Printable(block.name), QString::number(block.entities)});
    }
    return Title("Blocks", blocks.total) + table.ToText() + Rest(blocks);
}

QString TextStylesText(const CListed<CTextStyleDXF>& styles)
{
    CTextTable table({EAlign::Left, EAlign::Left});
    table.Add({QStringLiteral("Name"), QStringLiteral("Font")});
    for (const CTextStyleDXF& style : styles.first) {
        table.Add({Printable(style.name), Printable(style.fontFile)});
    }
    return Title("Text styles", styles.total) + table.ToText() + Rest(styles);
}

QString LineTypesText(const CListed<QString>& lineTypes)
{
    CTextTable table({EAlign::Left});
    for (const QString& name : lineTypes.first) {
        table.Add({Printable(name)});
    }
    return Title("Line types", lineTypes.total) + table.ToText() + Rest(lineTypes);
}

QString MLineStylesText(const CListed<CDxfSummary::SMLineStyle>& styles)
{
    CTextTable table({EAlign::Left, EAlign::Right});
    table.Add({QStringLiteral("Name"), QStringLiteral("Lines")});
    for (const CDxfSummary::SMLineStyle& style : styles.first) {
        table.Add({Printable(style.name), QString::number(style.elements)});
    }
    return Title("Multiline styles", styles.total) + table.ToText() + Rest(styles);
}

} // namespace

// A table without entries is left out, its title included.
QString CDxfSummary::ToText() const
{
    QString text = HeaderText(*this);
    text += layers.total > 0 ? LayersText(layers) : QString();
    text += EntitiesText(*this);
    text += blocks.total > 0 ? BlocksText(blocks) : QString();
    text += textStyles.total > 0 ? TextStylesText(textStyles) : QString();
    text += lineTypes.total > 0 ? LineTypesText(lineTypes) : QString();
    text += mlineStyles.total > 0 ? MLineStylesText(mlineStyles) : QString();
    return text;
}

} // namespace velorx

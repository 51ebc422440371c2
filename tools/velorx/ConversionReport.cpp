// SPDX-License-Identifier: MIT
#include "tools/velorx/ConversionReport.h"

#include "tools/velorx/TextTable.h"

#include <QJsonArray>
#include <QStringList>

#include <algorithm>
#include <cstddef>

namespace velorx {

namespace {

using EAlign = CTextTable::EAlign;

constexpr std::size_t kLayersShown = 5;
constexpr int kBlocksColumn = 2;

// Most sources have no blocks, and then there is no column for them.
QString KindsText(const std::vector<SConvertedKind>& kinds)
{
    if (kinds.empty()) {
        return QStringLiteral("\nCarried over\n  Nothing: no objects were read\n");
    }
    const bool hasBlocks = std::any_of(
        kinds.begin(), kinds.end(), [](const SConvertedKind& kind) { return kind.inBlocks > 0; });
    std::vector<EAlign> columns(hasBlocks ? 5 : 4, EAlign::Right);
    columns.front() = columns.back() = EAlign::Left;
    CTextTable table(columns);
    const auto add = [hasBlocks, &table](QStringList cells) {
        if (!hasBlocks) {
            cells.removeAt(kBlocksColumn);
        }
        table.Add(cells);
    };
    add({QStringLiteral("Kind"), QStringLiteral("In the file"), QStringLiteral("Inside blocks"),
         QStringLiteral("Written"), QStringLiteral("As")});
    for (const SConvertedKind& kind : kinds) {
        add({kind.name, QString::number(kind.inDrawing), QString::number(kind.inBlocks),
             QString::number(kind.written), kind.writtenAs});
    }
    return QStringLiteral("\nCarried over\n") + table.ToText();
}

// Where most of it was lost, the rest as a number of layers.
QString LayersText(std::vector<std::pair<QString, qint64>> layers)
{
    if (layers.empty()) {
        return {};
    }
    std::stable_sort(layers.begin(), layers.end(),
                     [](const auto& one, const auto& other) { return one.second > other.second; });
    QStringList names;
    for (std::size_t i = 0; i < std::min(layers.size(), kLayersShown); ++i) {
        names.append(layers[i].first + QLatin1Char(' ') + QString::number(layers[i].second));
    }
    if (layers.size() > kLayersShown) {
        names.append(QStringLiteral("%1 more").arg(layers.size() - kLayersShown));
    }
    return QStringLiteral(" (layers: ") + names.join(QStringLiteral(", ")) + QLatin1Char(')');
}

QString RemarksText(const std::vector<QString>& remarks)
{
    QString text;
    for (const QString& remark : remarks) {
        text += QLatin1Char('\n') + Printable(remark);
    }
    return remarks.empty() ? text : text + QLatin1Char('\n');
}

QString LossesText(const std::vector<SConversionLoss>& losses)
{
    if (losses.empty()) {
        return QStringLiteral("\nNothing was lost or changed\n");
    }
    CTextTable table({EAlign::Right, EAlign::Left});
    for (const SConversionLoss& loss : losses) {
        table.Add({QString::number(loss.count), Printable(loss.what + LayersText(loss.layers))});
    }
    return QStringLiteral("\nLost or changed (left out where nothing else is said)\n")
        + table.ToText();
}

QJsonObject KindJson(const SConvertedKind& kind)
{
    return {{QStringLiteral("kind"), kind.name},
            {QStringLiteral("in_drawing"), kind.inDrawing},
            {QStringLiteral("in_blocks"), kind.inBlocks},
            {QStringLiteral("written"), kind.written},
            {QStringLiteral("as"), kind.writtenAs}};
}

QJsonObject LossJson(const SConversionLoss& loss)
{
    QJsonObject layers;
    for (const auto& [layer, count] : loss.layers) {
        layers.insert(layer, count);
    }
    return {{QStringLiteral("what"), loss.what},
            {QStringLiteral("count"), loss.count},
            {QStringLiteral("layers"), layers}};
}

} // namespace

QString CConversionReport::ToText() const
{
    return log + QLatin1Char('\n') + KindsText(kinds) + LossesText(losses) + RemarksText(remarks);
}

QJsonObject CConversionReport::ToJson() const
{
    QJsonArray kindRows;
    for (const SConvertedKind& kind : kinds) {
        kindRows.append(KindJson(kind));
    }
    QJsonArray lossRows;
    for (const SConversionLoss& loss : losses) {
        lossRows.append(LossJson(loss));
    }
    QJsonArray remarkRows;
    for (const QString& remark : remarks) {
        remarkRows.append(remark);
    }
    return {{QStringLiteral("kinds"), kindRows},
            {QStringLiteral("losses"), lossRows},
            {QStringLiteral("remarks"), remarkRows},
            {QStringLiteral("log"), log}};
}

} // namespace velorx

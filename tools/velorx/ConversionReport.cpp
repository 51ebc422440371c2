// SPDX-License-Identifier: MIT
#include "tools/velorx/ConversionReport.h"

#include "tools/velorx/TextTable.h"

#include <QStringList>

#include <algorithm>
#include <cstddef>

namespace velorx {

namespace {

using EAlign = CTextTable::EAlign;

constexpr std::size_t kLayersShown = 5;

QString KindsText(const std::vector<SConvertedKind>& kinds)
{
    CTextTable table({EAlign::Left, EAlign::Right, EAlign::Right, EAlign::Right, EAlign::Left});
    table.Add({QStringLiteral("Kind"), QStringLiteral("In the drawing"),
               QStringLiteral("Inside blocks"), QStringLiteral("Written"), QStringLiteral("As")});
    for (const SConvertedKind& kind : kinds) {
        table.Add({kind.name, QString::number(kind.inDrawing), QString::number(kind.inBlocks),
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
    return QStringLiteral("\nLost or changed\n") + table.ToText();
}

} // namespace

QString CConversionReport::ToText() const
{
    return log + QLatin1Char('\n') + KindsText(kinds) + LossesText(losses) + RemarksText(remarks);
}

} // namespace velorx

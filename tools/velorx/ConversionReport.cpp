// SPDX-License-Identifier: MIT
#include "tools/velorx/ConversionReport.h"

#include "tools/velorx/TextTable.h"

namespace velorx {

namespace {

using EAlign = CTextTable::EAlign;

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

QString LossesText(const std::vector<SConversionLoss>& losses)
{
    if (losses.empty()) {
        return QStringLiteral("\nNothing was lost or changed\n");
    }
    CTextTable table({EAlign::Right, EAlign::Left});
    for (const SConversionLoss& loss : losses) {
        table.Add({QString::number(loss.count), Printable(loss.what)});
    }
    return QStringLiteral("\nLost or changed\n") + table.ToText();
}

} // namespace

QString CConversionReport::ToText() const
{
    return log + QLatin1Char('\n') + KindsText(kinds) + LossesText(losses);
}

} // namespace velorx

// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfColour.h"

#include "VelorExchange/dxf/records/Entity.h"

namespace velorx {

QString ColourName(quint32 colour)
{
    if (colour == VelorExchange::dxf::kByBlockColor) {
        return QStringLiteral("by block");
    }
    const quint32 red = colour & 0xFFU;
    const quint32 green = (colour >> 8U) & 0xFFU;
    const quint32 blue = (colour >> 16U) & 0xFFU;
    return QStringLiteral("#%1")
        .arg((red << 16U) | (green << 8U) | blue, 6, 16, QLatin1Char('0'))
        .toUpper();
}

} // namespace velorx

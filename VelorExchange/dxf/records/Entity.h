// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/records/LineStyle.h"

#include <QString>
#include <QtGlobal>

namespace VelorExchange::dxf {

/// Colour value that stands for the colour of the insert.
constexpr quint32 kByBlockColor = 0xFFFFFFFF;

/// The head that most entities share.
struct CEntityDXF
{
    QString layer; ///< Name of the layer as the entity tells it, empty if it tells none.
    quint32 color = 0; ///< Resolved, 0x00BBGGRR; 0xFFFFFFFF means by block.
    double lineWeight =
        0.0; ///< Hundredths of a millimetre as in the file; negative values are markers.
    CLineStyleDXF lineStyle; ///< The reader fills its name alone, resolved through the layer.
};

} // namespace VelorExchange::dxf

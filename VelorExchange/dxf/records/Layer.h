// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtGlobal>

namespace VelorExchange::dxf {

/// A layer of the drawing.
struct CLayerDXF
{
    QString name; ///< Never empty when the reader delivers it.
    QString lineType = QStringLiteral("CONTINUOUS"); ///< Name of the line type.
    quint32 color = 0; ///< 0x00BBGGRR.
    int lineWeight = 0; ///< Hundredths of a millimetre; negative values are markers.
    bool visible = true; ///< False if the layer is off or frozen.
    bool unlocked = true; ///< False if the layer is locked.
};

} // namespace VelorExchange::dxf

// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtGlobal>

namespace VelorExchange::mif {

/// The letters of a text.
struct CFontMIF
{
    /// Name of the typeface. The reader delivers it without its blanks: "TimesNewRoman".
    QString name = QStringLiteral("Arial");
    qint16 style = 0; ///< Style bits of the format.
    quint32 color = 0; ///< 0x00BBGGRR.
    quint32 backColor = 0; ///< 0x00BBGGRR. From a file without it or with 0: 0xFFFFFF.
    double size = 0.0; ///< As the file tells it; the writer always writes 0.
};

} // namespace VelorExchange::mif

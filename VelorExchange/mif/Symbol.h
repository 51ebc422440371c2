// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtGlobal>

namespace VelorExchange::mif {

/// How a point is drawn. The numbers are those of the format and aren't checked.
struct CSymbolMIF
{
    int shape = 0; ///< Number of the symbol; 0 means none. A symbol from a picture file has 0.
    /// Font of the symbol or name of the picture file. A file that tells shape, colour and size only
    /// gives "шрифт не задан".
    QString font;
    quint32 color = 0; ///< 0x00BBGGRR.
    int size = 12; ///< Points.
    int style = 0; ///< Style bits of the font or of the picture.
    double angle = 0.0; ///< Radians.
};

} // namespace VelorExchange::mif

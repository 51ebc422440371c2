// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <array>

namespace VelorExchange::pnr {

/// How a line without a classifier code is drawn.
struct PnrLineImage
{
    qint32 color = 0; ///< Red in the low byte.
    qint32 thickness = 0; ///< In thousandths of a millimetre.
};

/// How an area without a classifier code is filled.
struct PnrSquareImage
{
    qint32 color = 0; ///< Red in the low byte.
};

/// The mask of a small ring in the upper left corner: 32 rows of 4 bytes, the high bit first.
constexpr std::array<quint8, 128> kPnrRingMask = {0x60, 0,    0, 0, 0x90, 0,   0,
                                                  0,    0x90, 0, 0, 0,    0x60};

/// How a point without a classifier code is drawn: a mask of 32 by 32 bits in one colour.
struct PnrPointImage
{
    qint32 recordSize = 152; ///< Bytes of this record in a binary file.
    qint32 count = 1; ///< Number of masks.
    qint32 size = 8000; ///< Height of the mark in thousandths of a millimetre.
    qint32 posH = 0; ///< Horizontal place of the anchor in the mask.
    qint32 posV = 0; ///< Vertical place of the anchor in the mask.
    qint32 color = 0; ///< Red in the low byte.
    std::array<quint8, 128> bits = kPnrRingMask; ///< 32 rows of 4 bytes, the high bit first.
};

/// How a text is drawn.
struct PnrTextImage
{
    quint32 color = 0; ///< Of the letters; red in the low byte.
    quint32 bColor = 0xFFFFFFFF; ///< Of the background; 0xFFFFFFFF for none.
    quint32 sColor = 0xFFFFFFFF; ///< Of the shadow; 0xFFFFFFFF for none.
    quint32 height = 1800; ///< In thousandths of a millimetre.
    quint16 weight = 200; ///< Weight of the font.
    quint8 reserved1 = 0; ///< Kept as it is.
    quint8 reserved2 = 0; ///< Kept as it is.
    /// Written: 20 to 31, left, right, centre of the base line, then the same of middle, bottom and
    /// top. Read from the text form: the same without the base of 20.
    qint16 align = 24;
    qint16 reserved3 = 0; ///< Kept as it is.
    quint8 wide = 0; ///< Width of the letters.
    quint8 horizontal = 0; ///< 1 for texts that stay horizontal.
    quint8 italic = 0; ///< 1 for slanted letters.
    quint8 uline = 0; ///< 1 for underlined letters.
    quint8 xline = 0; ///< 1 for letters struck out.
    quint8 reserved4 = 0; ///< Kept as it is.
    quint8 charset = 204; ///< 204 is Cyrillic.
    quint8 reserved5 = 0; ///< Kept as it is.
    QString fontName = QStringLiteral("Arial"); ///< A binary file keeps 32 characters of it.
};

} // namespace VelorExchange::pnr

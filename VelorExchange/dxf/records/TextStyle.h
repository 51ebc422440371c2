// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace VelorExchange::dxf {

/// A text style.
struct CTextStyleDXF
{
    QString name = QStringLiteral("STANDARD"); ///< Group 2.
    QString fontFile =
        QStringLiteral("txt"); ///< Group 3. The reader puts "Arial" where the group is absent.
    QString faceName; ///< Name of a TrueType font; not filled by the reader.
    bool bold = false; ///< Not filled by the reader.
    bool italic = false; ///< Not filled by the reader.
    double widthFactor = 1.0; ///< Width of a letter by its height, relative to the font.
    double obliqueAngle = 0.0; ///< Slant of the letters: radians read, degrees written.
    double height = 0.0; ///< Fixed height in drawing units, 0 for none.
};

} // namespace VelorExchange::dxf

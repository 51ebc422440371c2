// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtGlobal>

#include <vector>

namespace VelorExchange::dxf {

/// A style of multilines.
struct CMLineStyleDXF
{
    QString name; ///< Empty where the file's record is unusable.
    QString body; ///< The style's groups as text, for the writer alone.
    double startAngle = 1.5707963267948966; ///< Angle of the start cap, radians.
    double endAngle = 1.5707963267948966; ///< Angle of the end cap, radians.
    std::vector<double> offsets; ///< Distance of each line from the axis; not filled by the reader.
    std::vector<QString> lineTypes; ///< Line type of each line.
    std::vector<quint32> colors; ///< Colour of each line, 0x00BBGGRR.
};

} // namespace VelorExchange::dxf

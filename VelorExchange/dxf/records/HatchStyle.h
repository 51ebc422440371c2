// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

namespace VelorExchange::dxf {

/// One family of parallel lines of a hatch pattern.
struct CHatchLineDXF
{
    std::vector<double>
        dashes; ///< Drawing units: positive a dash, negative a gap; empty for a solid line.
    double angle = 0.0; ///< Degrees, counter-clockwise.
    double baseX = 0.0; ///< A point of the first line, drawing units.
    double baseY = 0.0; ///< A point of the first line, drawing units.
    double offsetX = 0.0; ///< From one line to the next, drawing units.
    double offsetY = 0.0; ///< From one line to the next, drawing units.
};

/// A hatch pattern. The drawing reader fills `name` and `isDouble` alone.
struct CHatchStyleDXF
{
    std::vector<CHatchLineDXF> lines; ///< The families of lines; empty for a solid fill.
    QString name = QStringLiteral("SOLID"); ///< Name of the pattern.
    QString description; ///< For people.
    bool isDouble = false; ///< True if the pattern is drawn a second time across.
};

} // namespace VelorExchange::dxf

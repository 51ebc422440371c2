// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtGlobal>

#include <boost/variant2/variant.hpp>

#include <vector>

namespace VelorExchange::dxf {

/// A text inside a line style.
struct CLineTextDXF
{
    bool absolute = false; ///< True if `rotation` counts from the X axis and not from the line.
    double rotation = 0.0; ///< Degrees, counter-clockwise.
    double scale = 1.0; ///< Factor on the height of the text style.
    double offsetX = 0.0; ///< Shift along the line, in drawing units.
    double offsetY = 0.0; ///< Shift across the line, in drawing units.
    QString text; ///< What is drawn.
    QString style; ///< Name of the text style it is drawn in.
};

/// A shape inside a line style.
struct CLineShapeDXF
{
    bool absolute = false; ///< True if `rotation` counts from the X axis and not from the line.
    double rotation = 0.0; ///< Degrees, counter-clockwise.
    double scale = 1.0; ///< Factor on the size of the shape.
    double offsetX = 0.0; ///< Shift along the line, in drawing units.
    double offsetY = 0.0; ///< Shift across the line, in drawing units.
    int number = 0; ///< Number of the shape in its file.
    QString style; ///< Name of the shape file.
};

/// One element of a line style: 0 a dash length in drawing units (positive a dash, negative a gap,
/// 0 a dot), 1 a text, 2 a shape.
using CLineElementDXF = boost::variant2::variant<double, CLineTextDXF, CLineShapeDXF>;

/// A line style. The drawing reader fills the name alone; the line type files fill all of it.
struct CLineStyleDXF
{
    std::vector<CLineElementDXF> pattern; ///< One period of the pattern; empty for a solid line.
    QString name = QStringLiteral("CONTINUOUS"); ///< "BYBLOCK" marks the style of the insert.
    QString description; ///< For people.
};

} // namespace VelorExchange::dxf

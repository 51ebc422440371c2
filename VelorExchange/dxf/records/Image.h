// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/foundation/Point.h"

#include <QString>

#include <vector>

namespace VelorExchange::dxf {

/// IMAGE joined to its IMAGEDEF.
struct CImageDXF
{
    QString layer; ///< Name of the layer.
    std::vector<CPoint3D> clip; ///< Clip outline in pixels, z 0; empty for none.
    QString filePath; ///< Path as the drawing tells it.
    QString name; ///< File name without an extension of two or three characters.
    CPoint2D origin; ///< Lower left corner, drawing units.
    double scaleX = 1.0; ///< Drawing units per pixel along the image.
    double scaleY = 1.0; ///< Drawing units per pixel across the image.
    double widthPixels = 0.0; ///< Width in pixels.
    double heightPixels = 0.0; ///< Height in pixels.
    double rotation = 0.0; ///< Radians, counter-clockwise.
};

} // namespace VelorExchange::dxf

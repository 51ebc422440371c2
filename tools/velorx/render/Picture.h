// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/ConversionReport.h"
#include "VelorExchange/dxf/records/IDXFProgress.h"

#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <string_view>

namespace velorx {

/// Pixels an inch of paper. Pictures for the screen and pictures for paper are of one size by it.
constexpr double kPixelsPerInch = 96.0;

enum class EPictureFormat { Png, Svg, Pdf };

/// One picture to make.
struct SPictureJob
{
    QString source; ///< Path of a file that can be opened.
    std::string_view family; ///< Name of its family.
    QString target; ///< Path of the file to write, which exists and is empty.
    QString name; ///< What the picture is called in the end.
    EPictureFormat format = EPictureFormat::Png;
    QStringList layers; ///< Draw these only, shown or not; empty for all that are shown.
    int width = 0; ///< Pixels; 0 for a size that suits the drawing.
    int height = 0; ///< Pixels; 0 if and only if `width` is.
    quint32 background = 0xFFFFFFFF; ///< 0xAARRGGBB.
    double mostSvg = 300e6; ///< Characters of an SVG picture, which stay in memory until the end.
    VelorExchange::dxf::IDXFProgress* progress = nullptr; ///< Not owned, can be null.
};

/// Why no job could be done: in words, where the program was built without pictures; otherwise empty.
QString WhyNoPictures();

/// Does a job and fills the report. Returns an error in words, or an empty string for success.
QString DrawPicture(const SPictureJob& job, CConversionReport& report);

} // namespace velorx

// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/ConversionReport.h"
#include "VelorExchange/dxf/records/IDXFProgress.h"

#include <QString>

#include <string_view>

namespace velorx {

/// What the command line says about a conversion.
struct SConversionOptions
{
    int drawingVersion = 1018; ///< 1015 or 1018, for drawings.
    int precision = 6; ///< Decimals of numbers.
    double chord = 0.01; ///< Curves become chords that are off by no more than this, file units.
    int scale = 0; ///< Denominator of the scale of SXF maps; 0 for that of the source.
};

/// One conversion to do.
struct SConversionJob
{
    QString source; ///< Path of a file that can be opened.
    QString target; ///< Path of the file to write, which exists and is empty.
    QString targetName; ///< What the target is called in the end, for the report.
    SConversionOptions options;
    VelorExchange::dxf::IDXFProgress* progress = nullptr; ///< Not owned, can be null.
};

/// Does a job and fills the report. Returns an error in words, or an empty string for success. A file that
/// cannot be written throws `FileError`.
using CConversion = QString (*)(const SConversionJob& job, CConversionReport& report);

/// Does a job, by the families' own way from one to the other where there is one, otherwise through the
/// stream of features. `from` and `to` are names of families, "SXF text" as a target only. Can be called on
/// several threads at once.
QString Convert(std::string_view from, std::string_view to, const SConversionJob& job,
                CConversionReport& report);

/// Any family to any other through the stream of features. `from` and `to` are names of families.
QString ConvertThroughFeatures(std::string_view from, std::string_view to,
                               const SConversionJob& job, CConversionReport& report);

/// Drawing to drawing: elements are handed on as they are read.
QString ConvertDxfToDxf(const SConversionJob& job, CConversionReport& report);

/// Map of either form to a map of the binary form: objects are handed on as they are read.
QString ConvertSxfToSxf(const SConversionJob& job, CConversionReport& report);

/// Map of either form to a map of the text form.
QString ConvertSxfToSxfText(const SConversionJob& job, CConversionReport& report);

} // namespace velorx

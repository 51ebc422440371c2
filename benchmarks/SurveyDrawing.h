// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>

namespace bench {

/// How the generated drawing looks.
struct CSurveyOptions
{
    std::uint64_t bytes = 10U << 20U; ///< Entities are written until the file has this size.
    const char* lineEnd = "\r\n"; ///< Of every line.
    int layers = 40; ///< In the LAYER table, all of them used.
    bool onePolyline = false; ///< A single LWPOLYLINE in place of the usual mix.
};

/// Writes a drawing such as a survey office hands over: contours, spot heights with texts, symbols with
/// attributes, buildings with hatches, roads, breaklines. The same options give the same bytes. Text is
/// Windows-1251. False if the file took less than it was given.
bool WriteSurveyDrawing(std::FILE* file, const CSurveyOptions& options);

} // namespace bench

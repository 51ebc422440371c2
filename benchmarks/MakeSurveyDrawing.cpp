// SPDX-License-Identifier: MIT
// make_survey_drawing MEGABYTES [crlf|lf|cr] [LAYERS] [mix|polyline]: a drawing on standard output.
#include "SurveyDrawing.h"

#include <cstdlib>
#include <cstring>

int main(int argc, char** argv)
{
    if (argc < 2) {
        std::fputs("usage: make_survey_drawing MEGABYTES [crlf|lf|cr] [LAYERS] [mix|polyline]\n",
                   stderr);
        return 2;
    }
    bench::CSurveyOptions options;
    options.bytes = static_cast<std::uint64_t>(std::atof(argv[1]) * (1U << 20U));
    if (argc > 2 && std::strcmp(argv[2], "crlf") != 0) {
        options.lineEnd = std::strcmp(argv[2], "cr") == 0 ? "\r" : "\n";
    }
    if (argc > 3) {
        options.layers = std::atoi(argv[3]);
    }
    options.onePolyline = argc > 4 && std::strcmp(argv[4], "polyline") == 0;
    return bench::WriteSurveyDrawing(stdout, options) ? 0 : 1;
}

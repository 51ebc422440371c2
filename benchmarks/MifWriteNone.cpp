// SPDX-License-Identifier: MIT
// mif_write_none FOLDER COUNT: only generates the objects, which the writing programs do too.
#include "MifSurvey.h"

#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv)
{
    bench::CMifSurvey survey;
    double sum = 0;
    for (long i = argc > 2 ? std::atol(argv[2]) : 0; i > 0; --i) {
        sum += survey.Next().coordinates[0];
    }
    std::printf("sum %.3f\n", sum);
    return 0;
}

// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace velorx {

/// What `velorx info` is asked for beyond the file.
struct SInfoOptions
{
    int rows = 0; ///< How many objects of a table to show with their attributes.
    QString library; ///< Panorama's closed library, for RSC classifiers; empty without one.
};

} // namespace velorx

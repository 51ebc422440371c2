// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/info/Listed.h"

#include <QString>

namespace velorx {

/// The headline of a part of a report, behind an empty line: "Layers (3)".
QString Title(const char* name, qint64 count);

/// A line that tells how many entries are not shown; nothing if that is none.
QString More(qint64 left);

/// The line for the entries that a list does not keep.
template <class T>
QString Rest(const CListed<T>& list)
{
    return More(list.total - static_cast<qint64>(list.first.size()));
}

} // namespace velorx

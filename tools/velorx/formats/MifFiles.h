// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

namespace velorx {

/// The two files of a table.
struct SMifFiles
{
    QString name; ///< Both without their ending, as the library wants it.
    QString table; ///< The ".mif".
    QString rows; ///< The ".mid", which need not exist.
};

/// The table whose ".mif" is `path`. Nothing if the library, which is told a name without ending,
/// would open another file.
std::optional<SMifFiles> FindMifFiles(const QString& path);

/// Why `FindMifFiles` finds nothing, in words.
QString MifFilesProblem();

} // namespace velorx

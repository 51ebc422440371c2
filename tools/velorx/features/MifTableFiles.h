// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/MifDetails.h"

#include <QString>

#include <functional>
#include <vector>

namespace velorx {

/// The pair of files of a table. Paths as `QFile` takes them.
struct SMifTablePaths
{
    QString table; ///< The ".mif".
    QString rows; ///< The ".mid".
};

/// What is to be different from what the library wrote.
struct SMifTableChanges
{
    /// The type of a column in the header; empty to leave what the library wrote.
    std::function<QString(const QString& column)> typeOf;
    bool dropsFirst =
        false; ///< Without the first column, which is a text, `firstValue` in every row.
    QString firstValue;
    std::vector<SMifDetail> details; ///< Of its objects, in their order.
};

/// Puts a pair that the library wrote to another place, with changes. Files that lie there already are
/// replaced, and their rights kept. Throws `FileError`; then neither pair is whole.
void PutMifTable(const SMifTablePaths& from, const SMifTablePaths& to,
                 const SMifTableChanges& changes);

/// Writes a pair without objects in the form of the library, which writes none. Throws `FileError`.
void WriteEmptyMifTable(const SMifTablePaths& to);

} // namespace velorx

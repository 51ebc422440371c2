// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/formats/MifLines.h"

#include <QString>

#include <optional>

namespace velorx {

/// Follows which rows of the ".mid" the library takes for the objects of the ".mif".
///
/// The library tells neither rows nor objects, but it reports its position ahead of each object and
/// of each line between objects. What came between two reports makes one object, which takes one
/// row, and where nothing came this class looks at the line itself: it opens a collection, whose
/// parts share a row, or it is an object that has a row but nothing to deliver, such as a region
/// without rings. Holds one line.
class CMifRows
{
public:
    /// `table` is the ".mif" and `rows` the ".mid", which need not exist.
    CMifRows(const QString& table, const QString& rows);

    /// The reader is at byte `position`, in its low 32 bits, behind the line that it looks at.
    void Report(quint32 position);

    /// The reader has delivered a record. True if it is the first of its object.
    bool Deliver();

    /// Rows taken by all that came before the last report.
    qint64 Taken() const { return taken; }

    /// Rows of the ".mid" that were not taken; nothing if there is no ".mid".
    std::optional<qint64> Left() const;

    /// Bytes of the ".mif" ahead of the last report.
    qint64 Position() const { return position; }

private:
    void EndObject(qint64 end);
    void TakeRow();

    CMifLines lines;
    std::optional<qint64> total;
    qint64 taken = 0;
    quint32 repeats = 0; ///< Objects that are still to keep the row at hand.
    bool hasRow = false;
    bool hasRecord = false; ///< The object at hand has delivered one.
    bool isStarted = false;
    qint64 position = 0;
    qint64 before = 0; ///< The position at the report before, where the line at hand can start.
};

} // namespace velorx

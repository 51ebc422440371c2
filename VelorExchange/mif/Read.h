// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/foundation/Export.h"

#include <QString>

namespace VelorExchange::mif {

class IMIFReader;

/// Reads a pair of files in one pass and hands each object to `reader` as soon as it is read.
///
/// `path` is the name without extension: ".mif" and ".mid" are appended, or ".MIF" and ".MID" where
/// those names don't exist. Objects and rows are matched by their order only. Text goes through
/// `QTextCodec::codecForLocale()`, which the host sets to the code page of the file: the header's own
/// character set isn't looked at. Header clauses other than the delimiter and the columns have no
/// effect, and coordinates go out as they stand in the file. `reader` isn't owned and not null.
///
/// Returns false if the ".mif" can't be opened (the host hears nothing then) or its header can't be
/// read. A ".mid" that can't be opened is no failure: the objects come without attributes. An object
/// that can't be read is passed over in silence and takes no row. Throws `std::length_error` for a
/// count of rings, sections, points, vertices or columns that is negative or whose elements would take
/// more than 2^31 - 1 bytes.
VELOREXCHANGE_EXPORT bool Read(const QString& path, IMIFReader* reader);

} // namespace VelorExchange::mif

// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/records/IDXFReader.h"
#include "VelorExchange/foundation/Export.h"

#include <QString>

namespace VelorExchange::dxf {

/// Reads the text drawing at `path` in one pass and delivers it to `reader`, which is not null and
/// stays the caller's.
///
/// Text of versions below AC1021 goes through `QTextCodec::codecForLocale()` (IBM866 for AC1006), and
/// from AC1021 on it is UTF-8. Memory grows with the largest single object, the block in hand, the layer
/// table and the images that wait for their file names, not with the drawing.
///
/// False if the file cannot be opened (nothing was called then) or if it ends inside a block. Anything
/// else that is wrong with a file is passed over: a number that does not convert is 0, an unknown
/// object is skipped. It throws only what `reader` throws, and `std::bad_alloc`.
VELOREXCHANGE_EXPORT bool Read(const QString& path, IDXFReader* reader);

/// Replays the entities of `block` through `reader`, scaled, moved and rotated by `insert` (rotation in
/// degrees, as the reader delivers it), with colours and line styles by block taken from it.
///
/// A nested insert arrives at `OnInsert`, composed with this one; the host calls again for it. Ellipses,
/// images and attribute definitions are not delivered. Always true.
VELOREXCHANGE_EXPORT bool ParseBlock(const CBlockDXF& block, const CInsertDXF& insert,
                                     IDXFReader* reader);

} // namespace VelorExchange::dxf

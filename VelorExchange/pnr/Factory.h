// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/foundation/Export.h"
#include "VelorExchange/pnr/IPnrReader.h"
#include "VelorExchange/pnr/IPnrWriter.h"

#include <QString>

#include <memory>

namespace VelorExchange::pnr {

/// A reader of the text form if `text`, else of the binary form, to be given back to `DeleteReader`.
/// `context` stays the host's and outlives the reader.
VELOREXCHANGE_EXPORT IPnrReader* CreateReader(bool text, IPnrReader::IContext* context);

/// Ends the reader's life; null is ignored.
VELOREXCHANGE_EXPORT void DeleteReader(IPnrReader* reader);

/// Tells in `text` whether the file is to be read as the text form. Whatever is not a binary file
/// of version 4 counts as text, also one of another version or one shorter than twelve bytes. False
/// if the file can't be opened; `text` stays as it was then.
VELOREXCHANGE_EXPORT bool IsTxtFile(const QString& fileName, bool& text);

/// A writer of the text form if `text`, else of the binary form, to be given back to
/// `DeletePnrWriter`. `second` has no effect: what picks the kind of map is `userMap` of `Init`.
/// `context` may be null.
VELOREXCHANGE_EXPORT IPnrWriter* CreatePnrWriter(bool text, bool second,
                                                 std::shared_ptr<IPnrWriter::IContext> context);

/// Ends the writer's life and that of its temporary files; null is ignored.
VELOREXCHANGE_EXPORT void DeletePnrWriter(IPnrWriter* writer);

} // namespace VelorExchange::pnr

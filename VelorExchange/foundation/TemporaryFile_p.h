// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <QTemporaryFile>

#include <memory>

namespace VelorExchange {

/// An open temporary file, or null if it could not be opened.
std::unique_ptr<QTemporaryFile> OpenTemporaryFile();

/// Appends the whole of `source`, wherever it stands, to `target` at its current position, through
/// a buffer of 1 MiB. Throws `FileError` built on the file whose operation failed.
void AppendFileContents(QFile& target, QFile& source);

} // namespace VelorExchange

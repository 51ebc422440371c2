// SPDX-License-Identifier: MIT
#include "VelorExchange/foundation/FileError.h"

namespace VelorExchange {

FileError::FileError(const QFile& file) : error(file.error()), fileName(file.fileName()) { }

FileError::~FileError() = default;

const char* FileError::what() const noexcept
{
    return "Unknown exception";
}

} // namespace VelorExchange

// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/foundation/Export.h"

#include <QFile>
#include <QString>

#include <exception>

namespace VelorExchange {

/// Thrown by the writers when an operation on a file fails. Readers never throw it.
///
/// It carries no message: `what` yields "Unknown exception" on every instance. A handler that
/// wants to say what went wrong reads `error` and `fileName`.
class VELOREXCHANGE_EXPORT FileError : public std::exception
{
public:
    /// Takes code and name from `file` at once; what later happens to the file changes nothing here.
    explicit FileError(const QFile& file);
    FileError(const FileError& other) = default; ///< With code and name.
    FileError(FileError&& other) = default; ///< With code and name.
    FileError& operator=(const FileError& other) = default; ///< With code and name.
    FileError& operator=(FileError&& other) = default; ///< With code and name.
    ~FileError() override;

    /// Always "Unknown exception".
    const char* what() const noexcept override;

    QFile::FileError error; ///< The file's error code when the exception was made.
    QString fileName; ///< The file's name as `QFile::fileName` told it.
};

} // namespace VelorExchange

// SPDX-License-Identifier: MIT
#pragma once

#include <QTemporaryFile>

#include <cstddef>
#include <memory>
#include <vector>

namespace VelorExchange::pnr {

/// A temporary file that takes bytes through a block of its own and remembers their sum, and
/// whether the device took them all. A spool without a file takes nothing.
class CSpool
{
public:
    /// Starts with a fresh file, or with none if there is no place for it.
    CSpool();

    bool IsOpen() const { return file && file->isOpen(); }
    void Close();

    /// False if these bytes, or earlier ones, could not be written. A full block may hide that
    /// until later.
    bool Append(const char* data, std::size_t size);

    /// Hands the block to the file; false if not all bytes so far are in it.
    bool Flush();

    /// The sum of all bytes as signed 8-bit numbers.
    quint32 Sum() const { return sum; }

    /// The file itself; only where `IsOpen`.
    QTemporaryFile& File() { return *file; }

private:
    bool Write(const char* data, std::size_t size);

    std::unique_ptr<QTemporaryFile> file;
    std::vector<char> block;
    std::size_t used = 0;
    quint32 sum = 0;
    bool failed;
};

} // namespace VelorExchange::pnr

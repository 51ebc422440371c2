// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <QString>

#include <cstddef>
#include <vector>

namespace VelorExchange::pnr {

/// Reads a file front to back through one buffer. The buffer holds a block, or the span last asked
/// for where that is longer; never more than the file has.
class CBlockFile
{
public:
    /// Opens the file for reading; false on failure.
    bool Open(const QString& fileName);
    void Close();

    /// Goes back, or ahead, to `position`.
    void Seek(qint64 position);

    /// `size` bytes from the current position on, or null if the file ends before. Stays valid until
    /// the next call.
    const char* Peek(std::size_t size);

    /// Passes over bytes that `Peek` has shown.
    void Advance(std::size_t size) { begin += size; }

    /// What the buffer holds of the rest, filled if it is empty; `size` is 0 at the end of the file.
    const char* PeekBlock(std::size_t& size);

private:
    bool Fill(std::size_t size);

    QFile file;
    qint64 fileSize = 0;
    std::vector<char> buffer;
    std::size_t begin = 0; // of the bytes not yet used, in the buffer
    std::size_t end = 0;
    qint64 position = 0; // in the file, of the end of the buffer
};

} // namespace VelorExchange::pnr

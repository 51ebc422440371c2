// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>

#include <cstddef>
#include <memory>

namespace VelorExchange::mif {

/// A piece of a line, in the bytes of the file.
struct CSpan
{
    const char* begin = nullptr;
    const char* end = nullptr;

    std::size_t Size() const { return static_cast<std::size_t>(end - begin); }
    bool IsEmpty() const { return begin == end; }
};

/// Cuts a file into lines through one buffer of 256 KiB, which grows only for a longer line.
class CLineScanner
{
public:
    /// Forgets what was read and starts at the position of `file`.
    void Start(const QFile& file);

    /// True if no byte is left; reads ahead to know it.
    bool AtEnd(QFile& file) { return begin == end && !Refill(file); }

    /// The next line without its line feed, and cut at its first NUL, as Qt cuts when it decodes a byte
    /// array. It stays valid until the next line is read: a call that finds the end leaves it. False
    /// at the end of the file.
    bool Next(QFile& file, CSpan& line);

    /// A line feed stands right behind the line taken last.
    bool HasLineFeed() const { return hasLineFeed; }

    /// Position of the next line in the file.
    qint64 Position() const { return readUpTo - (end - begin); }

private:
    bool Refill(QFile& file);
    const char* FindLineEnd(QFile& file);

    std::unique_ptr<char[]> buffer;
    std::size_t capacity = 0;
    const char* begin = nullptr; // what isn't taken yet
    const char* end = nullptr;
    qint64 readUpTo = 0;
    bool hasNul = false; // whether a NUL has been seen in the file
    bool hasLineFeed = false;
};

} // namespace VelorExchange::mif

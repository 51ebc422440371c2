// SPDX-License-Identifier: MIT
#pragma once

#include <QIODevice>
#include <QtGlobal>

#include <cstddef>
#include <string_view>
#include <vector>

namespace velorx {

/// What ends a line of a text file.
enum class ELineEnd {
    Feed, ///< A line feed, with or without a carriage return ahead of it.
    Any, ///< A carriage return alone as well.
};

/// Goes over a text file line by line and knows where it is. Memory does not follow the lines: of one that
/// is longer than `kLongest` bytes only so much is seen.
class CTextLines
{
public:
    static constexpr std::size_t kLongest = 1024 * 1024;

    /// `source` is open for reading and outlives this object.
    CTextLines(QIODevice& source, ELineEnd end);

    /// Goes to the next line; false at the end of the file. What stands behind the last line end is a line if
    /// it is not empty.
    bool Next();

    /// The line without its end, `kLongest` bytes at most; good until the next call of `Next`.
    std::string_view Text() const { return text; }

    /// How long the line is, in bytes.
    qint64 Length() const { return length; }

    /// The line's number, from 1.
    qint64 Line() const { return number; }

    /// Where in the file the line starts, in bytes.
    qint64 Byte() const { return start; }

private:
    bool ReadMore();
    std::size_t FindEnd(std::size_t from) const;
    void TakeLine(std::size_t end, qint64 dropped);
    void SkipFeed();

    QIODevice& device;
    ELineEnd lineEnd;
    std::vector<char> buffer;
    std::size_t used = 0; ///< Of the buffer, what has been handed out.
    std::size_t filled = 0; ///< Of the buffer.
    qint64 position = 0; ///< In the file, of what follows.
    bool isBehindReturn = false; ///< A line feed that comes next belongs to the line end before it.
    std::string_view text;
    qint64 length = 0;
    qint64 number = 0;
    qint64 start = 0;
};

/// `text` without blanks, tabs and carriage returns on both sides.
std::string_view WithoutBlanks(std::string_view text);

} // namespace velorx

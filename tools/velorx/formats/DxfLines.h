// SPDX-License-Identifier: MIT
#pragma once

#include <QIODevice>

#include <cstddef>
#include <string_view>
#include <vector>

namespace velorx {

/// Cuts a text drawing into lines as the library's reader does, and keeps all of their bytes: a line ends
/// behind a line feed or after 999 bytes. A carriage return ends it too, unless it stands in the last two of
/// these bytes, where it is half of a line end.
class CDxfLines
{
public:
    static constexpr std::size_t kLongest = 999;

    /// `source` is open for reading and outlives this object.
    explicit CDxfLines(QIODevice& source);

    /// Goes to the next line; false at the end of the file.
    bool Next();

    /// The line with whatever ends it, 999 bytes at most; good until the next call of `Next`.
    std::string_view Line() const { return line; }

private:
    void ReadMore();

    QIODevice& device;
    std::vector<char> buffer;
    std::size_t begin = 0; ///< Of what is not yet used in the buffer.
    std::size_t end = 0;
    bool hasEnded = false; ///< The device has nothing more.
    std::string_view line;
};

} // namespace velorx

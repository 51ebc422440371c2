// SPDX-License-Identifier: MIT
#pragma once

#include <QIODevice>

#include <string_view>
#include <vector>

namespace velorx {

/// Goes over a text drawing pair by pair, with all three kinds of line ends, and without a look at what
/// the pairs mean.
class CDxfTagScan
{
public:
    /// `source` is open for reading and outlives this object.
    explicit CDxfTagScan(QIODevice& source);

    /// Goes to the next pair; false at the end of the file.
    bool Next();

    /// The group code, -1 for one that is no number.
    int Code() const { return code; }

    /// The value without blanks around it, up to 64 KiB of it; good until the next call of `Next`.
    std::string_view Value() const { return value; }

private:
    bool ReadLine(std::string_view& line);
    bool ReadMore();

    QIODevice& device;
    std::vector<char> buffer;
    std::size_t begin = 0; ///< Of what is not yet used in the buffer.
    std::size_t end = 0;
    bool isBehindReturn = false; ///< A line feed that comes next belongs to the line end before it.
    int code = -1;
    std::string_view value;
};

} // namespace velorx

// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/read/LineReader_p.h"

#include <QIODevice>

#include <algorithm>
#include <cstring>
#include <utility>

namespace VelorExchange::dxf {

namespace {

constexpr std::ptrdiff_t kBlock = 262144;
constexpr std::ptrdiff_t kSlack = 64; // zero bytes behind the last one, for looks ahead

std::unique_ptr<char[]> NewBuffer(std::ptrdiff_t capacity)
{
    return std::unique_ptr<char[]>(new char[static_cast<std::size_t>(capacity + kSlack)]);
}

} // namespace

CLineReader::CLineReader(QIODevice& source)
    : device(source), buffer(NewBuffer(kBlock)), capacity(kBlock), bufferPosition(source.pos())
{
    cursor = buffer.get();
    fill = cursor;
    std::memset(buffer.get(), 0, kSlack);
}

// The memory of a line feed found far ahead keeps files without any from being searched again and
// again.
const char* CLineReader::NextLineFeed()
{
    if (lineFeed == nullptr || lineFeed < cursor) {
        const void* found = std::memchr(cursor, '\n', static_cast<std::size_t>(fill - cursor));
        lineFeed = found != nullptr ? static_cast<const char*>(found) : fill;
    }
    return lineFeed;
}

CRawLine CLineReader::NextLine()
{
    const char* const begin = cursor;
    const char* end = begin + std::min(fill - begin, kLongestLine);
    const char* const lf = NextLineFeed();
    if (lf < end) {
        end = lf + 1;
    }
    cursor = end;
    if (end - begin > 2) {
        const void* cr = std::memchr(begin, '\r', static_cast<std::size_t>(end - begin - 2));
        if (cr != nullptr) {
            end = static_cast<const char*>(cr);
            cursor = end + 1;
        }
    }
    return {begin, end};
}

// Moves what has to stay to the front, or to a larger buffer when there is too little room.
void CLineReader::MakeRoom()
{
    const std::ptrdiff_t size = fill - Base();
    const std::ptrdiff_t at = cursor - Base();
    std::unique_ptr<char[]> old;
    const char* const from = Base();
    if (size > capacity / 2) {
        capacity *= 2;
        old = std::exchange(buffer, NewBuffer(capacity));
    }
    std::memmove(buffer.get(), from, static_cast<std::size_t>(size));
    bufferPosition += kept;
    kept = 0;
    cursor = buffer.get() + at;
    fill = buffer.get() + size;
}

void CLineReader::Refill()
{
    MakeRoom();
    while (fill - cursor < kReadAhead && !ended) {
        char* const to = buffer.get() + (fill - buffer.get());
        const qint64 got = device.read(to, buffer.get() + capacity - fill);
        if (got <= 0) {
            ended = true;
        } else {
            fill += got;
        }
    }
    std::memset(buffer.get() + (fill - buffer.get()), 0, kSlack);
    lineFeed = nullptr; // pointers have moved, and there is more to search
}

} // namespace VelorExchange::dxf

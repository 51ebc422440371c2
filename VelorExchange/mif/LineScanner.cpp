// SPDX-License-Identifier: MIT
#include "VelorExchange/mif/LineScanner_p.h"

#include <cstring>

namespace VelorExchange::mif {

namespace {

constexpr std::size_t kBlockSize = 262144;

const char* Find(char c, const char* begin, const char* end)
{
    return static_cast<const char*>(
        std::memchr(begin, static_cast<unsigned char>(c), static_cast<std::size_t>(end - begin)));
}

} // namespace

void CLineScanner::Start(const QFile& file)
{
    begin = end = nullptr;
    readUpTo = file.pos();
    hasNul = false;
}

// Adds a block behind what isn't taken yet. At the end of the file the bytes stay where they are, so
// that the line taken last stays valid.
bool CLineScanner::Refill(QFile& file)
{
    if (file.atEnd()) {
        return false;
    }
    const auto kept = static_cast<std::size_t>(end - begin);
    if (!buffer || kept + kBlockSize > capacity) {
        const std::size_t wanted = kept == 0 ? kBlockSize : kept * 2 + kBlockSize;
        std::unique_ptr<char[]> larger(new char[wanted]);
        std::memcpy(larger.get(), begin == nullptr ? larger.get() : begin, kept);
        buffer = std::move(larger);
        capacity = wanted;
    } else {
        std::memmove(buffer.get(), begin, kept);
    }
    char* const target = buffer.get() + kept;
    const qint64 got = file.read(target, static_cast<qint64>(capacity - kept));
    begin = buffer.get();
    end = target + (got > 0 ? got : 0);
    readUpTo += got > 0 ? got : 0;
    hasNul = hasNul || Find('\0', target, end) != nullptr;
    return got > 0;
}

// Null if the rest of the file is one line without a line feed.
const char* CLineScanner::FindLineEnd(QFile& file)
{
    std::ptrdiff_t searched = 0;
    for (;;) {
        if (begin != end) {
            if (const char* const found = Find('\n', begin + searched, end)) {
                return found;
            }
        }
        searched = end - begin;
        if (!Refill(file)) {
            return nullptr;
        }
    }
}

bool CLineScanner::Next(QFile& file, CSpan& line)
{
    const char* const lineEnd = FindLineEnd(file);
    if (lineEnd == nullptr && begin == end) {
        return false;
    }
    line = {begin, lineEnd == nullptr ? end : lineEnd};
    begin = lineEnd == nullptr ? end : lineEnd + 1;
    hasLineFeed = lineEnd != nullptr;
    if (hasNul && !line.IsEmpty()) {
        if (const char* const nul = Find('\0', line.begin, line.end)) {
            line.end = nul;
            hasLineFeed = false;
        }
    }
    return true;
}

} // namespace VelorExchange::mif

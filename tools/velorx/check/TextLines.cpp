// SPDX-License-Identifier: MIT
#include "tools/velorx/check/TextLines.h"

#include <algorithm>
#include <cstring>

namespace velorx {

namespace {

constexpr std::size_t kBlockSize = 262144;

bool IsBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r';
}

} // namespace

CTextLines::CTextLines(QIODevice& source, ELineEnd end)
    : device(source), lineEnd(end), buffer(kBlockSize)
{
}

// Moves what is not handed out to the front and fills the rest, making room for a long line first.
bool CTextLines::ReadMore()
{
    std::memmove(buffer.data(), buffer.data() + used, filled - used);
    filled -= used;
    used = 0;
    if (filled == buffer.size()) {
        buffer.resize(std::min(buffer.size() * 2, kLongest + kBlockSize));
    }
    const qint64 size =
        device.read(buffer.data() + filled, static_cast<qint64>(buffer.size() - filled));
    filled += static_cast<std::size_t>(std::max<qint64>(size, 0));
    return size > 0;
}

std::size_t CTextLines::FindEnd(std::size_t from) const
{
    const char* begin = buffer.data() + from;
    const char* end = buffer.data() + filled;
    const bool isAny = lineEnd == ELineEnd::Any;
    const char* found =
        std::find_if(begin, end, [isAny](char c) { return c == '\n' || (isAny && c == '\r'); });
    return static_cast<std::size_t>(found - buffer.data());
}

void CTextLines::SkipFeed()
{
    const bool hasByte = used < filled || ReadMore();
    if (isBehindReturn && hasByte && buffer[used] == '\n') {
        ++used;
        ++position;
    }
    isBehindReturn = false;
}

bool CTextLines::Next()
{
    SkipFeed();
    std::size_t end = FindEnd(used);
    qint64 dropped = 0; // of a line too long to be kept, in bytes
    while (end == filled) {
        std::size_t seen = filled - used;
        if (seen > kLongest) {
            dropped += static_cast<qint64>(seen - kLongest);
            filled = used + kLongest;
            seen = kLongest;
        }
        if (!ReadMore()) {
            end = filled;
            break;
        }
        end = FindEnd(used + seen);
    }
    if (end == used && end == filled && dropped == 0) {
        return false;
    }
    TakeLine(end, dropped);
    return true;
}

void CTextLines::TakeLine(std::size_t end, qint64 dropped)
{
    start = position;
    ++number;
    length = static_cast<qint64>(end - used) + dropped;
    text = std::string_view(buffer.data() + used, std::min(end - used, kLongest));
    const bool hasEnd = end < filled;
    isBehindReturn = hasEnd && buffer[end] == '\r';
    const bool hasReturn = lineEnd == ELineEnd::Feed && !text.empty() && text.back() == '\r';
    if (hasReturn && dropped == 0) {
        text.remove_suffix(1);
    }
    used = end + (hasEnd ? 1 : 0);
    position += length + (hasEnd ? 1 : 0);
}

std::string_view WithoutBlanks(std::string_view text)
{
    while (!text.empty() && IsBlank(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && IsBlank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

} // namespace velorx

// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfTagScan.h"

#include <algorithm>
#include <cstring>

namespace velorx {

namespace {

constexpr std::size_t kBufferSize = 256 * 1024;
constexpr std::size_t kLongestLine = 64 * 1024;

bool IsBlank(char c)
{
    return c == ' ' || c == '\t';
}

std::string_view Trimmed(std::string_view text)
{
    while (!text.empty() && IsBlank(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && IsBlank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

int CodeOf(std::string_view text)
{
    constexpr std::size_t kMostDigits = 5;
    if (text.empty() || text.size() > kMostDigits) {
        return -1;
    }
    int code = 0;
    for (const char c : text) {
        if (c < '0' || c > '9') {
            return -1;
        }
        code = code * 10 + (c - '0');
    }
    return code;
}

bool IsLineEnd(char c)
{
    return c == '\n' || c == '\r';
}

} // namespace

CDxfTagScan::CDxfTagScan(QIODevice& source) : device(source), buffer(kBufferSize) { }

bool CDxfTagScan::Next()
{
    std::string_view line;
    if (!ReadLine(line)) {
        return false;
    }
    code = CodeOf(Trimmed(line));
    if (!ReadLine(line)) {
        return false;
    }
    value = Trimmed(line);
    return true;
}

// Moves what is left to the front and fills the rest. A line that fills all is cut short: the rest of it
// is read over it.
bool CDxfTagScan::ReadMore()
{
    if (begin > 0) {
        std::memmove(buffer.data(), buffer.data() + begin, end - begin);
        end -= begin;
        begin = 0;
    }
    end = std::min(end, kLongestLine);
    const qint64 size = device.read(buffer.data() + end, static_cast<qint64>(buffer.size() - end));
    end += static_cast<std::size_t>(std::max<qint64>(size, 0));
    return size > 0;
}

bool CDxfTagScan::ReadLine(std::string_view& line)
{
    std::size_t at = begin;
    for (;;) {
        const auto* found = std::find_if(buffer.data() + at, buffer.data() + end, IsLineEnd);
        at = static_cast<std::size_t>(found - buffer.data());
        if (at < end) {
            if (at == begin && isBehindReturn && buffer[at] == '\n') {
                isBehindReturn = false;
                begin = ++at;
                continue;
            }
            isBehindReturn = buffer[at] == '\r';
            line = std::string_view(buffer.data() + begin, at - begin);
            begin = at + 1;
            return true;
        }
        at = std::min(end - begin, kLongestLine);
        if (!ReadMore()) {
            line = std::string_view(buffer.data() + begin, end - begin);
            begin = end;
            return !line.empty();
        }
    }
}

} // namespace velorx

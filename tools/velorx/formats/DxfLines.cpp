// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfLines.h"

#include <algorithm>
#include <cstring>

namespace velorx {

namespace {

constexpr std::size_t kBufferSize = 256 * 1024;

} // namespace

CDxfLines::CDxfLines(QIODevice& source) : device(source), buffer(kBufferSize) { }

// Moves what is left to the front and fills the rest.
void CDxfLines::ReadMore()
{
    std::memmove(buffer.data(), buffer.data() + begin, end - begin);
    end -= begin;
    begin = 0;
    while (end < kLongest && !hasEnded) {
        const qint64 size =
            device.read(buffer.data() + end, static_cast<qint64>(buffer.size() - end));
        hasEnded = size <= 0;
        end += hasEnded ? 0 : static_cast<std::size_t>(size);
    }
}

bool CDxfLines::Next()
{
    constexpr std::size_t kLineEnd = 2;
    if (end - begin < kLongest && !hasEnded) {
        ReadMore();
    }
    const std::string_view most(buffer.data() + begin, std::min(end - begin, kLongest));
    const std::size_t feed = most.find('\n');
    std::size_t size = feed != std::string_view::npos ? feed + 1 : most.size();
    if (size > kLineEnd) {
        const std::size_t carriage = most.substr(0, size - kLineEnd).find('\r');
        size = carriage != std::string_view::npos ? carriage + 1 : size;
    }
    line = most.substr(0, size);
    begin += size;
    return !line.empty();
}

} // namespace velorx

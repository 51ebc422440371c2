// SPDX-License-Identifier: MIT
#include "VelorExchange/foundation/TemporaryFile_p.h"

#include "VelorExchange/foundation/FileError.h"

#include <algorithm>
#include <vector>

namespace VelorExchange {

namespace {

constexpr qint64 kCopyBufferSize = 1048576;

void Require(bool done, const QFile& file)
{
    if (!done) {
        throw FileError(file);
    }
}

} // namespace

std::unique_ptr<QTemporaryFile> OpenTemporaryFile()
{
    auto file = std::make_unique<QTemporaryFile>();
    if (!file->open()) {
        return nullptr;
    }
    return file;
}

void AppendFileContents(QFile& target, QFile& source)
{
    Require(target.flush(), target);
    Require(source.flush(), source);
    Require(source.seek(0), source);
    qint64 left = source.size();
    // Blocks are small and many: no more is set aside than there is to copy.
    std::vector<char> buffer(static_cast<std::size_t>(std::min(left, kCopyBufferSize)));
    while (left > 0) {
        const qint64 got = source.read(buffer.data(), std::min(left, kCopyBufferSize));
        // A file that turns out shorter than its size would never finish: it counts as failed too.
        Require(got > 0, source);
        Require(target.write(buffer.data(), got) == got, target);
        left -= got;
    }
}

} // namespace VelorExchange

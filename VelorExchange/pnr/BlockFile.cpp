// SPDX-License-Identifier: MIT
#include "VelorExchange/pnr/BlockFile_p.h"

#include <algorithm>
#include <cstring>

namespace VelorExchange::pnr {

namespace {

constexpr std::size_t kBlockSize = 262144;

} // namespace

bool CBlockFile::Open(const QString& fileName)
{
    Close();
    file.setFileName(fileName);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return false;
    }
    fileSize = file.size();
    buffer.resize(kBlockSize);
    return true;
}

void CBlockFile::Close()
{
    file.close();
    begin = 0;
    end = 0;
    position = 0;
}

void CBlockFile::Seek(qint64 target)
{
    const qint64 bufferStart = position - static_cast<qint64>(end);
    if (target >= bufferStart && target <= position) {
        begin = static_cast<std::size_t>(target - bufferStart);
        return;
    }
    begin = 0;
    end = 0;
    file.seek(target);
    position = target;
}

const char* CBlockFile::Peek(std::size_t size)
{
    if (end - begin < size && !Fill(size)) {
        return nullptr;
    }
    return buffer.data() + begin;
}

const char* CBlockFile::PeekBlock(std::size_t& size)
{
    if (begin == end) {
        Fill(1);
    }
    size = end - begin;
    return buffer.data() + begin;
}

// False if the file has fewer than `size` bytes left; the buffer grows only for what the file has.
bool CBlockFile::Fill(std::size_t size)
{
    const qint64 left = std::max<qint64>(fileSize - position, 0);
    if (size > end - begin + static_cast<std::size_t>(left)) {
        return false;
    }
    std::memmove(buffer.data(), buffer.data() + begin, end - begin);
    end -= begin;
    begin = 0;
    if (buffer.size() < size) {
        buffer.resize(size);
    }
    while (end < size) {
        const qint64 got = file.read(buffer.data() + end, static_cast<qint64>(buffer.size() - end));
        if (got <= 0) {
            return false;
        }
        end += static_cast<std::size_t>(got);
        position += got;
    }
    return true;
}

} // namespace VelorExchange::pnr

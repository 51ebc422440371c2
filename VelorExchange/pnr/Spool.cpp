// SPDX-License-Identifier: MIT
#include "VelorExchange/pnr/Spool_p.h"

#include "VelorExchange/foundation/TemporaryFile_p.h"
#include "VelorExchange/pnr/Checksum_p.h"

#include <cstring>

namespace VelorExchange::pnr {

namespace {

constexpr std::size_t kBlockSize = 262144;

} // namespace

CSpool::CSpool() : file(OpenTemporaryFile()), block(kBlockSize), failed(!file)
{
    if (file) {
        file->setAutoRemove(true);
    }
}

void CSpool::Close()
{
    if (file) {
        file->close();
    }
    failed = true; // for what may still come
}

bool CSpool::Append(const char* data, std::size_t size)
{
    if (used + size > block.size() && !Flush()) {
        return false;
    }
    if (size > block.size()) {
        return Write(data, size);
    }
    std::memcpy(block.data() + used, data, size);
    used += size;
    return !failed;
}

bool CSpool::Flush()
{
    const std::size_t size = used;
    used = 0;
    return Write(block.data(), size) && file->flush();
}

bool CSpool::Write(const char* data, std::size_t size)
{
    sum += SumSignedBytes(data, size);
    failed = failed || file->write(data, static_cast<qint64>(size)) != static_cast<qint64>(size);
    return !failed;
}

} // namespace VelorExchange::pnr

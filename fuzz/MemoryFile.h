// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace fuzz {

/// A file in memory, for operations that take a path.
class CMemoryFile
{
public:
    CMemoryFile(const std::uint8_t* data, std::size_t size) : descriptor(memfd_create("fuzz", 0))
    {
        if (descriptor < 0 || write(descriptor, data, size) != static_cast<ssize_t>(size)) {
            std::abort();
        }
    }
    ~CMemoryFile() { close(descriptor); }
    CMemoryFile(const CMemoryFile&) = delete;
    CMemoryFile& operator=(const CMemoryFile&) = delete;

    QString Path() const { return QStringLiteral("/proc/self/fd/%1").arg(descriptor); }

private:
    int descriptor;
};

} // namespace fuzz

// SPDX-License-Identifier: MIT
#pragma once

#include <QtEndian>

#include <cstddef>
#include <cstring>
#include <vector>

namespace VelorExchange::pnr {

/// The bytes of one object on their way to the file; the memory is used again for the next one.
class CByteOutput
{
public:
    void Clear() { used = 0; }
    const char* Data() const { return bytes.data(); }
    std::size_t Size() const { return used; }

    /// Place for `size` bytes behind the last one, to be filled and then taken with `Commit`.
    char* Room(std::size_t size)
    {
        if (bytes.size() - used < size) {
            bytes.resize(2 * (bytes.size() + size));
        }
        return bytes.data() + used;
    }

    /// Takes what was filled of the room, up to `end`.
    void Commit(const char* end) { used = static_cast<std::size_t>(end - bytes.data()); }

    /// One value, little-endian.
    template <class T>
    void Put(T value)
    {
        qToLittleEndian(value, Room(sizeof value));
        used += sizeof value;
    }

    void Put(const char* data, std::size_t size)
    {
        std::memcpy(Room(size), data, size);
        used += size;
    }

    /// `size` times `c`.
    void Fill(std::size_t size, char c = 0)
    {
        std::memset(Room(size), c, size);
        used += size;
    }

    /// Puts a value over what stands at `offset`.
    template <class T>
    void Patch(std::size_t offset, T value)
    {
        qToLittleEndian(value, bytes.data() + offset);
    }

private:
    std::vector<char> bytes;
    std::size_t used = 0;
};

} // namespace VelorExchange::pnr

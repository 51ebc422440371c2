// SPDX-License-Identifier: MIT
#pragma once

#include <QtEndian>

#include <cstddef>
#include <cstring>

namespace VelorExchange::pnr {

/// Reads little-endian values from a span of bytes and can't run past its end: what isn't there
/// reads as zero and the cursor has failed from then on.
class CByteCursor
{
public:
    CByteCursor(const char* data, std::size_t size) : begin(data), p(data), end(data + size) { }

    /// One value of an arithmetic type.
    template <class T>
    T Read()
    {
        const char* bytes = Take(sizeof(T));
        return bytes ? LoadLittleEndian<T>(bytes) : T();
    }

    /// The next `size` bytes, or null if there are fewer.
    const char* Take(std::size_t size)
    {
        if (failed || size > static_cast<std::size_t>(end - p)) {
            failed = true;
            return nullptr;
        }
        const char* bytes = p;
        p += size;
        return bytes;
    }

    /// Passes over `size` bytes; a negative number can't be passed over.
    void Skip(qint64 size)
    {
        if (size < 0) {
            failed = true;
            return;
        }
        Take(static_cast<std::size_t>(size));
    }

    /// True once more was asked for than there is.
    bool Failed() const { return failed; }

    /// Bytes from the start of the span.
    qint64 Position() const { return p - begin; }

    /// Any arithmetic type from bytes without alignment.
    template <class T>
    static T LoadLittleEndian(const char* bytes)
    {
        return qFromLittleEndian<T>(bytes);
    }

private:
    const char* begin;
    const char* p;
    const char* end;
    bool failed = false;
};

} // namespace VelorExchange::pnr

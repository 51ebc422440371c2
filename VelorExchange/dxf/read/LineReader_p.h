// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <cstddef>
#include <memory>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

class QIODevice;

namespace VelorExchange::dxf {

/// A line of the device with whatever of its end was taken along: spaces, CR, LF.
struct CRawLine
{
    const char* begin = nullptr;
    const char* end = nullptr;
};

/// Cuts the bytes of a device into lines, reading it in large blocks.
///
/// A line ends behind an LF or after 999 bytes, whatever comes first; what is beyond comes back as the
/// next line. A CR ends it too unless it stands in the last two bytes of that stretch, where it is taken
/// for half of a CR LF. So CR alone works as a line end as well.
///
/// Memory: one block, and the bytes since the last `Keep`.
class CLineReader final
{
public:
    static constexpr std::ptrdiff_t kLongestLine = 999;

    /// The device is open for reading, random access, and outlives the reader.
    explicit CLineReader(QIODevice& device);

    /// Where the next line starts, in bytes from the start of the device.
    qint64 Position() const { return bufferPosition + (cursor - buffer.get()); }

    /// True if there is no further line.
    bool AtEnd()
    {
        Prepare();
        return cursor == fill;
    }

    /// Bytes from here on stay in memory, and `Base` points at this place.
    void Keep() { kept = cursor - buffer.get(); }

    /// The place of the last `Keep`. It moves when lines are read; offsets from it stay valid.
    const char* Base() const { return buffer.get() + kept; }

    /// Sees to it that two whole lines can be taken without a further look at the device, except at
    /// its end. Invalidates pointers.
    void Prepare()
    {
        if (fill - cursor < kReadAhead && !ended) {
            Refill();
        }
    }

    /// The next line; an empty one at the end. `Prepare` comes first, once for two lines.
    CRawLine NextLine()
    {
#if defined(__SSE2__)
        // Nearly all lines are short. Bytes behind `fill` are zero, so an LF found is a real one.
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(cursor)); // 16 bytes
        const auto lfs =
            static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(bytes, _mm_set1_epi8('\n'))));
        const auto crs =
            static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(bytes, _mm_set1_epi8('\r'))));
        if (lfs != 0) {
            const unsigned throughLf = lfs ^ (lfs - 1U);
            if ((crs & (throughLf >> 2U)) == 0) {
                const CRawLine line{cursor, cursor + __builtin_ctz(lfs) + 1};
                cursor = line.end;
                return line;
            }
        }
#endif
        return NextLongLine();
    }

    /// The bytes to be read, for quick looks ahead: at least 32 more than there are stand in memory,
    /// zero behind the end.
    const char* Cursor() const
    {
        return cursor;
    }

    /// Takes the bytes up to `end`, which the caller has found to be a line of its own.
    void TakeTo(const char* end)
    {
        cursor = end;
    }

private:
    static constexpr std::ptrdiff_t kReadAhead = 2 * kLongestLine;

    CRawLine NextLongLine();
    const char* NextLineFeed();
    void Refill();
    void MakeRoom();

    QIODevice& device;
    std::unique_ptr<char[]> buffer;
    std::ptrdiff_t capacity = 0;
    const char* cursor = nullptr; // the next byte
    const char* fill = nullptr; // behind the last byte read
    const char* lineFeed =
        nullptr; // the first LF at or behind some earlier cursor, or `fill`; null for not known
    std::ptrdiff_t kept = 0; // from the start of the buffer
    qint64 bufferPosition = 0; // of the start of the buffer in the device
    bool ended = false; // the device has nothing more
};

} // namespace VelorExchange::dxf

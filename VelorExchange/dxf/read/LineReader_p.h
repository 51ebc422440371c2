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
    explicit CLineReader(QIODevice& source);

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
    CRawLine NextLine();

    /// Takes the next line if it is short and ends in LF or CR LF, which nearly all lines do; `line` is
    /// without them then. False, and nothing taken, for any other line. `Prepare` comes first.
    bool NextShortLine(CRawLine& line);

    /// The bytes to be read, for quick looks ahead: at least 32 more than there are stand in memory,
    /// zero behind the end.
    const char* Cursor() const { return cursor; }

    /// Takes the bytes up to `end`, which the caller has found to be a line of its own.
    void TakeTo(const char* end) { cursor = end; }

private:
    static constexpr std::ptrdiff_t kReadAhead = 2 * kLongestLine;

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

#if defined(__SSE2__)
inline bool CLineReader::NextShortLine(CRawLine& line)
{
    // Bytes behind `fill` are zero, so an LF found is a real one.
    const auto maskOf = [this](int at, char c) {
        const auto* block = reinterpret_cast<const __m128i*>(cursor + at); // 16 bytes, unaligned
        return static_cast<unsigned>(
            _mm_movemask_epi8(_mm_cmpeq_epi8(_mm_loadu_si128(block), _mm_set1_epi8(c))));
    };
    unsigned lfs = maskOf(0, '\n');
    unsigned crs = maskOf(0, '\r');
    if (lfs == 0) {
        lfs = maskOf(16, '\n') << 16U;
        crs |= maskOf(16, '\r') << 16U;
        if (lfs == 0) {
            return false;
        }
    }
    const unsigned beforeLf = (lfs - 1U) & ~lfs;
    crs &= beforeLf;
    if ((crs & (beforeLf >> 1U)) != 0) {
        return false;
    }
    const int length = __builtin_ctz(lfs);
    line.begin = cursor;
    line.end = cursor + length - (crs != 0 ? 1 : 0);
    cursor += length + 1;
    return true;
}
#else
inline bool CLineReader::NextShortLine(CRawLine&)
{
    return false;
}
#endif

} // namespace VelorExchange::dxf

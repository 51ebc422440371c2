// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <cstddef>

namespace VelorExchange::dxf {

/// A trimmed text of the object in hand that has not been decoded yet; `CTagReader` tells its bytes.
struct CTextSpan
{
    enum ESource : quint64 {
        Buffer, ///< `offset` counts from the start of the object.
        Recoded, ///< `offset` counts in the reader's store of texts that had to be decoded at once.
        Zero ///< The text "0", which stands in no file.
    };

    quint64 offset : 46;
    quint64 source : 2;
    quint64 size : 16; // bytes; a line has up to 999, and its UTF-8 up to three times as many
};

constexpr CTextSpan MakeSpan(std::ptrdiff_t offset, CTextSpan::ESource source, std::ptrdiff_t size)
{
    constexpr quint64 kOffsetMask = 0x3FFFFFFFFFFFU;
    constexpr quint64 kSizeMask = 0xFFFFU;
    return {static_cast<quint64>(offset) & kOffsetMask, static_cast<quint64>(source) & 3U,
            static_cast<quint64>(size) & kSizeMask};
}

constexpr CTextSpan kZeroSpan = MakeSpan(0, CTextSpan::Zero, 1);

/// One group: a code and a value.
///
/// Codes are compared as text, so that " 67" is 67 and "067" is nothing. `code` therefore holds the
/// number only where the text is that number's shortest spelling, and a marker otherwise.
struct CDXFTag
{
    static constexpr int kNoCode = -1; ///< The code is empty: as a rule, the file has ended.
    static constexpr int kOtherCode = -2; ///< The code is a text that no parser asks for.

    int code = kNoCode;
    CTextSpan value{};
};

} // namespace VelorExchange::dxf

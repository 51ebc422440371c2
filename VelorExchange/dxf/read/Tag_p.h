// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace VelorExchange::dxf {

/// A trimmed text of the object in hand that has not been decoded yet; `CTagReader` tells its bytes.
struct CTextSpan
{
    enum ESource : quint8 {
        Buffer, ///< `offset` counts from the start of the object.
        Recoded, ///< `offset` counts in the reader's store of texts that had to be decoded at once.
        Zero ///< The text "0", which stands in no file.
    };

    quint64 offset = 0;
    quint16 size = 0; // bytes; a line has up to 999 and its UTF-8 up to three times as many
    ESource source = Buffer;
};

constexpr CTextSpan kZeroSpan{0, 1, CTextSpan::Zero};

/// One group: a code and a value.
///
/// Codes are compared as text, so that " 67" is 67 and "067" is nothing. `code` therefore holds the
/// number only where the text is that number's shortest spelling, and a marker otherwise.
struct CDXFTag
{
    static constexpr int kNoCode = -1; ///< The code is empty: as a rule, the file has ended.
    static constexpr int kOtherCode = -2; ///< The code is a text that no parser asks for.

    int code = kNoCode;
    CTextSpan codeText; ///< Filled for `kOtherCode` alone.
    CTextSpan value;
};

} // namespace VelorExchange::dxf

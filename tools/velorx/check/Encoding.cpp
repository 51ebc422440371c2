// SPDX-License-Identifier: MIT
#include "tools/velorx/check/Encoding.h"

#include <algorithm>

namespace velorx {

bool IsAscii(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= 0; });
}

bool Decodes(std::string_view text, const QTextCodec& codec)
{
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    codec.toUnicode(text.data(), static_cast<int>(text.size()), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

} // namespace velorx

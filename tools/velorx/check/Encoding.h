// SPDX-License-Identifier: MIT
#pragma once

#include <QTextCodec>

#include <string_view>

namespace velorx {

/// Whether `text` is all ASCII.
bool IsAscii(std::string_view text);

/// Whether every byte of `text` means something to `codec`.
bool Decodes(std::string_view text, const QTextCodec& codec);

} // namespace velorx

// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace velorx {

/// Whether text in files goes through the code page that Qt calls `name`.
bool IsLocalCodePage(const QString& name);

/// Qt's name of the code page that the header of a table calls `charset`; empty for "Neutral" and for
/// names that are not known.
QString CodePageOfCharset(const QString& charset);

/// Whether the local code page has all letters of `text`.
bool FitsCodePage(const QString& text);

} // namespace velorx

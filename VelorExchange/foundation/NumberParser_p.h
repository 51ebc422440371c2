// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstddef>

namespace VelorExchange {

/// Reads `[+-] digits [. digits] [e [+-] digits]` that fills the whole span. False for anything else,
/// blanks and overflow among it: only then does the caller have to ask `QString::toDouble`, whose
/// result is the same wherever this function returns true.
bool ParsePlainDouble(const char* data, std::size_t size, double& value);

/// How many bytes behind the span `ParsePaddedDouble` may look at.
constexpr std::size_t kNumberPadding = 16;

/// The same, quicker, for spans in a buffer that has `kNumberPadding` readable bytes behind them,
/// whatever they hold.
bool ParsePaddedDouble(const char* data, std::size_t size, double& value);

/// Reads `[+-] digits` of up to nine digits that fill the whole span; else false, and the caller asks
/// `QString::toInt`.
bool ParsePlainInt(const char* data, std::size_t size, int& value);

} // namespace VelorExchange

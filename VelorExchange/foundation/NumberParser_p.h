// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstddef>

namespace VelorExchange {

/// Reads `[+-] digits [. digits] [e [+-] digits]` that fills the whole span. False for anything else,
/// blanks and overflow among it: only then does the caller have to ask `QString::toDouble`, whose
/// result is the same wherever this function returns true.
bool ParsePlainDouble(const char* data, std::size_t size, double& value);

/// Reads `[+-] digits` of up to nine digits that fill the whole span; else false, and the caller asks
/// `QString::toInt`.
bool ParsePlainInt(const char* data, std::size_t size, int& value);

} // namespace VelorExchange

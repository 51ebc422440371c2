// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <string>

namespace velorx {

/// Writes UTF-8 to standard output and flushes it. Where that fails (a full disk) it says so on
/// standard error and returns false.
bool Print(const QByteArray& text);

/// Writes "velorx: ", the message and a line feed to standard error.
void PrintError(const std::string& message);

} // namespace velorx

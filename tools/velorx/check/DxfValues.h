// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/check/DxfPair.h"

#include <string_view>

namespace velorx {

/// What stands behind a group code.
enum class EDxfValue {
    Text, ///< Or a handle, or bytes in hexadecimal form.
    Real,
    Integer,
};

/// The type of value that belongs to a group code.
EDxfValue DxfValueOf(int code);

/// Whether `value`, without blanks around it, is a whole number that fits 64 bits; as codes below 160 want
/// it, 32 bits with or without a sign.
bool IsDxfInteger(int code, std::string_view value);

/// Whether `value` reads as a number, and whether that is finite.
bool IsDxfReal(std::string_view value, bool& isFinite);

/// Looks whether a value fits its code.
void CheckDxfValue(const SDxfPair& pair, CFindings& findings);

} // namespace velorx

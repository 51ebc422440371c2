// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/info/Family.h"

#include <string>

namespace velorx {

/// Looks which family the file `path` is of, as the shell hands it over, and puts it into `family`. Empty on
/// success, otherwise why the file cannot be converted.
std::string FindSourceFamily(const std::string& path, const SFamily*& family);

/// The endings of what can be converted, "*.dxf, *.mif".
std::string ConvertibleExtensions();

/// Whether a file of a folder is to be converted with it: its ending tells so, and of one that is used for other
/// texts too the content has to agree.
bool IsConvertible(const std::string& path);

} // namespace velorx

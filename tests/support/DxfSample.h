// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/write/IDXFWriter.h"

namespace VelorExchange::test {

/// Draws one element of every kind the writer knows, some of them in several forms, on layers with
/// Cyrillic and awkward names, with blocks within blocks. Images stand outside blocks.
void DrawEverything(dxf::IDXFWriter& writer);

} // namespace VelorExchange::test

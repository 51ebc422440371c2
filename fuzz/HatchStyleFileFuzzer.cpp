// SPDX-License-Identifier: MIT
// Reads the input as a file of hatch patterns: each one that comes has a line.
#include "VelorExchange/dxf/write/StyleFiles.h"

#include "MemoryFile.h"

#include <cstdint>

using namespace VelorExchange::dxf;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const fuzz::CMemoryFile file(data, size);
    std::list<CHatchStyleDXF> styles;
    const bool found = GetHatchStylesFromFile(file.Path(), styles);
    for (const CHatchStyleDXF& style : styles) {
        if (style.lines.empty() || style.isDouble) {
            __builtin_trap();
        }
    }
    if (found == styles.empty()) {
        __builtin_trap();
    }
    return 0;
}

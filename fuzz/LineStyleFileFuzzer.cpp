// SPDX-License-Identifier: MIT
// Reads the input as a line type file that is its own shape source too.
#include "VelorExchange/dxf/write/StyleFiles.h"

#include "MemoryFile.h"

#include <cstdint>

using namespace VelorExchange::dxf;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const fuzz::CMemoryFile file(data, size);
    std::list<CLineStyleDXF> styles;
    const bool found = GetLineStylesFromFile(file.Path(), styles, file.Path());
    if (found == styles.empty()) {
        __builtin_trap();
    }
    return 0;
}

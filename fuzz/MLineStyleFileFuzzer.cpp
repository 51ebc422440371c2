// SPDX-License-Identifier: MIT
// Reads the input as a file of multiline styles.
#include "VelorExchange/dxf/write/StyleFiles.h"

#include "MemoryFile.h"

#include <cstdint>

using namespace VelorExchange::dxf;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const fuzz::CMemoryFile file(data, size);
    std::list<CMLineStyleDXF> styles;
    const bool found = GetMLineStylesFromFile(file.Path(), styles);
    if (found == styles.empty()) {
        __builtin_trap();
    }
    return 0;
}

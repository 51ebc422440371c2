// SPDX-License-Identifier: MIT
// Reads the input as a file of multiline styles: each one that comes has a name, an offset and a body of
// whole lines.
#include "VelorExchange/dxf/write/StyleFiles.h"

#include "MemoryFile.h"

#include <cstdint>

using namespace VelorExchange::dxf;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const fuzz::CMemoryFile file(data, size);
    std::list<CMLineStyleDXF> styles;
    const bool found = GetMLineStylesFromFile(file.Path(), styles);
    for (const CMLineStyleDXF& style : styles) {
        const bool isWhole =
            style.body.endsWith(QLatin1Char('\n')) && style.body.count(QLatin1Char('\n')) % 2 == 0;
        if (style.name.isEmpty() || style.offsets.empty() || !isWhole) {
            __builtin_trap();
        }
    }
    if (found == styles.empty()) {
        __builtin_trap();
    }
    return 0;
}

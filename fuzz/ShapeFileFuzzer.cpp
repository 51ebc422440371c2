// SPDX-License-Identifier: MIT
// Reads the input as a shape source.
#include "VelorExchange/dxf/write/StyleFiles.h"

#include "MemoryFile.h"

#include <cstdint>

using namespace VelorExchange::dxf;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const fuzz::CMemoryFile file(data, size);
    std::map<QString, int> shapes;
    const bool found = GetShapesFromFile(file.Path(), shapes);
    for (const auto& [name, number] : shapes) {
        if (name.isEmpty() || number <= 0) {
            __builtin_trap();
        }
    }
    if (found == shapes.empty()) {
        __builtin_trap();
    }
    return 0;
}

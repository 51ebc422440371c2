// SPDX-License-Identifier: MIT
// Reads the input as the text form of a map.
#include "MemoryFile.h"
#include "SxfHost.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const fuzz::CMemoryFile file(data, size);
    fuzz::ReadMap(file.Path(), true);
    return 0;
}

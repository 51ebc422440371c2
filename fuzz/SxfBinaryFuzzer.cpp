// SPDX-License-Identifier: MIT
// Reads the input as a binary map. The checksum is mended first, so that the records are reached.
#include "VelorExchange/Pnr.h"
#include "VelorExchange/pnr/Checksum_p.h"
#include "VelorExchange/pnr/SxfLayout_p.h"

#include "MemoryFile.h"
#include "SxfHost.h"

#include <QtEndian>

#include <cstdint>
#include <vector>

using namespace VelorExchange::pnr;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::vector<std::uint8_t> bytes(data, data + size);
    if (size >= sxf::kChecksumOffset + sxf::kChecksumSize) {
        const auto* text = reinterpret_cast<const char*>(bytes.data()); // bytes are bytes
        const quint32 sum = SumSignedBytes(text, size)
            - SumSignedBytes(text + sxf::kChecksumOffset, sxf::kChecksumSize);
        qToLittleEndian(sum, bytes.data() + sxf::kChecksumOffset);
    }
    const fuzz::CMemoryFile file(bytes.data(), bytes.size());
    fuzz::ReadMap(file.Path(), false);
    return 0;
}

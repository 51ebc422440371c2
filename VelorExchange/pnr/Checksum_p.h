// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <cstddef>
#include <cstring>

namespace VelorExchange::pnr {

/// The sum of the bytes as signed 8-bit numbers, modulo 2^32.
///
/// Each byte is moved up by 128 into 16-bit lanes of a word; a lane takes 128 steps of two bytes
/// without overflow.
inline quint32 SumSignedBytes(const char* data, std::size_t size)
{
    constexpr quint64 kSignBits = 0x8080808080808080U;
    constexpr quint64 kLanes = 0x00FF00FF00FF00FFU;
    constexpr quint64 kLaneSums = 0x0000FFFF0000FFFFU;
    constexpr std::size_t kStepsPerLane = 128;
    quint64 sum = 0;
    const char* p = data;
    std::size_t words = size / sizeof(quint64);
    while (words > 0) {
        const std::size_t steps = words < kStepsPerLane ? words : kStepsPerLane;
        quint64 lanes = 0;
        for (std::size_t i = 0; i < steps; ++i) {
            quint64 word = 0;
            std::memcpy(&word, p + i * sizeof word, sizeof word);
            word ^= kSignBits;
            lanes += (word & kLanes) + ((word >> 8U) & kLanes);
        }
        lanes = (lanes & kLaneSums) + ((lanes >> 16U) & kLaneSums);
        sum += (lanes & 0xFFFFFFFFU) + (lanes >> 32U);
        p += steps * sizeof(quint64);
        words -= steps;
    }
    auto result = static_cast<quint32>(sum - 128 * (size - size % sizeof(quint64)));
    for (; p != data + size; ++p) {
        result += static_cast<quint32>(static_cast<signed char>(*p));
    }
    return result;
}

} // namespace VelorExchange::pnr

// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/read/NameCache_p.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace VelorExchange::dxf {

CNameCache::CNameCache() : places(std::size_t{1} << kFewestBits) { }

std::size_t CNameCache::Hash(std::string_view bytes)
{
    constexpr std::uint64_t kMix = 0x9E3779B97F4A7C15U;
    std::uint64_t hash = bytes.size();
    while (!bytes.empty()) {
        std::uint64_t chunk = 0;
        const std::size_t taken = std::min(bytes.size(), sizeof chunk);
        std::memcpy(&chunk, bytes.data(), taken);
        hash = (hash ^ chunk) * kMix;
        hash ^= hash >> 32U;
        bytes.remove_prefix(taken);
    }
    return hash * kMix; // the high bits depend on all bytes
}

CNameCache::CName& CNameCache::EntryFor(std::string_view bytes, bool& known)
{
    CPlace& place = places[Hash(bytes) >> (64U - bits)];
    known = place.round == round && std::string_view(place.bytes.data(), place.size) == bytes;
    return known ? place.name : Newcomer(bytes).name;
}

// A larger number of places starts out empty, which costs no more than finding the names again.
CNameCache::CPlace& CNameCache::Newcomer(std::string_view bytes)
{
    if (++newcomers > places.size() && bits < kMostBits) {
        ++bits;
        newcomers = 0;
        places.clear();
        places.resize(std::size_t{1} << bits);
    }
    CPlace& place = places[Hash(bytes) >> (64U - bits)];
    place.round = round;
    place.size = bytes.size();
    std::copy(bytes.begin(), bytes.end(), place.bytes.begin());
    place.name = CName();
    return place;
}

} // namespace VelorExchange::dxf

// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/read/NameCache_p.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace VelorExchange::dxf {

CNameCache::CNameCache() : places(std::make_unique<CPlace[]>(kPlaces)) { }

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
    return (hash * kMix) >> (64U - kPlaceBits); // the high bits depend on all bytes
}

CNameCache::CName& CNameCache::PlaceOf(std::string_view bytes, bool& known)
{
    CPlace& place = places[Hash(bytes)];
    known = place.round == round && std::string_view(place.bytes.data(), place.size) == bytes;
    if (!known) {
        place.round = round;
        place.size = bytes.size();
        std::copy(bytes.begin(), bytes.end(), place.bytes.begin());
        place.name = CName();
    }
    return place.name;
}

} // namespace VelorExchange::dxf

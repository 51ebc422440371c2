// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/records/Layer.h"

#include <QString>

#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

namespace VelorExchange::dxf {

/// Remembers what short names of layers, line types and text styles decode to, so that the same bytes
/// are decoded and looked up once and share one string. A newcomer takes the place of what was there;
/// where that happens often there come to be more places, up to a fixed number.
class CNameCache final
{
public:
    static constexpr std::size_t kLongestName = 40; // bytes

    struct CName
    {
        QString text;
        const CLayerDXF* layer = nullptr; // the layer of this name, or null
        QString lineType; // what an entity on that layer has by layer
    };

    CNameCache();

    /// The place of these bytes, at most `kLongestName` of them. `known` tells whether the place is
    /// filled already; if not the caller fills it.
    CName& EntryFor(std::string_view bytes, bool& known);

    /// Forgets everything: the codec or the layers have changed.
    void Clear() { ++round; }

private:
    static constexpr unsigned kFewestBits = 6; // of the number of a place
    static constexpr unsigned kMostBits = 13;

    struct CPlace
    {
        unsigned round = 0;
        std::size_t size = 0;
        std::array<char, kLongestName> bytes{};
        CName name;
    };

    static std::size_t Hash(std::string_view bytes);
    CPlace& Newcomer(std::string_view bytes);

    std::vector<CPlace> places;
    unsigned bits = kFewestBits;
    std::size_t newcomers = 0;
    unsigned round = 1;
};

} // namespace VelorExchange::dxf

// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/records/Layer.h"

#include <QString>

#include <array>
#include <cstddef>
#include <memory>
#include <string_view>

namespace VelorExchange::dxf {

/// Remembers what short names of layers, line types and text styles decode to, so that the same bytes
/// are decoded and looked up once and share one string. A fixed number of places; a newcomer takes the
/// place of what was there.
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
    CName& PlaceOf(std::string_view bytes, bool& known);

    /// Forgets everything: the codec or the layers have changed.
    void Clear() { ++round; }

private:
    static constexpr unsigned kPlaceBits = 13;
    static constexpr std::size_t kPlaces = std::size_t{1} << kPlaceBits;

    struct CPlace
    {
        unsigned round = 0;
        std::size_t size = 0;
        std::array<char, kLongestName> bytes{};
        CName name;
    };

    static std::size_t Hash(std::string_view bytes);

    std::unique_ptr<CPlace[]> places;
    unsigned round = 1;
};

} // namespace VelorExchange::dxf

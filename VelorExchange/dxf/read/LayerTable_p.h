// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/records/Layer.h"

#include <QString>

#include <cstddef>
#include <deque>
#include <unordered_map>

namespace VelorExchange::dxf {

/// The layers of the LAYER table, found by name without regard to case; of several with one name the
/// first in the file is found. Grows with the table, as its reader's memory may.
class CLayerTable final
{
public:
    /// Returns the layer where it stays until the table goes.
    const CLayerDXF& Add(const CLayerDXF& layer);

    /// The layer, or null.
    const CLayerDXF* Find(const QString& name) const;

    std::size_t Size() const { return layers.size(); }

private:
    // Equal names have equal hashes; the reverse is for `Find` to see.
    static std::size_t Hash(const QString& name);

    std::deque<CLayerDXF> layers;
    std::unordered_multimap<std::size_t, const CLayerDXF*> byHash;
};

} // namespace VelorExchange::dxf

// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/read/LayerTable_p.h"

namespace VelorExchange::dxf {

// Letters are folded one by one, as the comparison does it; halves of surrogate pairs fold only as
// pairs, so they all count the same here.
std::size_t CLayerTable::Hash(const QString& name)
{
    std::size_t hash = 14695981039346656037U; // FNV-1a
    for (const QChar c : name) {
        hash ^= c.isSurrogate() ? 0xD800U : c.toCaseFolded().unicode();
        hash *= 1099511628211U;
    }
    return hash;
}

const CLayerDXF& CLayerTable::Add(const CLayerDXF& layer)
{
    layers.push_back(layer);
    // A second layer of one name can never be found, so only the first is entered.
    if (Find(layer.name) == nullptr) {
        byHash.emplace(Hash(layer.name), &layers.back());
    }
    return layers.back();
}

const CLayerDXF* CLayerTable::Find(const QString& name) const
{
    const auto [first, last] = byHash.equal_range(Hash(name));
    for (auto entry = first; entry != last; ++entry) {
        if (entry->second->name.compare(name, Qt::CaseInsensitive) == 0) {
            return entry->second;
        }
    }
    return nullptr;
}

} // namespace VelorExchange::dxf

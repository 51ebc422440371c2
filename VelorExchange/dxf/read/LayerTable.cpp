// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/read/LayerTable_p.h"

namespace VelorExchange::dxf {

// Letters are folded one by one, as the comparison does it: the second half of a surrogate pair stands
// for the pair.
std::size_t CLayerTable::Hash(const QString& name)
{
    std::size_t hash = 14695981039346656037U; // FNV-1a
    QChar last;
    for (const QChar c : name) {
        const bool isPair = last.isHighSurrogate() && c.isLowSurrogate();
        hash ^= QChar::toCaseFolded(isPair ? QChar::surrogateToUcs4(last, c) : c.unicode());
        hash *= 1099511628211U;
        last = c;
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

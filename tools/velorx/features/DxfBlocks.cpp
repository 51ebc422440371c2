// SPDX-License-Identifier: MIT
#include "tools/velorx/features/DxfBlocks.h"

#include <boost/variant2/variant.hpp>

#include <algorithm>

namespace velorx {

using namespace VelorExchange::dxf;

namespace {

bool IsElliptic(const CHatchEdgeDXF& edge)
{
    return boost::variant2::holds_alternative<CEllipseDXF>(edge);
}

bool HasEllipticEdges(const CHatchDXF& hatch)
{
    return std::any_of(hatch.loops.begin(), hatch.loops.end(), [](const CHatchLoopDXF& loop) {
        return std::any_of(loop.begin(), loop.end(), IsElliptic);
    });
}

bool IsLeftOut(const CEntityVariantDXF& entity)
{
    const auto* hatch = boost::variant2::get_if<CHatchDXF>(&entity);
    return boost::variant2::holds_alternative<CEllipseDXF>(entity)
        || (hatch != nullptr && HasEllipticEdges(*hatch));
}

bool IsEmpty(const SDxfBlock& block)
{
    return block.parts.size() == 1 && block.parts.front().run.entities.empty();
}

} // namespace

bool CDxfBlocks::Add(const CBlockDXF& block)
{
    std::shared_ptr<SDxfBlock>& kept = blocks[block.name.toCaseFolded()];
    if (kept != nullptr) {
        return false;
    }
    kept = std::make_shared<SDxfBlock>();
    kept->name = block.name;
    kept->parts.emplace_back();
    for (const CEntityVariantDXF& entity : block.entities) {
        if (IsLeftOut(entity)) {
            kept->parts.back().other = std::make_unique<const CEntityVariantDXF>(entity);
            kept->parts.emplace_back();
        } else {
            kept->parts.back().run.entities.push_back(entity);
        }
    }
    return true;
}

SDxfBlock* CDxfBlocks::Find(const QString& name)
{
    const auto found = blocks.constFind(name.toCaseFolded());
    return found != blocks.constEnd() ? found->get() : nullptr;
}

int CDxfBlocks::Unused() const
{
    return static_cast<int>(
        std::count_if(blocks.begin(), blocks.end(), [](const std::shared_ptr<SDxfBlock>& block) {
            return !block->isUsed && !IsEmpty(*block);
        }));
}

} // namespace velorx

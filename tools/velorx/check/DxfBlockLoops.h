// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/check/DxfPair.h"
#include "tools/velorx/check/DxfStructure.h"

#include <QString>

#include <map>

namespace velorx {

/// Finds blocks that hold themselves, in one insert or over several: drawing them has no end. Memory grows with the
/// number of blocks and of different inserts in each, up to a bound behind which nothing is said of further ones.
class CDxfBlockLoops
{
public:
    /// `structure` has taken the pair already.
    void Take(const SDxfPair& pair, const CDxfStructure& structure);

    /// Adds each insert that closes a loop.
    void Finish(CFindings& findings) const;

private:
    using CInserts = std::map<QString, SPlace>; ///< By name of the block drawn, the first of each.
    using CBlocks = std::map<QString, CInserts>; ///< Names without regard to case.

    /// A block on the way down, and what of it comes next.
    struct SStep
    {
        CBlocks::const_iterator block;
        CInserts::const_iterator next;
    };

    CBlocks blocks;
    QString current; ///< The block at hand.
    int insertCount = 0;
};

} // namespace velorx

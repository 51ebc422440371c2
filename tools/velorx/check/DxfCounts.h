// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/check/DxfPair.h"
#include "tools/velorx/check/DxfStructure.h"

#include <array>

namespace velorx {

/// Compares the counts that some entities tell with what they have.
class CDxfCounts
{
public:
    /// `results` outlives this object.
    explicit CDxfCounts(CFindings& results) : findings(results) { }

    /// `structure` has taken the pair already.
    void Take(const SDxfPair& pair, const CDxfStructure& structure);

    /// The entity at hand is whole.
    void Finish();

private:
    static constexpr int kMostRules = 3;

    /// A count that an entity tells.
    struct STold
    {
        bool isTold = false;
        qint64 count = 0;
        SPlace place;
        qint64 met = 0;
    };

    CFindings& findings;
    std::array<STold, kMostRules> told;
    int entity = -1; ///< Of those that tell counts; -1 for any other.
};

} // namespace velorx

// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/formats/DxfSurveyEntity.h"

#include <string_view>

namespace velorx {

/// Whether the library takes entities of a drawing for others than they are, so that `CDxfMender` has to mend
/// them.
class CDxfMendings
{
public:
    /// An entity that the library reads, or that is mended to be one.
    void Take(const SDxfSurveyEntity& entity);

    /// A trace, which the library does not read, but as a solid.
    void TakeTrace() { isNeeded = true; }

    /// Whether an entity of that kind, in capitals, can hold another object, behind a group 101.
    static bool CanHoldObject(std::string_view kind);

    /// Whether there is anything to mend.
    bool AreNeeded() const { return isNeeded; }

private:
    bool isNeeded = false;
};

} // namespace velorx

// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/formats/DxfGroups.h"

#include <QString>

#include <string>

namespace velorx {

/// An entity of a drawing as its groups tell it, good for as long as they are gathered.
struct SDxfSurveyEntity
{
    const std::string& kind; ///< In capitals; ATTRIB and ATTDEF are kinds too.
    const CDxfGroups& groups;
    QString layer; ///< As the drawing spells it, "0" where it tells none.
    QString block; ///< Name of the block that it belongs to.
    bool isInBlock = false;
};

} // namespace velorx

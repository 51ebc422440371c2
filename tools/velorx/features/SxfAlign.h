// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/Feature.h"

namespace velorx {

/// Where a text's place lies in it.
struct SSxfAlign
{
    EFeatureAlign along = EFeatureAlign::Left;
    EFeatureVertical across = EFeatureVertical::Baseline;
};

/// What alignment `align` says; the base line's left end for what is none.
SSxfAlign FromSxfAlign(int align);

/// The alignment for a text, 20 to 31.
int ToSxfAlign(const SSxfAlign& align);

} // namespace velorx

// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/info/MifSummary.h"

namespace velorx {

/// How a kind of object is called, and the operation that delivers it.
struct SMifKind
{
    const char* name;
    const char* operation;
};

/// By `CMifSummary::EKind`.
constexpr SMifKind kMifKinds[CMifSummary::kKinds] = {
    {"Arc", "AddArc"},       {"RoundRect", "AddRoundRect"}, {"Ellipse", "AddEllipse"},
    {"Rect", "AddRect"},     {"Text", "AddText"},           {"Polyline", "AddPolyline"},
    {"Region", "AddRegion"}, {"Point", "AddPoint"},
};

} // namespace velorx

// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfMendings.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string_view>

namespace velorx {

namespace {

constexpr int kEmbeddedObject = 101;
constexpr double kNear = 1e-9;

// Those that can hold another object; those whose points stand in the plan, whatever their plane; those that
// change their shape where their plane is seen from behind.
constexpr std::string_view kHolders[] = {"MTEXT", "ATTRIB", "ATTDEF"};
constexpr std::string_view kPlanKinds[] = {"POINT", "ELLIPSE", "SPLINE"};
constexpr std::string_view kTurnedKinds[] = {"LWPOLYLINE", "POLYLINE", "INSERT", "HATCH"};

template <std::size_t Count>
bool IsAmong(const std::string_view (&names)[Count], std::string_view name)
{
    return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

} // namespace

void CDxfMendings::Take(const SDxfSurveyEntity& entity)
{
    const CDxfGroups& groups = entity.groups;
    const bool isTilted =
        std::fabs(groups.Number(210)) > kNear || std::fabs(groups.Number(220)) > kNear;
    const bool isBehind = groups.Number(230, 1.0) < 0;
    const bool isInPlan = IsAmong(kPlanKinds, entity.kind) && (isTilted || isBehind);
    const bool isTurned = IsAmong(kTurnedKinds, entity.kind) && isBehind && !isTilted;
    const bool isHolder = IsAmong(kHolders, entity.kind) && groups.Has(kEmbeddedObject);
    if (isInPlan || isTurned || isHolder) {
        ++count;
    }
    if (isTurned || (isInPlan && isBehind && !isTilted && entity.kind != "POINT")) {
        ++mirrored[entity.layer];
    }
}

} // namespace velorx

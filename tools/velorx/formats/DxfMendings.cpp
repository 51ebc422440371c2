// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfMendings.h"

#include "tools/velorx/formats/DxfEntityRules.h"
#include "tools/velorx/formats/DxfTextAnchor.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace velorx {

namespace {

constexpr int kEmbeddedObject = 101;
constexpr int kDirection = 11;
constexpr int kRotation = 50;

// Those that can hold another object; those whose points stand in the plan, whatever their plane; those that
// change their shape where their plane is seen from behind.
constexpr std::string_view kHolders[] = {"MTEXT", "ATTRIB", "ATTDEF"};
constexpr std::string_view kPlanKinds[] = {"POINT", "ELLIPSE", "SPLINE", "3DFACE",
                                           "XLINE", "RAY",     "MTEXT"};
constexpr std::string_view kTurnedKinds[] = {"LWPOLYLINE", "POLYLINE", "INSERT", "HATCH"};

template <std::size_t Count>
bool IsAmong(const std::string_view (&names)[Count], std::string_view name)
{
    return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

// A mesh that tells its faces.
bool IsBody(const SDxfSurveyEntity& entity)
{
    constexpr int kFlags = 70;
    constexpr int kBody = 64;
    return entity.kind == "POLYLINE" && (entity.groups.Integer(kFlags) & kBody) != 0;
}

bool IsTurnedText(const SDxfSurveyEntity& entity)
{
    return entity.kind == "MTEXT" && !entity.groups.Has(kDirection)
        && entity.groups.Number(kRotation) != 0;
}

bool IsOffItsBaseLine(const SDxfSurveyEntity& entity)
{
    const CDxfGroups& groups = entity.groups;
    const auto number = [&groups](int code, double absent) { return groups.Number(code, absent); };
    return (entity.kind == "TEXT" && IsAtAnchor(groups.Integer(73), number))
        || (entity.kind == "ATTRIB" && IsAtAnchor(groups.Integer(74), number));
}

} // namespace

bool CDxfMendings::CanHoldObject(std::string_view kind)
{
    return IsAmong(kHolders, kind);
}

void CDxfMendings::Take(const SDxfSurveyEntity& entity)
{
    const EDxfPlane plane = entity.groups.Plane();
    const bool isInPlan = IsAmong(kPlanKinds, entity.kind) || IsPolylineInSpace(entity);
    isNeeded = isNeeded || (isInPlan && plane != EDxfPlane::Plan)
        || (IsAmong(kTurnedKinds, entity.kind) && plane == EDxfPlane::Behind)
        || (CanHoldObject(entity.kind) && entity.groups.Has(kEmbeddedObject))
        || entity.kind == "LEADER" || IsBody(entity) || IsTurnedText(entity)
        || IsOffItsBaseLine(entity);
}

} // namespace velorx

// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/formats/DxfSurveyEntity.h"
#include "tools/velorx/formats/DxfTally.h"

namespace velorx {

/// Counts what the groups of one entity tell and the library's reader or writer leaves out, as far as the
/// entity alone can say.
void JudgeEntity(const SDxfSurveyEntity& entity, CDxfTally& tally);

/// Whether the entity is a POLYLINE whose vertices stand in space, and not on a plane of its own.
bool IsPolylineInSpace(const SDxfSurveyEntity& entity);

/// Whether the colour of the entity reaches the result: multilines and images have none of their own there.
bool HasColour(const std::string& kind);

/// Whether a true colour, 0xRRGGBB, is black or so near that the library takes it for a marker.
bool IsTakenForBlack(int trueColour);

/// Whether the entity belongs to a block and takes its line type or weight from the layer of the insert.
bool FollowsLinesOfInsert(const SDxfSurveyEntity& entity);

} // namespace velorx

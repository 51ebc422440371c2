// SPDX-License-Identifier: MIT
// Areas that a drawing holds in several elements: what our own writing tells to belong together.
#include "tools/velorx/features/DxfFeatureReader.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace velorx {

namespace {

constexpr double kSamePlace = 1e-4; // file units

bool HasEqualPlan(const CFeatureLine& a, const CFeatureLine& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const auto& one, const auto& two) {
        return std::fabs(one.x - two.x) < kSamePlace && std::fabs(one.y - two.y) < kSamePlace;
    });
}

} // namespace

// The area in hand waits for the outlines that its data tells of.
bool CDxfFeatureReader::Hold(const SAreaFeature& area)
{
    if (place.outlines <= 0) {
        return false;
    }
    held = area;
    outlinesToCome = place.outlines;
    return true;
}

// An outline of a fill gives it its looks, and the heights that fills do not have; of an area without a fill
// it is one more ring.
bool CDxfFeatureReader::JoinHeld(const SAreaFeature& outline)
{
    if (outlinesToCome == 0) {
        return false;
    }
    if (outline.fill.kind != EFeatureFill::None || outline.rings.size() != 1
        || outline.layer != held.layer || outline.attributes != nullptr || outline.code != 0)
    {
        HandOnHeld();
        return false;
    }
    if (held.fill.kind == EFeatureFill::None) {
        held.rings.push_back(outline.rings.front());
        held.is3D = held.is3D || outline.is3D;
    } else {
        held.stroke = outline.stroke;
        for (CFeatureLine& ring : held.rings) {
            if (outline.is3D && HasEqualPlan(ring, outline.rings.front())) {
                ring = outline.rings.front();
                held.is3D = true;
            }
        }
    }
    tally.Wrote(outline.kind, "part of the area before it");
    if (outlinesToCome > 1) {
        --outlinesToCome;
    } else {
        HandOnHeld();
    }
    return true;
}

void CDxfFeatureReader::HandOnHeld()
{
    if (std::exchange(outlinesToCome, 0) == 0) {
        return;
    }
    ++given;
    HandOn(held, sink, tally);
    held = SAreaFeature();
}

} // namespace velorx

// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfShapeScan.h"

namespace velorx {

using VelorExchange::CPoint3D;

namespace {

constexpr int kMeshFlags = 16 + 64;
constexpr int kSpaceFlags = 8 + kMeshFlags;
constexpr int kFitted = 4;
constexpr int kFrameVertex = 16;

constexpr int kAllFlags = 1023;
constexpr int kPolylinePath = 2;
constexpr int kMarkedPath = 8 + 16;
constexpr double kFirstCurve = 2; // kinds of edges: 1 lines, 2 arcs, 3 ellipses, 4 splines
constexpr double kLastCurve = 4;

} // namespace

void CDxfShapeScan::Begin(const std::string& kind)
{
    shape = kind == "LWPOLYLINE" ? EShape::LWPolyline
        : kind == "HATCH"        ? EShape::Hatch
                                 : EShape::Other;
    if (kind != "VERTEX") {
        hasLast = false;
        coincident = markedCurves = 0;
        polyline.isOpen = false;
    }
}

void CDxfShapeScan::Take(int code, double value)
{
    if (shape == EShape::LWPolyline) {
        if (code == 10) {
            x = value;
        } else if (code == 20 && IsOnLast({x, value, 0.0})) {
            ++coincident;
        }
    } else if (shape == EShape::Hatch) {
        if (code == 92) {
            pathFlags = value >= 0 && value <= kAllFlags ? static_cast<int>(value) : 0;
        } else if (code == 72 && (pathFlags & kPolylinePath) == 0 && (pathFlags & kMarkedPath) != 0
                   && value >= kFirstCurve && value <= kLastCurve)
        {
            ++markedCurves;
        }
    }
}

// The reader's test: the later of two points nearer than 0.0001 stands.
bool CDxfShapeScan::IsOnLast(const CPoint3D& point)
{
    constexpr double kNearSquared = 1e-8;
    const double dx = point.x - last.x;
    const double dy = point.y - last.y;
    const double dz = point.z - last.z;
    const bool isNear = hasLast && dx * dx + dy * dy + dz * dz < kNearSquared;
    last = point;
    hasLast = true;
    return isNear;
}

void CDxfShapeScan::Finish(const SDxfSurveyEntity& entity, CDxfTally& tally)
{
    tally.Lose(EDxfLoss::CoincidentVertices, entity.layer, coincident);
    tally.Lose(EDxfLoss::HatchMarkedCurves, entity.layer, markedCurves);
    if (entity.kind != "POLYLINE") {
        return;
    }
    const CDxfGroups& groups = entity.groups;
    const int flags = groups.Integer(70);
    polyline = {};
    polyline.isOpen = true;
    polyline.isMesh = (flags & kMeshFlags) != 0;
    polyline.isPlane = (flags & kSpaceFlags) == 0;
    polyline.isFitted = (flags & kFitted) != 0;
    polyline.layer = entity.layer;
    polyline.startWidth = groups.Number(40);
    polyline.endWidth = groups.Number(41);
    polyline.height = groups.Number(30);
    if (polyline.isMesh) {
        tally.Lose(EDxfLoss::Meshes, entity.layer);
    }
    if (polyline.isPlane && polyline.startWidth != polyline.endWidth) {
        polyline.hasOtherWidth = true;
        tally.Lose(EDxfLoss::ChangingWidths, entity.layer);
    }
}

// Heights of the old polylines in the plan are read from their vertices alone.
void CDxfShapeScan::FinishVertex(const CDxfGroups& vertex, CDxfTally& tally)
{
    const bool isFrame = polyline.isFitted && vertex.Integer(70) == kFrameVertex;
    if (!polyline.isOpen || polyline.isMesh || isFrame) {
        return;
    }
    if (IsOnLast({vertex.Number(10), vertex.Number(20), vertex.Number(30)})) {
        tally.Lose(EDxfLoss::CoincidentVertices, polyline.layer);
    }
    if (!polyline.isPlane) {
        return;
    }
    const double start = vertex.Number(40, polyline.startWidth);
    const double end = vertex.Number(41, polyline.endWidth);
    if (!polyline.hasOtherWidth && (start != polyline.startWidth || end != polyline.startWidth)) {
        polyline.hasOtherWidth = true;
        tally.Lose(EDxfLoss::ChangingWidths, polyline.layer);
    }
    if (!polyline.hasOtherHeight && polyline.height != 0 && vertex.Number(30) != polyline.height) {
        polyline.hasOtherHeight = true;
        tally.Lose(EDxfLoss::Heights, polyline.layer);
    }
}

} // namespace velorx

// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/formats/DxfSurveyEntity.h"
#include "tools/velorx/formats/DxfTally.h"
#include "VelorExchange/foundation/Point.h"

#include <QtGlobal>

#include <string>

namespace velorx {

/// Follows the groups of polylines and hatches in their order, for losses that depend on it: vertices in
/// one place, widths and heights of the old polylines, curves of outermost hatch boundaries. Constant memory.
class CDxfShapeScan
{
public:
    /// Begins a record of the kind, in capitals.
    void Begin(const std::string& kind);

    /// A group of the record in hand.
    void Take(int code, double value);

    /// The record in hand, an entity that is read, is complete. A POLYLINE stays in hand for the vertices that
    /// follow.
    void Finish(const SDxfSurveyEntity& entity, CDxfTally& tally);

    /// A VERTEX is complete; it belongs to the last entity.
    void FinishVertex(const CDxfGroups& vertex, CDxfTally& tally);

private:
    struct SPolyline
    {
        bool isOpen = false;
        bool isMesh = false;
        bool isPlane = false;
        bool isFitted = false; ///< Vertices of its frame do not count.
        QString layer;
        double startWidth = 0.0;
        double endWidth = 0.0;
        double height = 0.0;
        bool hasOtherWidth = false; ///< Counted already.
        bool hasOtherHeight = false; ///< Counted already.
    };

    bool IsOnLast(const VelorExchange::CPoint3D& point);

    enum class EShape { Other, LWPolyline, Hatch };
    EShape shape = EShape::Other;
    SPolyline polyline;
    bool hasLast = false;
    VelorExchange::CPoint3D last;
    double x = 0.0;
    qint64 coincident = 0; ///< Of the record in hand.
    int pathFlags = 0;
    qint64 markedCurves = 0; ///< Of the record in hand.
};

} // namespace velorx

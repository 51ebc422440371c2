// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/read/ObjectCoordinates_p.h"
#include "VelorExchange/dxf/read/TagMap_p.h"
#include "VelorExchange/dxf/records/Hatch.h"

#include <vector>

namespace VelorExchange::dxf {

/// Reads the boundary paths of a hatch. They repeat the same codes over and over, so each path and each
/// edge has a short-lived map of its own beside that of the entity.
class CHatchBoundary final
{
public:
    explicit CHatchBoundary(CTagReader& reader);

    /// Reads up to `count` paths into `hatch`, fewer where the file does not back them. `tag` is the one
    /// in hand; returns the one it stopped at.
    CDXFTag ReadPaths(CDXFTag tag, int count, const CObjectCoordinates& coordinates,
                      CHatchDXF& hatch);

private:
    /// What one path is read with.
    struct CPath
    {
        CDXFTag tag; // in hand
        int flags = 0;
        int edges = 0; // read so far
        const CObjectCoordinates& coordinates;
        CHatchLoopDXF loop;
        CHatchDXF& hatch;
    };

    using CEdgeReader = void (CHatchBoundary::*)(CPath&);

    bool ReadPath(CPath& path);
    void ReadPolyline(CPath& path);
    void ReadEdges(CPath& path);
    void ReadEdge(CPath& path);
    void ReadLines(CPath& path);
    void ReadArc(CPath& path);
    void ReadEllipse(CPath& path);
    void ReadSpline(CPath& path);
    bool StartEdge(CPath& path, CDXFTagMap::CCodes codes);
    void FillFlatPoints(std::vector<CPoint3D>& points, int xCode, int yCode,
                        const CObjectCoordinates* coordinates);
    CPoint3D FlatPoint(const CPath& path, int xCode, int yCode) const;

    CTagReader& input;
    CDXFTagMap header; // of the path in hand
    CDXFTagMap edge; // the edge in hand, or the polyline
    std::vector<double> xs; // scratch
    std::vector<double> ys;
    std::vector<double> bulges;
};

} // namespace VelorExchange::dxf

// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/records/IDXFReader.h"

#include <vector>

namespace VelorExchange::dxf {

/// Replays the entities of a block through a reader under one insert: a visitor with one operation for
/// each kind. Points are scaled, moved, and turned about the insertion point; the base point of the
/// block plays no part, and layers are never replaced.
class CBlockExpander final
{
public:
    /// `reader` is not owned and never null; `reference` is copied.
    CBlockExpander(IDXFReader* reader, const CInsertDXF& reference);

    void operator()(const CPointDXF& point);
    void operator()(const CLineDXF& line);
    void operator()(const CXLineDXF& line);
    void operator()(const CArcDXF& arc);
    void operator()(const CSplineDXF& spline);
    void operator()(const CLWPolylineDXF& polyline);
    void operator()(const CPolylineDXF& polyline);
    void operator()(const CTextDXF& text);
    void operator()(const CMTextDXF& text);
    void operator()(const CSolidDXF& solid);
    void operator()(const CHatchDXF& hatch);
    void operator()(const C3DFaceDXF& face);
    void operator()(const CRayDXF& ray);
    void operator()(const CMLineDXF& mline);
    void operator()(const CInsertDXF& nested);

    // These do not come out of a block.
    void operator()(const CImageDXF& /*record*/) { }
    void operator()(const CAttDefDXF& /*record*/) { }
    void operator()(const CEllipseDXF& /*record*/) { }

private:
    CPoint3D Moved(const CPoint3D& p) const;
    CPoint2D Moved(const CPoint2D& p) const;
    CPoint3D Turned(const CPoint3D& v) const;
    void MoveAll(std::vector<CPoint3D>& points) const;
    void MoveAll(std::vector<CVertexDXF>& vertices) const;
    void MoveText(CTextDXF& text) const;
    void InheritColor(quint32& color) const;
    void Inherit(CEntityDXF& entity) const;

    IDXFReader* target;
    CInsertDXF insert;
    double sine;
    double cosine;
};

/// Collects the edges of a hatch again after they have gone through an expander.
class HatchReaderWrapper : public IDXFReader
{
public:
    /// `result` is not owned and outlives the wrapper.
    explicit HatchReaderWrapper(CHatchDXF* result);

    bool OnLWPolyline(const CLWPolylineDXF& polyline) override;
    bool OnSpline(const CSplineDXF& spline) override;
    bool OnArc(const CArcDXF& arc) override;

    /// Makes the edges so far a loop of the hatch.
    virtual void NextLoop();

protected:
    ~HatchReaderWrapper() = default;

private:
    CHatchDXF* hatch;
    CHatchLoopDXF edges;
};

} // namespace VelorExchange::dxf

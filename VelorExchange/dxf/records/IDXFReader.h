// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/records/Block.h"
#include "VelorExchange/dxf/records/Header.h"
#include "VelorExchange/dxf/records/IDXFProgress.h"
#include "VelorExchange/dxf/records/Layer.h"
#include "VelorExchange/dxf/records/MLineStyle.h"
#include "VelorExchange/dxf/records/TextStyle.h"
#include "VelorExchange/foundation/Export.h"

namespace VelorExchange::dxf {

/// What a host implements to receive a drawing.
///
/// Every operation has a default that does nothing, so that a host overrides what it wants: in
/// practice the entities it knows, `OnLayer`, and `OnBlock` with `OnInsert`. Records live for the call
/// only. All calls come on the thread of the read. Of the results only that of `OnSection` counts; an
/// exception that an operation throws passes through the read, which is how to stop it early.
class VELOREXCHANGE_EXPORT IDXFReader
{
public:
    /// The gate of a section: 1 TABLES, 2 BLOCKS, 3 ENTITIES, 4 OBJECTS. False skips the section.
    /// OBJECTS is the last thing read: what stands behind it is reached only if it is refused.
    virtual bool OnSection(int /*stage*/) { return true; }

    /// POLYLINE.
    virtual bool OnPolyline(const CPolylineDXF& /*record*/) { return true; }

    /// MLINE.
    virtual bool OnMLine(const CMLineDXF& /*record*/) { return true; }

    /// ELLIPSE, parameters in radians.
    virtual bool OnEllipse(const CEllipseDXF& /*record*/) { return true; }

    /// LWPOLYLINE.
    virtual bool OnLWPolyline(const CLWPolylineDXF& /*record*/) { return true; }

    /// SPLINE.
    virtual bool OnSpline(const CSplineDXF& /*record*/) { return true; }

    /// SOLID.
    virtual bool OnSolid(const CSolidDXF& /*record*/) { return true; }

    /// LINE.
    virtual bool OnLine(const CLineDXF& /*record*/) { return true; }

    /// 3DFACE.
    virtual bool On3DFace(const C3DFaceDXF& /*record*/) { return true; }

    /// XLINE.
    virtual bool OnXLine(const CXLineDXF& /*record*/) { return true; }

    /// RAY.
    virtual bool OnRay(const CRayDXF& /*record*/) { return true; }

    /// ARC and CIRCLE, angles in degrees; those of a circle are equal.
    virtual bool OnArc(const CArcDXF& /*record*/) { return true; }

    /// IMAGE, when its IMAGEDEF is met in the OBJECTS section.
    virtual bool OnImage(const CImageDXF& /*record*/) { return true; }

    /// INSERT with its attributes, rotation in degrees; `ParseBlock` expands it.
    virtual bool OnInsert(const CInsertDXF& /*record*/) { return true; }

    /// HATCH, pattern angle in degrees.
    virtual bool OnHatch(const CHatchDXF& /*record*/) { return true; }

    /// MTEXT.
    virtual bool OnMText(const CMTextDXF& /*record*/) { return true; }

    /// TEXT.
    virtual bool OnText(const CTextDXF& /*record*/) { return true; }

    /// POINT.
    virtual bool OnPoint(const CPointDXF& /*record*/) { return true; }

    /// A finished block, with its entities; they are not delivered otherwise.
    virtual bool OnBlock(const CBlockDXF& /*record*/) { return true; }

    /// STYLE.
    virtual bool OnTextStyle(const CTextStyleDXF& /*record*/) { return true; }

    /// MLINESTYLE.
    virtual bool OnMLineStyle(const CMLineStyleDXF& /*record*/) { return true; }

    /// LTYPE, its name alone.
    virtual bool OnLineStyle(const CLineStyleDXF& /*record*/) { return true; }

    /// LAYER.
    virtual bool OnLayer(const CLayerDXF& /*record*/) { return true; }

    /// The end of the HEADER section.
    virtual bool OnHeader(const CHeaderDXF& /*record*/) { return true; }

    /// Where to report progress, or null for nowhere. Asked anew at each report; it must be null
    /// always or never throughout one read.
    virtual IDXFProgress* GetProgress() { return nullptr; }

protected:
    ~IDXFReader() = default;
};

} // namespace VelorExchange::dxf

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
/// exception that an operation throws passes through the read.
class VELOREXCHANGE_EXPORT IDXFReader
{
public:
    /// The gate of a section: 1 TABLES, 2 BLOCKS, 3 ENTITIES, 4 OBJECTS. False skips the section.
    /// OBJECTS is the last thing read: what stands behind it is reached only if it is refused.
    virtual bool OnSection(int /*stage*/) { return true; }

    /// POLYLINE.
    virtual bool OnPolyline(const CPolylineDXF&) { return true; }

    /// MLINE.
    virtual bool OnMLine(const CMLineDXF&) { return true; }

    /// ELLIPSE, parameters in radians.
    virtual bool OnEllipse(const CEllipseDXF&) { return true; }

    /// LWPOLYLINE.
    virtual bool OnLWPolyline(const CLWPolylineDXF&) { return true; }

    /// SPLINE.
    virtual bool OnSpline(const CSplineDXF&) { return true; }

    /// SOLID.
    virtual bool OnSolid(const CSolidDXF&) { return true; }

    /// LINE.
    virtual bool OnLine(const CLineDXF&) { return true; }

    /// 3DFACE.
    virtual bool On3DFace(const C3DFaceDXF&) { return true; }

    /// XLINE.
    virtual bool OnXLine(const CXLineDXF&) { return true; }

    /// RAY.
    virtual bool OnRay(const CRayDXF&) { return true; }

    /// ARC and CIRCLE, angles in degrees; those of a circle are equal.
    virtual bool OnArc(const CArcDXF&) { return true; }

    /// IMAGE, when its IMAGEDEF is met in the OBJECTS section.
    virtual bool OnImage(const CImageDXF&) { return true; }

    /// INSERT with its attributes, rotation in degrees; `ParseBlock` expands it.
    virtual bool OnInsert(const CInsertDXF&) { return true; }

    /// HATCH, pattern angle in degrees.
    virtual bool OnHatch(const CHatchDXF&) { return true; }

    /// MTEXT.
    virtual bool OnMText(const CMTextDXF&) { return true; }

    /// TEXT.
    virtual bool OnText(const CTextDXF&) { return true; }

    /// POINT.
    virtual bool OnPoint(const CPointDXF&) { return true; }

    /// A finished block, with its entities; they are not delivered otherwise.
    virtual bool OnBlock(const CBlockDXF&) { return true; }

    /// STYLE.
    virtual bool OnTextStyle(const CTextStyleDXF&) { return true; }

    /// MLINESTYLE.
    virtual bool OnMLineStyle(const CMLineStyleDXF&) { return true; }

    /// LTYPE, its name alone.
    virtual bool OnLineStyle(const CLineStyleDXF&) { return true; }

    /// LAYER.
    virtual bool OnLayer(const CLayerDXF&) { return true; }

    /// The end of the HEADER section.
    virtual bool OnHeader(const CHeaderDXF&) { return true; }

    /// Where to report progress, or null for nowhere. Asked anew at each report; it must be null
    /// always or never throughout one read.
    virtual IDXFProgress* GetProgress() { return nullptr; }

protected:
    IDXFReader() = default;
    IDXFReader(const IDXFReader&) = default;
    IDXFReader& operator=(const IDXFReader&) = default;
    ~IDXFReader() = default;
};

} // namespace VelorExchange::dxf

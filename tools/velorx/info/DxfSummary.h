// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/formats/DxfKinds.h"
#include "tools/velorx/info/ISummary.h"
#include "tools/velorx/info/Listed.h"
#include "VelorExchange/DXF.h"

#include <QString>

#include <cstddef>

namespace velorx {

/// What is in a drawing, read with all gates open.
class CDxfSummary final : public ISummary, public VelorExchange::dxf::IDXFReader
{
public:
    struct SBlock
    {
        QString name;
        qint64 entities = 0;
    };

    struct SMLineStyle
    {
        QString name;
        qint64 elements = 0; ///< Lines that run side by side.
    };

    QString Read(const QString& path, VelorExchange::dxf::IDXFProgress* bar) override;
    QString ToText() const override;
    QJsonObject ToJson() const override;

    bool OnPolyline(const VelorExchange::dxf::CPolylineDXF& /*polyline*/) override;
    bool OnMLine(const VelorExchange::dxf::CMLineDXF& /*mline*/) override;
    bool OnEllipse(const VelorExchange::dxf::CEllipseDXF& /*ellipse*/) override;
    bool OnLWPolyline(const VelorExchange::dxf::CLWPolylineDXF& /*polyline*/) override;
    bool OnSpline(const VelorExchange::dxf::CSplineDXF& /*spline*/) override;
    bool OnSolid(const VelorExchange::dxf::CSolidDXF& /*solid*/) override;
    bool OnLine(const VelorExchange::dxf::CLineDXF& /*line*/) override;
    bool On3DFace(const VelorExchange::dxf::C3DFaceDXF& /*face*/) override;
    bool OnXLine(const VelorExchange::dxf::CXLineDXF& /*line*/) override;
    bool OnRay(const VelorExchange::dxf::CRayDXF& /*ray*/) override;
    bool OnArc(const VelorExchange::dxf::CArcDXF& arc) override;
    bool OnImage(const VelorExchange::dxf::CImageDXF& /*image*/) override;
    bool OnInsert(const VelorExchange::dxf::CInsertDXF& insert) override;
    bool OnHatch(const VelorExchange::dxf::CHatchDXF& /*hatch*/) override;
    bool OnMText(const VelorExchange::dxf::CMTextDXF& /*text*/) override;
    bool OnText(const VelorExchange::dxf::CTextDXF& /*text*/) override;
    bool OnPoint(const VelorExchange::dxf::CPointDXF& /*point*/) override;
    bool OnBlock(const VelorExchange::dxf::CBlockDXF& block) override;
    bool OnTextStyle(const VelorExchange::dxf::CTextStyleDXF& style) override;
    bool OnMLineStyle(const VelorExchange::dxf::CMLineStyleDXF& style) override;
    bool OnLineStyle(const VelorExchange::dxf::CLineStyleDXF& style) override;
    bool OnLayer(const VelorExchange::dxf::CLayerDXF& layer) override;
    bool OnHeader(const VelorExchange::dxf::CHeaderDXF& record) override;
    VelorExchange::dxf::IDXFProgress* GetProgress() override { return progress; }

    bool result = false; ///< What `dxf::Read` returned.
    QString fault; ///< Why there is nothing to be read, in words that follow its name; else empty.
    bool hasEndMark = false; ///< Whether the file ends with its mark.
    qint64 headers = 0; ///< Calls of `OnHeader`.
    int version = 0; ///< That of the header, or what the file tells without a complete one.
    VelorExchange::dxf::CHeaderDXF header; ///< The last one delivered, or its defaults.
    CListed<VelorExchange::dxf::CLayerDXF> layers;
    CListed<VelorExchange::dxf::CTextStyleDXF> textStyles;
    CListed<QString> lineTypes;
    CListed<SMLineStyle> mlineStyles;
    CListed<SBlock> blocks;
    CEntityCounts drawing{}; ///< Entities that were delivered by themselves.
    CEntityCounts inBlocks{}; ///< Entities that were delivered inside blocks.
    qint64 insertAttributes = 0; ///< Attributes of all inserts, in the drawing and in blocks.

private:
    bool IsEmpty() const;

    VelorExchange::dxf::IDXFProgress* progress = nullptr;
};

} // namespace velorx

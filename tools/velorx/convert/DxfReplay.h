// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/convert/SafeNames.h"
#include "tools/velorx/formats/DxfSurvey.h"
#include "tools/velorx/formats/DxfTally.h"
#include "VelorExchange/dxf/records/IDXFReader.h"
#include "VelorExchange/dxf/write/IDXFWriter.h"

#include <QHash>
#include <QSet>
#include <QString>

namespace velorx {

/// Hands a drawing on from the reader to the writer, one element at a time.
///
/// Angles become radians where the writer wants them, line weights millimetres, names safe; kinds that the
/// writer does not have become the nearest one that it has. What is changed or lost goes to the tally.
/// Memory grows with the number of names and multiline styles, and with the largest block.
class CDxfReplay final : public VelorExchange::dxf::IDXFReader
{
public:
    /// All four outlive this object. `bar` can be null.
    CDxfReplay(VelorExchange::dxf::IDXFWriter& target, const CDxfSurvey& firstLook,
               CDxfTally& counts, VelorExchange::dxf::IDXFProgress* bar);

    bool OnPolyline(const VelorExchange::dxf::CPolylineDXF& record) override;
    bool OnMLine(const VelorExchange::dxf::CMLineDXF& record) override;
    bool OnEllipse(const VelorExchange::dxf::CEllipseDXF& record) override;
    bool OnLWPolyline(const VelorExchange::dxf::CLWPolylineDXF& record) override;
    bool OnSpline(const VelorExchange::dxf::CSplineDXF& record) override;
    bool OnSolid(const VelorExchange::dxf::CSolidDXF& record) override;
    bool OnLine(const VelorExchange::dxf::CLineDXF& record) override;
    bool On3DFace(const VelorExchange::dxf::C3DFaceDXF& record) override;
    bool OnXLine(const VelorExchange::dxf::CXLineDXF& record) override;
    bool OnRay(const VelorExchange::dxf::CRayDXF& record) override;
    bool OnArc(const VelorExchange::dxf::CArcDXF& record) override;
    bool OnImage(const VelorExchange::dxf::CImageDXF& record) override;
    bool OnInsert(const VelorExchange::dxf::CInsertDXF& record) override;
    bool OnHatch(const VelorExchange::dxf::CHatchDXF& record) override;
    bool OnMText(const VelorExchange::dxf::CMTextDXF& record) override;
    bool OnText(const VelorExchange::dxf::CTextDXF& record) override;
    bool OnPoint(const VelorExchange::dxf::CPointDXF& record) override;
    bool OnBlock(const VelorExchange::dxf::CBlockDXF& record) override;
    bool OnTextStyle(const VelorExchange::dxf::CTextStyleDXF& record) override;
    bool OnLineStyle(const VelorExchange::dxf::CLineStyleDXF& record) override;
    bool OnLayer(const VelorExchange::dxf::CLayerDXF& record) override;
    VelorExchange::dxf::IDXFProgress* GetProgress() override { return progress; }

    /// Once the drawing is read: defines, without elements, the blocks that are inserted but not
    /// defined, so that the result refers to nothing that is not there.
    void Finish();

private:
    struct SLayer
    {
        bool isVisible = true;
        int lineWeight = 0; ///< Hundredths of a millimetre; zero and below are markers.
    };

    /// Counts an element as read, and as written where the writer took it.
    bool Count(EDxfKind kind, bool isWritten, const char* as);
    bool Count(EDxfKind kind, bool isWritten);
    bool CountText(EDxfKind kind, const QString& text, bool isWritten);

    void AdaptLayer(QString& layer);
    void AdaptHead(VelorExchange::dxf::CEntityDXF& head);
    double LineWeight(double hundredths, const QString& layer);
    void DropLineType(const VelorExchange::dxf::CEntityDXF& head);
    void AdaptText(VelorExchange::dxf::CTextDXF& text);
    void AdaptInOneLine(VelorExchange::dxf::CTextDXF& text);
    void AdaptStyle(VelorExchange::dxf::CTextStyleDXF& style);
    int Alignment(int horizontal);
    void Replay(const VelorExchange::dxf::CEntityVariantDXF& entity);
    bool WriteAsSpacePolyline(VelorExchange::dxf::CPolylineDXF& polyline);
    bool WriteAsPlanPolyline(const VelorExchange::dxf::CPolylineDXF& polyline);

    VelorExchange::dxf::IDXFWriter& writer;
    const CDxfSurvey& survey;
    CDxfTally& tally;
    VelorExchange::dxf::IDXFProgress* progress;
    CSafeNames layerNames;
    CSafeNames lineTypeNames;
    CSafeNames textStyleNames;
    CSafeNames mlineStyleNames;
    CSafeNames blockNames;
    QHash<QString, SLayer> layers; ///< By the name in the target.
    QHash<QString, VelorExchange::dxf::CMLineStyleDXF> mlineStyles; ///< By the name as given.
    QSet<QString> definedBlocks; ///< By the name in the target.
    QSet<QString> insertedBlocks; ///< By the name in the target.
};

} // namespace velorx

// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/convert/DxfReplayColours.h"
#include "tools/velorx/convert/SafeNames.h"
#include "tools/velorx/formats/DxfSurvey.h"
#include "tools/velorx/formats/DxfTally.h"
#include "VelorExchange/dxf/records/IDXFReader.h"
#include "VelorExchange/dxf/write/IDXFWriter.h"

#include <QHash>
#include <QSet>
#include <QString>

#include <set>
#include <utility>
#include <vector>

namespace velorx {

/// Hands a drawing on from the reader to the writer, one element at a time.
///
/// Angles become radians where the writer wants them, line weights millimetres, names safe; kinds that the
/// writer does not have become the nearest one that it has. What is changed or lost goes to the tally.
/// Memory grows with the number of names and multiline styles, and with the largest block.
class CDxfReplay final : public VelorExchange::dxf::IDXFReader
{
public:
    /// All four outlive this object. `bar` can be null. `version` is that of the drawing to write.
    CDxfReplay(VelorExchange::dxf::IDXFWriter& target, int version, const CDxfSurvey& firstLook,
               CDxfTally& counts, VelorExchange::dxf::IDXFProgress* bar);

    /// Objects end the reading, so that they are left alone where more stands behind them.
    bool OnSection(int stage) override;
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

    /// Notes what the element in hand loses or has changed. It is counted if the element is written.
    void Note(EDxfLoss loss, bool isLost = true, int count = 1);

    /// Counts the element in hand as read, and as written, with its losses, where the writer took it.
    bool Count(EDxfKind kind, bool isWritten, const char* as);
    bool Count(EDxfKind kind, bool isWritten);
    bool CountText(EDxfKind kind, const QString& text, bool isWritten);
    void Skip(const VelorExchange::dxf::CBlockDXF& block, EDxfLoss loss);

    void AdaptLayer(QString& layer);
    void Adapt(QString& layer, quint32& colour);
    void AdaptHead(VelorExchange::dxf::CEntityDXF& head);
    double LineWeight(double hundredths, const QString& layer);
    void AdaptText(VelorExchange::dxf::CTextDXF& text);
    void AdaptInOneLine(VelorExchange::dxf::CTextDXF& text);
    void AdaptStyle(VelorExchange::dxf::CTextStyleDXF& style);
    void AdaptTag(VelorExchange::dxf::CAttribDXF& attribute);
    int Alignment(int horizontal);
    void RegisterTextStyle(const QString& name);
    QString RegisterLineType(const QString& name);
    void Replay(const VelorExchange::dxf::CEntityVariantDXF& entity);
    void ReplayAttDef(const VelorExchange::dxf::CAttDefDXF& record);
    bool WriteAsSpacePolyline(VelorExchange::dxf::CPolylineDXF& polyline);
    bool WriteAsPlanPolyline(const VelorExchange::dxf::CPolylineDXF& polyline);
    void TakePattern(const VelorExchange::dxf::CHatchDXF& record,
                     VelorExchange::dxf::CHatchDXF& hatch);

    VelorExchange::dxf::IDXFWriter& writer;
    const CDxfSurvey& survey;
    CDxfTally& tally;
    VelorExchange::dxf::IDXFProgress* progress;
    CDxfReplayColours colours;
    CSafeNames layerNames;
    CSafeNames lineTypeNames;
    CSafeNames textStyleNames;
    CSafeNames mlineStyleNames;
    CSafeNames blockNames;
    QString layerInHand; ///< Of the element in hand, as in the source.
    std::vector<std::pair<EDxfLoss, int>> losses; ///< Of the element in hand.
    QString blockInHand; ///< As in the source.
    std::size_t attDefs = 0; ///< Met in the block in hand.
    QHash<QString, SLayer> layers; ///< By the name in the target.
    QHash<QString, VelorExchange::dxf::CMLineStyleDXF> mlineStyles; ///< By the name as given.
    QSet<QString> drawnMLineStyles; ///< By the name in the source, without case.
    QSet<QString> definedBlocks; ///< By the name in the target.
    std::set<QString> insertedBlocks; ///< By the name in the target.
};

} // namespace velorx

// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/Chords.h"
#include "tools/velorx/features/DxfBlocks.h"
#include "tools/velorx/features/DxfStyles.h"
#include "tools/velorx/features/FeatureTally.h"
#include "tools/velorx/features/IFeatureSource.h"
#include "tools/velorx/features/Placement.h"
#include "tools/velorx/formats/DxfKinds.h"
#include "VelorExchange/dxf/records/IDXFReader.h"

#include <QString>

#include <vector>

namespace velorx {

class CDxfSurvey;
class CDxfTally;
struct SPlainText;

/// Turns what the library reads of a drawing into features.
///
/// `ParseBlock` draws a block as if it stood at the origin, and its place is applied to the chords, points
/// and texts that come of it: so arcs stay arcs where an insert mirrors or stretches, at any depth.
/// Memory holds the blocks, and grows with the names of layers, styles and line types.
class CDxfFeatureReader final : public VelorExchange::dxf::IDXFReader
{
public:
    /// All but the options outlive this object. `expected` is the tally of the first look; it hears of what
    /// the library delivers, so that it knows what does not come.
    CDxfFeatureReader(IFeatureSink& features, CFeatureTally& counts, const CDxfSurvey& firstLook,
                      CDxfTally& expected, const SReadingOptions& options);

    /// No more than `count` elements of blocks are drawn, five million unless told otherwise.
    void LimitDrawn(qint64 count) { mostDrawn = count; }

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
    bool OnLayer(const VelorExchange::dxf::CLayerDXF& record) override;
    VelorExchange::dxf::IDXFProgress* GetProgress() override { return progress; }

    /// Once the drawing is read: lists what did not come to anything.
    void Finish();

private:
    /// Where elements stand, and what they take from the inserts around them.
    struct SPlace
    {
        CPlacement placement;
        bool isInBlock = false;
        QString layer; ///< Where what is drawn on layer 0 goes, within a block.
        int code = 0;
        CFeatureAttributes attributes;
        bool isInPicture = false; ///< Of a dimension or a table.
        int outlines = 0; ///< How many outlines of the element stand behind it.
    };

    // What elements have in common.
    void Meet(EDxfKind kind);
    QString LayerOf(const QString& layer) const;
    bool IsFloating(const QString& layer) const;
    bool IsByLayer(quint32 color, const QString& layer) const;
    quint32 ColourOf(quint32 color, const QString& layer) const;
    SFeatureStroke StrokeOf(const VelorExchange::dxf::CEntityDXF& head);
    void FillHead(SFeature& feature, const char* kind, const QString& layer) const;
    bool Lost(const char* kind, const QString& layer, const char* why);
    void Changed(const char* what, const QString& layer);

    // These put a feature in its place and hand it on; false if there is nothing of it.
    bool Give(SPointFeature& point);
    bool Give(SLineFeature& line);
    bool Give(SAreaFeature& area);
    bool Give(STextFeature& text);
    bool Give(SImageFeature& image);
    template <class TFeature>
    bool HandOnPlaced(const TFeature& feature);
    void Place(CFeatureLine& line) const;

    // Areas whose outlines stand behind them.
    bool Hold(const SAreaFeature& area);
    bool JoinHeld(const SAreaFeature& outline);
    void HandOnHeld();

    // A line, or an area where it is closed.
    bool GivePath(const char* kind, const VelorExchange::dxf::CEntityDXF& head, CFeatureLine path,
                  bool is3D, double width = 0.0);
    bool GivePolyline(const char* kind, const VelorExchange::dxf::CPolylineDXF& polyline);
    void GiveAttribute(const QString& block, const VelorExchange::dxf::CAttribDXF& attribute);
    bool GiveTextLine(const char* kind, const VelorExchange::dxf::CTextDXF& record,
                      double widthFactor);
    bool GiveWords(STextFeature& text, const VelorExchange::dxf::CTextDXF& record,
                   const SPlainText& plain);

    void FillPattern(SFeatureFill& fill, const VelorExchange::dxf::CHatchDXF& hatch) const;

    // Blocks.
    void TakeData(const VelorExchange::dxf::CInsertDXF& record);
    bool CanDraw(const char* kind, const VelorExchange::dxf::CInsertDXF& record);
    bool DrawBlock(const VelorExchange::dxf::CInsertDXF& record);
    void GivePoint(const VelorExchange::dxf::CInsertDXF& record);
    void DrawPictures(const QString& block);
    void DrawOutstanding();
    void Draw(const SDxfBlock& block, const VelorExchange::dxf::CInsertDXF& insert);
    void DrawOther(const VelorExchange::dxf::CEntityVariantDXF& entity,
                   const VelorExchange::dxf::CInsertDXF& insert);
    bool HasRoomFor(std::size_t elements);
    void AdaptChords();
    CFeatureAttributes Joined(const std::vector<VelorExchange::dxf::CAttribDXF>& own) const;

    IFeatureSink& sink;
    CFeatureTally& tally;
    const CDxfSurvey& survey;
    CDxfTally& firstTally;
    VelorExchange::dxf::IDXFProgress* progress;
    CChords chords;
    const double tolerance; ///< Of chords in the drawing; `chords` has that in the block.
    CDxfStyles styles;
    CDxfBlocks blocks;
    SPlace place;
    std::vector<const SDxfBlock*> open; ///< Blocks that are being drawn, the outermost first.
    qint64 drawn = 0; ///< Elements of blocks.
    qint64 mostDrawn = 5000000;
    qint64 given = 0; ///< Features that were handed on.
    bool hasNext = false; ///< Whether `next` waits for an element.
    SPlace next; ///< Attributes and code of the element that comes next.
    SAreaFeature held; ///< An area that waits for `outlinesToCome`.
    int outlinesToCome = 0;
    bool arePicturesDrawn = false; ///< Those outside blocks.
};

} // namespace velorx

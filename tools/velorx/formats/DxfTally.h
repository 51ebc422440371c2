// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/ConversionReport.h"
#include "tools/velorx/formats/DxfKinds.h"

#include <array>
#include <cstddef>
#include <map>
#include <string>

namespace velorx {

/// What a drawing can lose on its way through the reader and the writer, in the order of the report.
enum class EDxfLoss : std::size_t {
    PaperSpace,
    LayoutBlocks,
    ImagesOfBlocks,
    AttDefs,
    InsertArrays,
    NamelessBlocks,
    RepeatedBlocks,
    UndefinedBlocks,
    OutsideBlocks,
    BlockBasePoints,
    BlockLayers,
    HiddenInBlocks,
    Invisible,
    MirroredPlanes,
    ExplicitByLayer,
    LoneTrueColours,
    LayerColours,
    LayerLineTypes,
    LineTypePatterns,
    LineTypeScales,
    LineTypesDropped,
    BlockLineWeights,
    Thicknesses,
    Heights,
    Arcs,
    Ellipses,
    Rays,
    Solids,
    Polylines2D,
    PolylineHeights,
    Meshes,
    TwoVertexClosed,
    ChangingWidths,
    SplineDegrees,
    SplineFits,
    SplineWeights,
    FaceEdges,
    MLineColours,
    MLineScales,
    MLineSides,
    MLineStyles,
    HatchPatterns,
    HatchCurves,
    HatchBoundaries,
    InsertLineTypes,
    InsertScaleZ,
    TextAlignments,
    TextVerticals,
    TextRotations,
    TextSeams,
    TextBlanks,
    LongTexts,
    Letters,
    Names,
    TextStyleValues,
    TextStyleFonts,
    ImageColours,
    ExtendedData,
    EmptyTexts,
    Refused,
    kCount
};

/// The loss in words that follow its count.
const char* LossText(EDxfLoss loss);

/// Counts of one conversion.
class CDxfTally
{
public:
    void Read(EDxfKind kind, bool isInBlock) { ++(isInBlock ? inBlocks : inDrawing)[kind]; }
    void Wrote(EDxfKind kind, const char* as)
    {
        ++written[kind];
        writtenAs[kind][as] += 1;
    }
    void Lose(EDxfLoss loss, qint64 count = 1) { losses[static_cast<std::size_t>(loss)] += count; }

    /// An entity whose kind the reader does not know. Beyond a thousand kinds they count together.
    void Unread(const std::string& kind);

    qint64 Losses(EDxfLoss loss) const { return losses[static_cast<std::size_t>(loss)]; }

    /// Puts what was met into the report.
    void FillReport(CConversionReport& report) const;

private:
    CEntityCounts inDrawing{};
    CEntityCounts inBlocks{};
    CEntityCounts written{};
    std::array<std::map<std::string, qint64>, kDxfKinds> writtenAs;
    std::array<qint64, static_cast<std::size_t>(EDxfLoss::kCount)> losses{};
    std::map<std::string, qint64> unread;
};

} // namespace velorx

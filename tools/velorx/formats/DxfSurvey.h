// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/formats/DxfAttDefs.h"
#include "tools/velorx/formats/DxfColourUse.h"
#include "tools/velorx/formats/DxfGroups.h"
#include "tools/velorx/formats/DxfHatchPatterns.h"
#include "tools/velorx/formats/DxfHiddenTags.h"
#include "tools/velorx/formats/DxfLineTypes.h"
#include "tools/velorx/formats/DxfMendings.h"
#include "tools/velorx/formats/DxfMLineStyle.h"
#include "tools/velorx/formats/DxfPictures.h"
#include "tools/velorx/formats/DxfShapeScan.h"
#include "tools/velorx/formats/DxfTally.h"
#include "tools/velorx/formats/DxfTextHabits.h"
#include "VelorExchange/dxf/records/TextStyle.h"
#include "VelorExchange/foundation/Point.h"

#include <QHash>
#include <QString>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace velorx {

/// A first look over the pairs of a drawing for what the library's reader leaves out: kinds of entities that
/// it does not know, groups that it does not read, the content of tables, the base points of blocks, the
/// definitions of attributes.
///
/// Memory grows with the number of names alone: of layers, styles, blocks, attributes and kinds.
class CDxfSurvey
{
public:
    /// What is left out goes to `counts`, which outlives this object.
    explicit CDxfSurvey(CDxfTally& counts) : tally(counts) { }

    /// Looks over the drawing at `path`; false if it cannot be opened.
    bool Read(const QString& path);

    /// The groups of the multiline style `name`, in any case; null if the drawing has none.
    const CMLineStyleGroups* MLineStyle(const QString& name) const;

    /// The names of all multiline styles, in their order.
    QStringList MLineStyleNames() const;

    /// The scale of the first multiline of the style `name`, 1 where there is none.
    double MLineScale(const QString& name) const;

    /// The line type `name`, in any case, with the elements of its pattern; null if the drawing has none.
    const VelorExchange::dxf::CLineStyleDXF* LineType(const QString& name) const
    {
        return lineTypes.Find(name);
    }

    const CDxfLineTypes& LineTypes() const { return lineTypes; }

    /// The factor on all dashes of the drawing.
    double LineTypeScale() const { return lineTypeScale; }

    /// The text style `name`, in any case; null if the drawing has none. The slant is in degrees, as the
    /// writer wants it.
    const VelorExchange::dxf::CTextStyleDXF* TextStyle(const QString& name) const;

    /// The base point of the block `name`, in any case.
    VelorExchange::CPoint3D BasePoint(const QString& name) const;

    /// The file that the block `name`, in any case, stands for; empty for a block of the drawing's own.
    QString OutsideFile(const QString& name) const;

    /// Width and height in pixels of the picture in the file `path`, as the reader delivers it; 0 where no
    /// definition of an image tells them.
    VelorExchange::CPoint2D ImageSize(const QString& path) const { return imageSizes.value(path); }

    /// Whether a section to be read stands behind the objects, behind which the reader does not look.
    bool AreObjectsAhead() const { return areObjectsAhead; }

    const CDxfAttDefs& AttDefs() const { return attDefs; }
    const CDxfColourUse& Colours() const { return colours; }
    const CDxfHatchPatterns& HatchPatterns() const { return hatchPatterns; }
    const CDxfHiddenTags& HiddenTags() const { return hiddenTags; }
    const CDxfMendings& Mendings() const { return mendings; }
    const CDxfPictures& Pictures() const { return pictures; }
    const CDxfTextHabits& Texts() const { return texts; }

private:
    void TakeTag(int code, std::string_view value);
    void TakeHeader(int code, std::string_view value);
    void TakeVariable(int code, std::string_view value);
    void BeginSection(std::string_view name);
    void BeginRecord(std::string_view kind);
    void FinishRecord();
    void FinishEntity();
    void TakeUnknown();
    void TakeLeader();
    void JudgeEntity();
    void JudgeMLine();
    void FinishTableRecord();
    void FinishObject();
    void AddImageSize();
    void JudgeLayer();
    void AddTextStyle();
    void AddMLineStyle();
    void AddLineType();
    void AddBlock();
    void FinishAll();
    QString Decoded(const std::string& bytes) const;
    QString Layer() const;
    CDxfGroupList DecodedTags() const;
    bool Is(std::string_view kind) const { return record == kind; }

    CDxfTally& tally;
    std::string section;
    std::string record; ///< Kind of the record in hand, in capitals.
    std::string variable; ///< Of the header, in capitals.
    bool isInBlock = false;
    bool hasReadInsert = false; ///< Whether attributes that follow are read.
    bool areObjectsPassed = false;
    bool areObjectsAhead = false;
    int version = 1009;
    double lineTypeScale = 1.0;
    bool hasLinesOfLayers = false; ///< Whether a layer has a line type or weight.
    qint64 followers =
        0; ///< Elements that take line type or weight from the layer of their insert.
    QString block; ///< Name of the one in hand.
    CDxfGroups groups;
    std::vector<std::pair<int, std::string>> tags; ///< Of the style in hand, in their order.
    CDxfShapeScan shapes;
    CDxfLineTypes lineTypes;
    CDxfHatchPatterns hatchPatterns;
    CDxfAttDefs attDefs;
    CDxfHiddenTags hiddenTags;
    CDxfColourUse colours;
    CDxfMendings mendings;
    CDxfPictures pictures;
    CDxfTextHabits texts;
    QHash<QString, VelorExchange::dxf::CTextStyleDXF> textStyles; ///< By name without case.
    QHash<QString, QString> styleHandles; ///< Names of text styles by handle in capitals.
    QHash<QString, QString> shapeFiles; ///< Files of shapes by the handle of their style.
    QHash<QString, VelorExchange::CPoint3D>
        basePoints; ///< Those other than 0, by name without case.
    QHash<QString, QString> outsideFiles; ///< By name of the block without case.
    QHash<QString, VelorExchange::CPoint2D> imageSizes; ///< By path.
    QHash<QString, CMLineStyleGroups> mlineStyles; ///< By name without case.
    QHash<QString, double> mlineScales; ///< By style name without case.
};

} // namespace velorx

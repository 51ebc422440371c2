// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/formats/DxfGroups.h"
#include "tools/velorx/formats/DxfMLineStyle.h"
#include "tools/velorx/formats/DxfTally.h"
#include "VelorExchange/dxf/records/LineStyle.h"
#include "VelorExchange/foundation/Point.h"

#include <QHash>
#include <QString>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace velorx {

/// A first look over the pairs of a drawing for what the library's reader leaves out: kinds of
/// entities that it does not know, groups that it does not read, the dashes of line types, the base
/// points of blocks, and the styles of multilines.
///
/// Memory grows with the number of names alone: of line types, multiline styles, blocks and kinds.
class CDxfSurvey
{
public:
    /// What is left out goes to `counts`, which outlives this object.
    explicit CDxfSurvey(CDxfTally& counts) : tally(counts) { }

    /// Looks over the drawing at `path`; false if it cannot be opened.
    bool Read(const QString& path);

    /// The groups of the multiline style `name`, in any case; null if the drawing has none.
    const CMLineStyleGroups* MLineStyle(const QString& name) const;

    /// The scale of the first multiline of the style `name`, 1 where there is none.
    double MLineScale(const QString& name) const;

    /// The line type `name`, in any case, with the dashes that stand in its pattern; null if the drawing
    /// has none.
    const VelorExchange::dxf::CLineStyleDXF* LineType(const QString& name) const;

    /// The base point of the block `name`, in any case.
    VelorExchange::CPoint3D BasePoint(const QString& name) const;

    /// Whether texts that are set by their middle or right end have that point as their position.
    /// Otherwise, as in most drawings, their position is their left end.
    bool IsPositionTheAnchor() const { return anchorsAtPosition > anchorsElsewhere; }

private:
    void TakeTag(int code, std::string_view value);
    void TakeHeader(int code, std::string_view value);
    void BeginRecord(std::string_view kind);
    void FinishRecord();
    void FinishEntity();
    void JudgeEntity();
    void JudgeByKind();
    void JudgeText(int verticalCode);
    void JudgeMText();
    void JudgeMLine();
    void JudgeLayer();
    void JudgeTextStyle();
    void AddMLineStyle();
    void AddLineType();
    void AddBlock();
    QString Decoded(const std::string& bytes) const;
    bool Is(std::string_view kind) const { return record == kind; }

    CDxfTally& tally;
    std::string section;
    std::string record; ///< Kind of the record in hand, in capitals.
    bool isInBlock = false;
    bool isVersionNext = false;
    int version = 1009;
    CDxfGroups groups;
    std::vector<std::pair<int, std::string>> styleTags; ///< Of the line or multiline style in hand.
    QHash<QString, VelorExchange::dxf::CLineStyleDXF> lineTypes; ///< By name without case.
    QHash<QString, VelorExchange::CPoint3D>
        basePoints; ///< Those other than 0, by name without case.
    QHash<QString, CMLineStyleGroups> mlineStyles; ///< By name without case.
    QHash<QString, double> mlineScales; ///< By style name without case.
    qint64 anchorsAtPosition = 0;
    qint64 anchorsElsewhere = 0;
};

} // namespace velorx

// SPDX-License-Identifier: MIT
// Texts, and inserts with the texts of their attributes.
#include "tools/velorx/convert/DxfReplay.h"
#include "tools/velorx/formats/DrawingText.h"

#include <cmath>

namespace velorx {

using namespace VelorExchange::dxf;
using VelorExchange::CPoint3D;

namespace {

constexpr double kDegree = 3.141592653589793 / 180.0;
constexpr double kTwoPi = 6.283185307179586;
constexpr int kLongestText = 255;

// Group 72 of TEXT.
enum EHorizontal { kLeft, kCentre, kRight, kAligned, kMiddle, kFit };

// The writer's alignments: how far to the right, and which line of the letters.
constexpr int kBaseLine = 12;
constexpr int kMiddleLine = 4;

// Group 71 of MTEXT, 1 to 9 row by row from the top left, in the writer's terms.
int AttachmentForWriter(int attachment)
{
    constexpr int kPlaces = 9;
    constexpr int kColumns = 3;
    constexpr int kRow = 4;
    if (attachment < 1 || attachment > kPlaces) {
        return 0;
    }
    return (attachment - 1) % kColumns + kRow * ((attachment - 1) / kColumns);
}

// The insertion point that puts the base point of the block where the source has it.
CPoint3D WithoutBase(const CInsertDXF& insert, const CPoint3D& base)
{
    const double angle = insert.rotation * kDegree;
    const double x = insert.scaleX * base.x;
    const double y = insert.scaleY * base.y;
    return {insert.point.x - x * std::cos(angle) + y * std::sin(angle),
            insert.point.y - x * std::sin(angle) - y * std::cos(angle),
            insert.point.z - insert.scaleZ * base.z};
}

} // namespace

// A text that is not set by its left end keeps its place: by the point that the drawing tells as its
// position, which is the left end of the base line unless the drawing's texts are found to be told
// otherwise.
int CDxfReplay::Alignment(int horizontal)
{
    if (horizontal == kLeft) {
        return kBaseLine;
    }
    if (survey.IsPositionTheAnchor()) {
        switch (horizontal) {
        case kCentre:
            return kCentre + kBaseLine;
        case kRight:
            return kRight + kBaseLine;
        case kMiddle:
            return kCentre + kMiddleLine;
        default:
            break;
        }
    }
    tally.Lose(EDxfLoss::TextAlignments);
    return kBaseLine;
}

void CDxfReplay::AdaptStyle(CTextStyleDXF& style)
{
    CTextStyleDXF
        plain; // what is not in the table gets an entry without the text's own width and slant
    plain.name = style.name.trimmed().isEmpty() ? plain.name : textStyleNames.Of(style.name);
    writer.AddTextStyle(plain, false);
    style.name = plain.name;
    style.obliqueAngle /= kDegree;
}

void CDxfReplay::AdaptText(CTextDXF& text)
{
    AdaptLayer(text.layer);
    AdaptStyle(text.style);
    bool isWhole = true;
    text.text = TextForDrawing(text.text, isWhole);
    tally.Lose(EDxfLoss::Letters, isWhole ? 0 : 1);
}

void CDxfReplay::AdaptInOneLine(CTextDXF& text)
{
    AdaptText(text);
    text.alignment = Alignment(text.alignment);
    const QString simplified = text.text.simplified();
    tally.Lose(EDxfLoss::TextBlanks, simplified.size() != text.text.trimmed().size() ? 1 : 0);
    tally.Lose(EDxfLoss::LongTexts, simplified.size() > kLongestText ? 1 : 0);
}

// The reader puts the relative width of a TEXT into the style's height.
bool CDxfReplay::OnText(const CTextDXF& record)
{
    CTextDXF text = record;
    AdaptInOneLine(text);
    text.style.widthFactor = record.style.height != 0 ? record.style.height : 1.0;
    return CountText(kText, record.text, writer.AddText(text));
}

bool CDxfReplay::OnMText(const CMTextDXF& record)
{
    CMTextDXF text = record;
    AdaptText(text);
    text.alignment = AttachmentForWriter(record.alignment);
    return CountText(kMText, record.text, writer.AddMText(text));
}

// The writer turns inserts the other way round.
bool CDxfReplay::OnInsert(const CInsertDXF& record)
{
    CInsertDXF insert = record;
    AdaptLayer(insert.layer);
    insert.point = WithoutBase(record, survey.BasePoint(record.name));
    insert.rotation = kTwoPi - record.rotation * kDegree;
    if (!record.name.isEmpty()) {
        insert.name = blockNames.Of(record.name);
        insertedBlocks.insert(insert.name);
    }
    const bool isContinuous =
        lineTypeNames.Of(record.lineStyle.name) == QLatin1String("CONTINUOUS");
    tally.Lose(EDxfLoss::InsertLineTypes, isContinuous ? 0 : 1);
    tally.Lose(EDxfLoss::InsertScaleZ, record.scaleZ == 1.0 ? 0 : 1);
    for (CAttribDXF& attribute : insert.attributes) {
        AdaptInOneLine(attribute);
    }
    return Count(kInsert, writer.AddInsert(insert));
}

} // namespace velorx

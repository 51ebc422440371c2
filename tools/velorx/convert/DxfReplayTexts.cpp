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
    if (survey.Texts().IsPositionTheAnchor()) {
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
    Note(EDxfLoss::TextAlignments);
    return kBaseLine;
}

// The writer wants the slant in degrees.
void CDxfReplay::AdaptStyle(CTextStyleDXF& style)
{
    if (style.name.trimmed().isEmpty()) {
        style.name = CTextStyleDXF().name;
    }
    RegisterTextStyle(style.name);
    style.name = textStyleNames.Of(style.name);
    style.obliqueAngle /= kDegree;
}

void CDxfReplay::AdaptText(CTextDXF& text)
{
    Adapt(text.layer, text.color);
    AdaptStyle(text.style);
    bool isWhole = true;
    text.text = TextForDrawing(text.text, isWhole);
    Note(EDxfLoss::Letters, !isWhole);
}

void CDxfReplay::AdaptInOneLine(CTextDXF& text)
{
    AdaptText(text);
    const QString simplified = text.text.simplified();
    Note(EDxfLoss::TextBlanks, simplified.size() != text.text.trimmed().size());
    Note(EDxfLoss::LongTexts, simplified.size() > kLongestText);
}

// The reader puts the relative width of a TEXT into the style's height.
bool CDxfReplay::OnText(const CTextDXF& record)
{
    CTextDXF text = record;
    AdaptInOneLine(text);
    text.alignment = Alignment(record.alignment);
    text.style.widthFactor = record.style.height != 0 ? record.style.height : 1.0;
    return CountText(kText, record.text, writer.AddText(text));
}

bool CDxfReplay::OnMText(const CMTextDXF& record)
{
    CMTextDXF text = record;
    text.text = survey.Texts().WithoutSeams(record.text);
    AdaptText(text);
    text.alignment = AttachmentForWriter(record.alignment);
    return CountText(kMText, record.text, writer.AddMText(text));
}

// The reader keeps tag and value of a definition; the rest stands in the survey, in the same order.
void CDxfReplay::ReplayAttDef(const CAttDefDXF& record)
{
    const SDxfAttDef* told = survey.AttDefs().Find(blockInHand, attDefs);
    ++attDefs;
    layerInHand.clear();
    bool isWritten = false;
    if (told != nullptr && told->text.tag == record.tag) {
        CAttribDXF text = told->text;
        text.color = colours.Of(*told);
        AdaptTag(text);
        AdaptInOneLine(text);
        isWritten = writer.AddAttribute(text, false);
    }
    Count(kAttDef, isWritten);
}

void CDxfReplay::AdaptTag(CAttribDXF& attribute)
{
    bool isWhole = true;
    attribute.tag = TextForDrawing(attribute.tag, isWhole);
    Note(EDxfLoss::Letters, !isWhole);
}

// The writer turns inserts the other way round.
bool CDxfReplay::OnInsert(const CInsertDXF& record)
{
    CInsertDXF insert = record;
    for (CAttribDXF& attribute : insert.attributes) {
        const int horizontal = attribute.alignment;
        AdaptInOneLine(attribute);
        attribute.alignment = Alignment(horizontal);
        attribute.hidden = survey.HiddenTags().IsHidden(record.name, attribute.tag);
        AdaptTag(attribute);
    }
    Adapt(insert.layer, insert.color);
    insert.point = WithoutBase(record, survey.BasePoint(record.name));
    insert.rotation = kTwoPi - record.rotation * kDegree;
    const bool isContinuous =
        lineTypeNames.Of(record.lineStyle.name) == QLatin1String("CONTINUOUS");
    Note(EDxfLoss::InsertLineTypes, !isContinuous);
    Note(EDxfLoss::InsertScaleZ, record.scaleZ != 1.0);
    if (!record.name.isEmpty()) {
        insert.name = blockNames.Of(record.name);
    }
    const bool isWritten = writer.AddInsert(insert);
    if (isWritten) {
        insertedBlocks.insert(insert.name);
    }
    return Count(kInsert, isWritten);
}

} // namespace velorx

// SPDX-License-Identifier: MIT
// Texts, and the attributes of inserts as such.
#include "tools/velorx/features/DxfFeatureLosses.h"
#include "tools/velorx/features/DxfFeatureReader.h"
#include "tools/velorx/features/PlainText.h"
#include "tools/velorx/formats/DxfKinds.h"
#include "tools/velorx/formats/DxfSurvey.h"
#include "VelorExchange/dxf/write/Colour.h"

#include <cmath>

namespace velorx {

using namespace VelorExchange::dxf;

namespace {

constexpr double kUsualHeight = 2.5;

// Group 72 of TEXT.
enum EHorizontal { kLeft, kCentre, kRight, kAligned, kMiddle, kFit };

// Group 71 of MTEXT, row by row from the top left.
constexpr int kPlaces = 9;
constexpr int kColumns = 3;
constexpr EFeatureAlign kAligns[] = {EFeatureAlign::Left, EFeatureAlign::Centre,
                                     EFeatureAlign::Right};
constexpr EFeatureVertical kVerticals[] = {EFeatureVertical::Top, EFeatureVertical::Middle,
                                           EFeatureVertical::Bottom};

bool IsFree(int horizontal)
{
    return horizontal == kCentre || horizontal == kRight || horizontal == kMiddle;
}

} // namespace

bool CDxfFeatureReader::OnText(const CTextDXF& record)
{
    Meet(kText);
    return GiveTextLine(EntityName(kText), record, record.style.height);
}

// The position is the left end of the base line, and right so for all alignments, unless the drawing's texts
// are found to have the point there that they are set by.
bool CDxfFeatureReader::GiveTextLine(const char* kind, const CTextDXF& record, double widthFactor)
{
    STextFeature text;
    FillHead(text, kind, record.layer);
    if (IsFree(record.alignment)) {
        if (survey.Texts().IsPositionTheAnchor()) {
            text.align = record.alignment == kRight ? EFeatureAlign::Right : EFeatureAlign::Centre;
            text.vertical =
                record.alignment == kMiddle ? EFeatureVertical::Middle : EFeatureVertical::Baseline;
        } else {
            Changed(losses::kAnchors, text.layer);
        }
    }
    if (record.alignment == kAligned || record.alignment == kFit) {
        Changed(losses::kStretchedTexts, text.layer);
    }
    text.widthFactor = widthFactor > 0 ? widthFactor : 1.0;
    text.slant = record.style.obliqueAngle;
    return GiveWords(text, record, PlainOfText(record.text));
}

bool CDxfFeatureReader::OnMText(const CMTextDXF& record)
{
    Meet(kMText);
    STextFeature text;
    FillHead(text, EntityName(kMText), record.layer);
    const bool isPlace = record.alignment >= 1 && record.alignment <= kPlaces;
    const int place71 = isPlace ? record.alignment - 1 : 0;
    text.align = kAligns[place71 % kColumns];
    text.vertical = kVerticals[place71 / kColumns];
    text.columnWidth = record.rectWidth > 0 ? record.rectWidth : 0.0;
    return GiveWords(text, record, PlainOfMText(survey.Texts().WithoutSeams(record.text)));
}

// What the codes tell of the first letter goes for all, before what the style tells.
bool CDxfFeatureReader::GiveWords(STextFeature& text, const CTextDXF& record,
                                  const SPlainText& plain)
{
    constexpr int kByLayer = 256;
    const SLetters& letters = plain.letters;
    if (plain.text.trimmed().isEmpty()) {
        return Lost(text.kind, text.layer, losses::kWordless);
    }
    const SDxfTypeface typeface = styles.Typeface(record.style.name);
    const bool hasFont = !letters.font.isEmpty();
    text.text = plain.text;
    text.position = {record.position.x, record.position.y, 0.0};
    text.rotation = record.rotation;
    text.font = hasFont ? letters.font : typeface.name;
    text.isBold = hasFont ? letters.isBold : typeface.isBold;
    text.isItalic = hasFont ? letters.isItalic : typeface.isItalic;
    text.isUnderlined = letters.isUnderlined;
    text.widthFactor = letters.widthFactor > 0 ? letters.widthFactor : text.widthFactor;
    text.slant = letters.slant != 0 ? letters.slant : text.slant;
    text.height =
        std::fabs((letters.height > 0 ? letters.height : record.height) * letters.heightFactor);
    text.color = ColourOf(record.color, record.layer);
    if (letters.trueColour >= 0) {
        text.color = static_cast<quint32>(letters.trueColour);
    } else if (letters.colour == kByLayer) {
        text.color = styles.Layer(text.layer).color;
    } else if (letters.colour > 0) {
        text.color = static_cast<quint32>(NumColACAD2RGB(letters.colour));
    }
    if (text.height == 0.0) {
        text.height = kUsualHeight;
        Changed(losses::kNoHeight, text.layer);
    }
    if (plain.isSimplified) {
        Changed(losses::kFormats, text.layer);
    }
    return Give(text);
}

} // namespace velorx

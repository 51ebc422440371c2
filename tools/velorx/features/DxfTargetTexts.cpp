// SPDX-License-Identifier: MIT
// Texts: those of one line by their base line as TEXT, all others as MTEXT.
#include "tools/velorx/features/CodedText.h"
#include "tools/velorx/features/DxfFeatureTarget.h"
#include "tools/velorx/features/DxfStyles.h"
#include "tools/velorx/features/DxfTargetLosses.h"
#include "tools/velorx/features/FeatureTally.h"
#include "tools/velorx/features/FiniteFeature.h"

#include <cmath>

namespace velorx {

using namespace VelorExchange::dxf;
using VelorExchange::CPoint2D;

namespace {

constexpr double kDegree = 3.141592653589793 / 180.0;
constexpr int kLongestText = 255;
constexpr int kBaseLine = 12; // of the writer's alignments
constexpr char kUsualTypeface[] = "Arial";

QString TypefaceFor(const STextFeature& text)
{
    const bool isCut = text.isBold || text.isItalic;
    return text.font.isEmpty() && isCut ? QString::fromLatin1(kUsualTypeface) : text.font;
}

QString Number(double number)
{
    constexpr int kDigits = 6;
    return QString::number(number, 'g', kDigits);
}

// The codes that a text begins with.
QString Formats(const STextFeature& text)
{
    const QString typeface = TypefaceFor(text);
    QString codes;
    if (!typeface.isEmpty()) {
        codes += QStringLiteral("\\f%1|b%2|i%3;")
                     .arg(QString(typeface).remove(u';').remove(u'|'))
                     .arg(text.isBold ? 1 : 0)
                     .arg(text.isItalic ? 1 : 0);
    }
    if (text.widthFactor != 1.0 && text.widthFactor > 0) {
        codes += QLatin1String("\\W") + Number(text.widthFactor) + u';';
    }
    if (text.slant != 0.0) {
        codes += QLatin1String("\\Q") + Number(text.slant / kDegree) + u';';
    }
    if (text.isUnderlined) {
        codes += QLatin1String("\\L");
    }
    return codes;
}

// The writer's alignment of an MTEXT: a row of four for top, middle and bottom.
int AttachmentOf(const STextFeature& text)
{
    constexpr int kRow = 4;
    const int column = static_cast<int>(text.align);
    switch (text.vertical) {
    case EFeatureVertical::Middle:
        return column + kRow;
    case EFeatureVertical::Bottom:
        return column + 2 * kRow;
    default:
        return column;
    }
}

} // namespace

const char* CDxfFeatureTarget::Take(const STextFeature& text)
{
    hasData = false;
    if (text.text.isEmpty() || !IsFinite(text)) {
        return Result(false, text, nullptr);
    }
    if (text.position.z != 0) {
        Changed(losses::kTextHeights, text.layer);
    }
    WriteData(text, text.position);
    const bool isInOneLine = text.vertical == EFeatureVertical::Baseline && text.columnWidth == 0.0
        && !text.text.contains(u'\n');
    const bool isWritten = isInOneLine ? WriteInOneLine(text) : WriteInLines(text);
    return Result(isWritten, text, isInOneLine ? "TEXT" : "MTEXT");
}

void CDxfFeatureTarget::FillText(CTextDXF& record, const STextFeature& text)
{
    SFeatureStroke stroke;
    stroke.color = text.color;
    const CEntityDXF head = Head(text, stroke);
    record.layer = head.layer;
    record.color = head.color;
    record.position = {text.position.x, text.position.y};
    record.height = text.height;
    record.rotation = text.rotation;
}

// The style of a typeface; a text's own width and slant are not its style's.
CTextStyleDXF CDxfFeatureTarget::TextStyle(const STextFeature& text)
{
    CTextStyleDXF style;
    const QString typeface = TypefaceFor(text);
    if (!typeface.isEmpty()) {
        const QString name = typeface + (text.isBold ? QStringLiteral(" Bold") : QString())
            + (text.isItalic ? QStringLiteral(" Italic") : QString());
        style.name = textStyleNames.Of(name);
        style.faceName = typeface;
        style.fontFile = FontFileOf({typeface, text.isBold, text.isItalic});
        style.bold = text.isBold;
        style.italic = text.isItalic;
    }
    writer->AddTextStyle(style, false);
    return style;
}

bool CDxfFeatureTarget::WriteInOneLine(const STextFeature& text)
{
    CTextDXF record;
    FillText(record, text);
    bool isWhole = true;
    record.text = CodedText(text.text, isWhole);
    if (text.isUnderlined) {
        record.text.prepend(QLatin1String("%%u"));
    }
    if (!isWhole) {
        Changed(losses::kLetters, text.layer);
    }
    if (record.text.size() > kLongestText) {
        Changed(losses::kLongTexts, text.layer);
    }
    record.alignment = static_cast<int>(text.align) + kBaseLine;
    record.style = TextStyle(text);
    record.style.widthFactor = text.widthFactor;
    record.style.obliqueAngle = text.slant / kDegree;
    return writer->AddText(record);
}

// The top of the letters is their height above the base line.
bool CDxfFeatureTarget::WriteInLines(const STextFeature& text)
{
    CMTextDXF record;
    FillText(record, text);
    bool isWhole = true;
    const QString codes = Formats(text);
    const QString coded = CodedMText(text.text, isWhole);
    record.text = WithCodesAtSeams(codes.isEmpty() ? coded : u'{' + codes + coded + u'}');
    if (!isWhole) {
        Changed(losses::kLetters, text.layer);
    }
    if (text.vertical == EFeatureVertical::Baseline) {
        record.position.x -= text.height * std::sin(text.rotation);
        record.position.y += text.height * std::cos(text.rotation);
    }
    record.alignment = AttachmentOf(text);
    record.rectWidth = text.columnWidth;
    return writer->AddMText(record);
}

} // namespace velorx

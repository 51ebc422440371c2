// SPDX-License-Identifier: MIT
// Texts and their parts.
#include "tools/velorx/features/FeatureTally.h"
#include "tools/velorx/features/SxfAlign.h"
#include "tools/velorx/features/SxfFeatures.h"
#include "tools/velorx/features/SxfOutput.h"
#include "tools/velorx/features/SxfPoints.h"
#include "tools/velorx/features/SxfTextPlace.h"
#include "tools/velorx/formats/SxfCodes.h"

#include <QStringList>

namespace velorx {

using namespace VelorExchange::pnr;
using VelorExchange::CPoint2D;

namespace {

constexpr quint32 kColour = 0xFFFFFF;
constexpr quint16 kBold = 600;

} // namespace

void CSxfFeatures::FillLetters(STextFeature& feature, const CTextObject& text)
{
    feature.height = OnGround(text.image.height, scale);
    if (!text.hasOwnImage) {
        return; // the classifier knows
    }
    feature.color = text.image.color & kColour;
    feature.font = text.image.fontName;
    feature.isBold = text.image.weight >= kBold;
    feature.isItalic = text.image.italic != 0;
    feature.isUnderlined = text.image.uline != 0;
    if (text.image.xline != 0) {
        tally.Lose(QStringLiteral("texts that were struck out"), feature.layer);
    }
    if (text.image.bColor != kSxfNoColour || text.image.sColor != kSxfNoColour) {
        tally.Lose(QStringLiteral("backgrounds and shadows of texts"), feature.layer);
    }
}

void CSxfFeatures::Take(CTextObject& text)
{
    HandOnPending();
    STextFeature feature;
    FillHead(feature, text);
    FillLetters(feature, text);
    const auto parts = text.extraTexts.size() + 1;
    QStringList lines(text.text);
    for (const QString& part : text.extraTexts) {
        lines.append(part);
    }
    const bool isApart = text.holders.size() == parts;
    for (std::size_t i = 0; i < (isApart ? parts : 1); ++i) {
        feature.text = isApart ? lines.at(static_cast<int>(i)) : lines.join(QLatin1Char('\n'));
        feature.kind = i == 0 ? kSxfText : kSxfTextPart;
        HandOnPart(feature, text, i);
        feature.attributes = nullptr; // they stand with the first part
    }
}

void CSxfFeatures::HandOnPart(STextFeature& feature, const CTextObject& text, std::size_t part)
{
    tally.Read(feature.kind);
    const CFeatureLine points =
        part < text.holders.size() ? SxfPoints(*text.holders[part]) : CFeatureLine();
    if (points.empty() || feature.text.trimmed().isEmpty()) {
        tally.Lose(QStringLiteral("texts without letters or place"), feature.layer);
        return;
    }
    const SSxfAlign align = FromSxfAlign(part == 0 ? text.image.align : text.extraAligns[part - 1]);
    const SSxfTextLine line = {{points.front().y, points.front().x},
                               {points.back().y, points.back().x}};
    const CPoint2D place = PointAlong(line, align.along);
    feature.position = {place.y, place.x, points.front().z};
    feature.rotation = SxfDirection(points);
    feature.align = align.along;
    feature.vertical = align.across;
    HandOn(feature, sink, tally);
}

} // namespace velorx

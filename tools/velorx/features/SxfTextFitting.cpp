// SPDX-License-Identifier: MIT
// What CSxfFitting does with texts.
#include "tools/velorx/features/FeatureTally.h"
#include "tools/velorx/features/SxfAlign.h"
#include "tools/velorx/features/SxfFitting.h"
#include "tools/velorx/features/SxfTextPlace.h"

#include <QStringList>

#include <algorithm>
#include <memory>

namespace velorx {

using namespace VelorExchange::pnr;
using VelorExchange::CPoint2D;

namespace {

constexpr int kLongestText = 252; // with two characters for a line break

std::unique_ptr<CVertexHolder2D> InPlan(const CVertexHolder3D& contour)
{
    auto flat = std::make_unique<CVertexHolder2D>();
    for (const auto& vertex : contour.vertices) {
        flat->vertices.push_back({vertex.x, vertex.y});
    }
    return flat;
}

bool HasHeights(const CVertexHolder3D& contour)
{
    return std::any_of(contour.vertices.begin(), contour.vertices.end(),
                       [](const auto& vertex) { return vertex.z != 0.0; });
}

} // namespace

void CSxfFitting::FitText(CTextObject& text, int scale)
{
    auto& contour = text.holders.front();
    if (!contour->Is2D()) {
        const auto& spatial = static_cast<const CVertexHolder3D&>(*contour);
        if (HasHeights(spatial)) {
            tally.Lose(QStringLiteral("texts lost their height above zero"), text.layer);
        }
        contour = InPlan(spatial);
    }
    FitParts(text);
    if (isTextForm) {
        return;
    }
    // The binary form counts on a line of two vertices.
    auto& vertices = static_cast<CVertexHolder2D&>(*contour).vertices;
    if (vertices.size() == 1) {
        const double height = OnGround(text.image.height, scale);
        const SSxfTextLine line = MakeTextLine(vertices.front(), 0.0, TextLength(text.text, height),
                                               FromSxfAlign(text.image.align).along);
        vertices = {line.first, line.last};
    } else if (vertices.size() > 2) {
        tally.Lose(QStringLiteral("texts along a curve became straight"), text.layer);
        vertices.resize(2);
    }
}

// The text form has a line for each part, and of a text with its own drawing no further parts; the binary
// form has one part with line breaks in it.
void CSxfFitting::FitParts(CTextObject& text)
{
    FitPart(text.text, text.layer);
    for (QString& part : text.extraTexts) {
        FitPart(part, text.layer);
    }
    QStringList lines = text.text.split(QLatin1Char('\n'));
    for (const QString& part : text.extraTexts) {
        lines += part.split(QLatin1Char('\n'));
    }
    if (!isTextForm) {
        text.text = lines.join(QLatin1Char('\n'));
        FitPartsInBinary(text);
        return;
    }
    const bool isOwn = text.hasOwnImage;
    text.text = isOwn ? lines.join(QLatin1String("\n>")) : lines.takeFirst();
    text.extraTexts.clear();
    if (!isOwn) {
        text.extraTexts.assign(lines.begin(), lines.end());
    }
    text.extraAligns.resize(text.extraTexts.size(), static_cast<quint16>(text.image.align));
}

// The writer drops the last line break and every bracket.
void CSxfFitting::FitPartsInBinary(CTextObject& text)
{
    if (!text.extraTexts.empty() && !text.hasOwnImage) { // with a drawing, parts are lines
        tally.Lose(QStringLiteral("texts of several parts became texts of several lines"),
                   text.layer);
    }
    text.extraTexts.clear();
    text.extraAligns.clear();
    QString& all = text.text;
    if (all.contains(QLatin1Char('>'))) {
        tally.Lose(QStringLiteral("texts lost a \">\""), text.layer);
    }
    const auto length = [&all] { return all.size() + all.count(QLatin1Char('\n')); };
    if (length() > kLongestText) {
        tally.Lose(QStringLiteral("texts were cut to 252 characters"), text.layer);
        while (length() > kLongestText) {
            all.chop(1);
        }
    }
    if (all.contains(QLatin1Char('\n'))) {
        all += QLatin1Char('\n');
    }
}

void CSxfFitting::FitPart(QString& part, const QString& layer)
{
    QStringList lines = part.split(QLatin1Char('\n'));
    for (QString& line : lines) {
        const QString fit = InOneLine(line);
        if (fit != line) {
            tally.Lose(QStringLiteral("texts with words of the format, written otherwise"), layer);
            line = fit;
        }
        CountLetters(line, layer);
    }
    part = lines.join(QLatin1Char('\n'));
}

} // namespace velorx

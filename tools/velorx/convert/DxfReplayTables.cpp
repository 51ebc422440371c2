// SPDX-License-Identifier: MIT
// Layers, text styles, line types and multilines, which bring their style along.
#include "tools/velorx/convert/DxfReplay.h"
#include "tools/velorx/formats/DrawingText.h"

#include <boost/variant2/variant.hpp>

namespace velorx {

using namespace VelorExchange::dxf;

namespace {

// Whether the writer's own style of that name will do.
bool IsOwnStyle(const CTextStyleDXF& style)
{
    const QString font = style.fontFile.toLower();
    return (font == QLatin1String("txt") || font == QLatin1String("txt.shx"))
        && style.faceName.isEmpty() && style.widthFactor == 1.0 && style.obliqueAngle == 0.0
        && style.height == 0.0;
}

} // namespace

bool CDxfReplay::OnLayer(const CLayerDXF& record)
{
    const QString name = layerNames.Of(record.name);
    if (!layers.contains(name)) {
        layers.insert(name, {record.visible, record.lineWeight});
    }
    colours.AddLayer(record.name, record.color);
    writer.AddLayer(name, record.visible, !record.unlocked);
    return true;
}

bool CDxfReplay::OnTextStyle(const CTextStyleDXF& record)
{
    const CTextStyleDXF* told = survey.TextStyle(record.name);
    const bool isStandard = record.name.compare(CTextStyleDXF().name, Qt::CaseInsensitive) == 0;
    if (isStandard && told != nullptr && !IsOwnStyle(*told)
        && textStyleNames.Of(record.name) == CTextStyleDXF().name)
    {
        textStyleNames.Withdraw(record.name);
        tally.Lose(EDxfLoss::TextStyleFonts);
    }
    RegisterTextStyle(record.name);
    return true;
}

// What the table does not tell gets an entry without a text's own width and slant.
void CDxfReplay::RegisterTextStyle(const QString& name)
{
    const CTextStyleDXF* told = survey.TextStyle(name);
    CTextStyleDXF style = told != nullptr ? *told : CTextStyleDXF();
    style.name = textStyleNames.Of(name);
    bool isWhole = true;
    style.fontFile = TextForDrawing(style.fontFile, isWhole);
    style.faceName = TextForDrawing(style.faceName, isWhole);
    writer.AddTextStyle(style, false);
}

// The dashes take up the factor that the header tells for all of them.
bool CDxfReplay::OnLineStyle(const CLineStyleDXF& record)
{
    const CLineStyleDXF* told = survey.LineType(record.name);
    const bool isScaled =
        told != nullptr && !told->pattern.empty() && survey.LineTypeScale() != 1.0;
    tally.Lose(EDxfLoss::LineTypesScaled, QString(), isScaled ? 1 : 0);
    RegisterLineType(record.name);
    return true;
}

QString CDxfReplay::RegisterLineType(const QString& name)
{
    const CLineStyleDXF* told = survey.LineType(name);
    CLineStyleDXF style = told != nullptr ? *told : CLineStyleDXF();
    style.name = lineTypeNames.Of(name);
    bool isWhole = true;
    style.description = TextForDrawing(style.description, isWhole);
    const double factor = survey.LineTypeScale();
    for (CLineElementDXF& element : style.pattern) {
        if (auto* dash = boost::variant2::get_if<double>(&element)) {
            *dash *= factor;
        } else if (auto* text = boost::variant2::get_if<CLineTextDXF>(&element)) {
            RegisterTextStyle(text->style);
            text->style = textStyleNames.Of(text->style);
            text->scale *= factor;
            text->offsetX *= factor;
            text->offsetY *= factor;
        } else if (auto* shape = boost::variant2::get_if<CLineShapeDXF>(&element)) {
            shape->scale *= factor;
            shape->offsetX *= factor;
            shape->offsetY *= factor;
        }
    }
    writer.AddLineStyle(style);
    return style.name;
}

bool CDxfReplay::OnMLine(const CMLineDXF& record)
{
    CMLineDXF mline = record;
    AdaptLayer(mline.layer);
    auto style = mlineStyles.constFind(record.style.name);
    const CMLineStyleGroups* groups = survey.MLineStyle(record.style.name);
    if (style == mlineStyles.constEnd()) {
        const auto lineType = [this](const QString& name) { return RegisterLineType(name); };
        style = mlineStyles.insert(record.style.name,
                                   MakeMLineStyle(mlineStyleNames.Of(record.style.name),
                                                  groups != nullptr ? *groups : CMLineStyleGroups(),
                                                  survey.MLineScale(record.style.name), lineType));
        drawnMLineStyles.insert(record.style.name.toCaseFolded());
    }
    mline.style = *style;
    const bool isWritten = writer.AddMLine(mline);
    Note(EDxfLoss::MLineStyles, groups == nullptr);
    Note(EDxfLoss::MLineColours);
    return Count(kMLine, isWritten);
}

} // namespace velorx

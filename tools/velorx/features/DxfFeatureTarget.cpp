// SPDX-License-Identifier: MIT
// The frame, and what all objects have in common.
#include "tools/velorx/features/DxfFeatureTarget.h"

#include "tools/velorx/features/DxfDataBlock.h"
#include "tools/velorx/features/DxfTags.h"
#include "tools/velorx/features/DxfTargetLosses.h"
#include "tools/velorx/features/FeatureTally.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace velorx {

using namespace VelorExchange::dxf;
using VelorExchange::CPoint3D;

namespace {

// The widths of lines that drawings know, millimetres.
constexpr double kWidths[] = {0,    0.05, 0.09, 0.13, 0.15, 0.18, 0.2,  0.25, 0.3, 0.35, 0.4, 0.5,
                              0.53, 0.6,  0.7,  0.8,  0.9,  1,    1.06, 1.2,  1.4, 1.58, 2,   2.11};
constexpr double kSameWidth = 1e-9;

// Names of line types in use that stand for none.
constexpr const char* kOwnLineTypes[] = {"ByBlock", "ByLayer", "CONTINUOUS"};

// The writer takes two very dark colours for markers.
quint32 Colour(quint32 color)
{
    constexpr quint32 kColour = 0xFFFFFF;
    constexpr quint32 kByLayer = 256;
    constexpr quint32 kOther = 257;
    color &= kColour;
    return color == kByLayer || color == kOther ? kOther + 1 : color;
}

} // namespace

CDxfFeatureTarget::CDxfFeatureTarget(const STargetOptions& targetOptions, CFeatureTally& counts)
    : tally(counts), options(targetOptions), writer(CreateDXFWriter(nullptr))
{
    log.SetOutputFile(options.name);
    writer->Init(options.drawingVersion, &log);
    writer->SetPrecision(options.precision);
    for (const char* name : kOwnLineTypes) {
        lineTypeNames.Define(QLatin1String(name), QLatin1String(name));
    }
    textStyleNames.Reserve(CTextStyleDXF().name);
    // The writer keeps it away from an object's layer.
    layerNames.Define(QStringLiteral("DEFPOINTS"), QStringLiteral("Defpoints_1"));
}

void CDxfFeatureTarget::TakeHead(const SFeatureHead& head)
{
    if (head.scale > 0) {
        tally.Lose(QLatin1String(losses::kScale));
    }
}

void CDxfFeatureTarget::TakeLayer(const SFeatureLayer& layer)
{
    writer->AddLayer(layerNames.Of(layer.name), layer.isVisible, layer.isLocked);
}

void CDxfFeatureTarget::Changed(const char* what, const QString& layer)
{
    tally.Lose(QLatin1String(what), layer);
}

double CDxfFeatureTarget::LineWeight(double width, const QString& layer)
{
    const double widest = *std::prev(std::end(kWidths));
    if (width > widest + kSameWidth) {
        Changed(losses::kWideLines, layer);
        return widest;
    }
    const double* next =
        std::lower_bound(std::begin(kWidths), std::end(kWidths), width - kSameWidth);
    if (!(width > 0) || next == std::end(kWidths)) {
        return 0.0;
    }
    if (*next - width > kSameWidth) {
        Changed(losses::kLineWidths, layer);
    }
    return *next;
}

// Line types of one name and different dashes get names of their own.
CLineStyleDXF CDxfFeatureTarget::LineStyle(const SFeatureStroke& stroke)
{
    CLineStyleDXF style;
    if (stroke.lineType == nullptr) {
        return style;
    }
    QString key = stroke.lineType->name;
    for (const double dash : stroke.lineType->dashes) {
        if (std::isfinite(dash)) {
            style.pattern.emplace_back(dash);
            key += QLatin1Char('\n') + QString::number(dash);
        }
    }
    QString& name = lineTypes[key];
    if (name.isEmpty()) {
        const bool isFree = std::none_of(lineTypes.cbegin(), lineTypes.cend(),
                                         [this, &stroke](const QString& used) {
                                             return used == lineTypeNames.Of(stroke.lineType->name);
                                         });
        name = lineTypeNames.Of(isFree ? stroke.lineType->name : key);
    }
    style.name = name;
    return style;
}

CEntityDXF CDxfFeatureTarget::Head(const SFeature& feature, const SFeatureStroke& stroke)
{
    CEntityDXF head;
    head.layer = layerNames.Of(feature.layer);
    head.color = Colour(stroke.color);
    head.lineWeight = LineWeight(stroke.width, feature.layer);
    head.lineStyle = LineStyle(stroke);
    return head;
}

void CDxfFeatureTarget::WriteData(const SFeature& feature, const CPoint3D& place, int outlines)
{
    CInsertDXF insert;
    insert.name = QLatin1String(kDataBlock);
    insert.attributes = TagsOf(feature, outlines, tally);
    hasData = !insert.attributes.empty();
    if (!hasData) {
        return;
    }
    if (!hasDataBlock) {
        writer->BeginBlock(insert.name, false, QString());
        writer->EndBlock();
        hasDataBlock = true;
    }
    insert.layer = layerNames.Of(feature.layer);
    insert.point = place;
    for (CAttribDXF& attribute : insert.attributes) {
        attribute.layer = insert.layer;
        attribute.position = {place.x, place.y};
    }
    hasData = writer->AddInsert(insert);
}

// Data whose object is not there is taken back by other data, that of nothing.
const char* CDxfFeatureTarget::Result(bool isWritten, const SFeature& feature, const char* as)
{
    if (isWritten) {
        return as;
    }
    Changed(losses::kRefused, feature.layer);
    if (hasData) {
        CInsertDXF nothing;
        nothing.name = QLatin1String(kDataBlock);
        nothing.layer = layerNames.Of(feature.layer);
        writer->AddInsert(nothing);
    }
    return nullptr;
}

QString CDxfFeatureTarget::Finish()
{
    const qint64 names = layerNames.Changed() + lineTypeNames.Changed() + textStyleNames.Changed();
    if (names > 0) {
        tally.Lose(QLatin1String(losses::kNames), QString(), names);
    }
    writer->Rewrite(options.path);
    return {};
}

QString CDxfFeatureTarget::Log() const
{
    QString text;
    log.GetText(text);
    return text;
}

} // namespace velorx

// SPDX-License-Identifier: MIT
#include "tools/velorx/convert/DxfReplayColours.h"

#include "VelorExchange/dxf/records/Entity.h"
#include "VelorExchange/dxf/write/Colour.h"

namespace velorx {

using namespace VelorExchange::dxf;

namespace {

constexpr quint32 kBlack = 0;
constexpr quint32 kByLayer = 256;
constexpr quint32 kWhite = 0xFFFFFF;
constexpr int kFirstWithTrueColours = 1018;

// To the writer 256 and 257 are markers.
bool IsBlack(quint32 colour)
{
    constexpr quint32 kOtherMarker = 257;
    return colour == kBlack || colour == kByLayer || colour == kOtherMarker;
}

// The layers that the writer makes grey.
bool IsGrey(const QString& layer)
{
    return layer == QLatin1String("Dimensions") || layer == QLatin1String("Notes");
}

quint32 Swapped(int rgb)
{
    const auto bits = static_cast<quint32>(rgb);
    return (bits & 0xFFU) << 16U | (bits & 0xFF00U) | (bits >> 16U & 0xFFU);
}

} // namespace

void CDxfReplayColours::AddLayer(const QString& name, quint32 colour)
{
    const QString key = name.toCaseFolded();
    if (!layers.contains(key)) {
        layers.insert(key, colour);
    }
}

quint32 CDxfReplayColours::LayerColour(const QString& layer) const
{
    return layers.value(layer.toCaseFolded(), kBlack);
}

// Elements of a block all come to lie on layer 0, and so on the layer of the insert.
quint32 CDxfReplayColours::Of(quint32 colour, const SPlace& place) const
{
    if (!IsBlack(colour)) {
        return colour;
    }
    if (place.isInBlock && place.layer == QLatin1String("0")) {
        return use.IsBlackFollowed(place.block) ? kByBlockColor : kByLayer;
    }
    const quint32 ofLayer = LayerColour(place.layer);
    if (!IsBlack(ofLayer) && use.IsBlackByLayer(place.layer)) {
        return ofLayer;
    }
    return !place.isInBlock && IsGrey(place.targetLayer) ? kWhite : kByLayer;
}

quint32 CDxfReplayColours::Of(const SDxfAttDef& definition) const
{
    if (!definition.hasNumber) {
        return LayerColour(definition.text.layer);
    }
    if (definition.number == 0) {
        return kByBlockColor;
    }
    return definition.hasTrueColour ? Swapped(definition.trueColour)
                                    : static_cast<quint32>(NumColACAD2RGB(definition.number));
}

bool CDxfReplayColours::IsNearest(quint32 colour) const
{
    return target < kFirstWithTrueColours && colour != kByBlockColor && !IsBlack(colour)
        && colour != kWhite && NumColACAD2RGB(RGB2NumColACAD(colour)) != colour;
}

// Where a layer has number 7 itself, nothing is lost.
void CDxfReplayColours::AddLosses(CDxfTally& tally) const
{
    use.ForMixedLayers([this, &tally](const QString& layer, qint64 count) {
        if (!IsBlack(LayerColour(layer))) {
            tally.Lose(EDxfLoss::ExplicitByLayer, layer, count);
        }
    });
    const bool isLayer0Coloured = !IsBlack(LayerColour(QStringLiteral("0")));
    tally.Lose(EDxfLoss::FollowedColours, QStringLiteral("0"), use.Followers(isLayer0Coloured));
}

} // namespace velorx

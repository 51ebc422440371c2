// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfColourUse.h"

#include "tools/velorx/formats/DxfEntityRules.h"

namespace velorx {

namespace {

constexpr int kColour = 62;
constexpr int kTrueColour = 420;
constexpr int kByBlock = 0;
constexpr int kWhite = 7;
constexpr int kByLayer = 256;

enum class EUse { Coloured, ByLayer, Black };

// What a number means. Numbers outside the table are black.
EUse UseOf(const CDxfGroups& groups, bool isInBlock)
{
    const int number = groups.Integer(kColour);
    if (number == kByBlock) {
        return isInBlock ? EUse::Coloured : EUse::Black;
    }
    if (groups.Has(kTrueColour)) {
        return IsTakenForBlack(groups.Integer(kTrueColour)) ? EUse::Black : EUse::Coloured;
    }
    if (number == kByLayer) {
        return EUse::ByLayer;
    }
    return number == kWhite || number < 0 || number > kByLayer ? EUse::Black : EUse::Coloured;
}

} // namespace

// Without a number the reader gives the layer's colour by itself, which is the wrong layer's for layer 0
// of a block.
void CDxfColourUse::Take(const SDxfSurveyEntity& entity)
{
    if (!HasColour(entity.kind)) {
        return;
    }
    const bool isFollower = entity.isInBlock && entity.layer == QLatin1String("0");
    const bool hasNumber = entity.groups.Has(kColour);
    if (!hasNumber && !isFollower) {
        return;
    }
    const EUse use = hasNumber ? UseOf(entity.groups, entity.isInBlock) : EUse::ByLayer;
    if (use == EUse::Coloured) {
        return;
    }
    const QString& name = isFollower ? entity.block : entity.layer;
    SUse& uses = (isFollower ? blocks : layers)[name.toCaseFolded()];
    uses.name = uses.name.isEmpty() ? name : uses.name;
    ++(use == EUse::ByLayer ? uses.byLayer : uses.otherwise);
}

bool CDxfColourUse::IsBlackByLayer(const QString& layer) const
{
    return layers.value(layer.toCaseFolded()).IsByLayerAlone();
}

bool CDxfColourUse::IsBlackFollowed(const QString& block) const
{
    return blocks.value(block.toCaseFolded()).IsByLayerAlone();
}

void CDxfColourUse::ForMixedLayers(const std::function<void(const QString&, qint64)>& lose) const
{
    for (const SUse& use : layers) {
        if (use.byLayer > 0 && use.otherwise > 0) {
            lose(use.name, use.byLayer);
        }
    }
}

qint64 CDxfColourUse::Followers(bool ofAllBlocks) const
{
    qint64 count = 0;
    for (const SUse& use : blocks) {
        count += ofAllBlocks || use.otherwise > 0 ? use.byLayer : 0;
    }
    return count;
}

} // namespace velorx

// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/formats/DxfSurveyEntity.h"

#include <QHash>
#include <QString>
#include <QtGlobal>

#include <functional>

namespace velorx {

/// Which elements get the colour of their layer, or of their insert's layer, by a number that the reader
/// takes for black, as it takes number 7.
///
/// Where all black elements of a layer, or all those of layer 0 in a block, are of that sort, a host can
/// give them their colour again. Memory grows with the names of layers and blocks.
class CDxfColourUse
{
public:
    void Take(const SDxfSurveyEntity& entity);

    /// Whether what the reader delivers black on `layer` has the layer's colour, and some of it is there.
    bool IsBlackByLayer(const QString& layer) const;

    /// Whether what the reader delivers black on layer 0 of `block` has the colour of the insert's layer,
    /// and some of it is there.
    bool IsBlackFollowed(const QString& block) const;

    /// Calls `lose` for each layer with elements by layer among other black ones, with their number.
    void ForMixedLayers(const std::function<void(const QString&, qint64)>& lose) const;

    /// The number of elements on layer 0 of blocks in the colour of the insert's layer: those of blocks that
    /// have other black ones there, or of all blocks.
    qint64 Followers(bool ofAllBlocks) const;

private:
    struct SUse
    {
        QString name; ///< As first met.
        qint64 byLayer = 0;
        qint64 otherwise = 0;

        bool IsByLayerAlone() const { return byLayer > 0 && otherwise == 0; }
    };

    QHash<QString, SUse> layers; ///< By name without case.
    QHash<QString, SUse> blocks; ///< Layer 0 of each, by name without case.
};

} // namespace velorx

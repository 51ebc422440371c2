// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/formats/DxfAttDefs.h"
#include "tools/velorx/formats/DxfColourUse.h"
#include "tools/velorx/formats/DxfTally.h"

#include <QHash>
#include <QString>
#include <QtGlobal>

namespace velorx {

/// Gives elements of a drawing their colour for the writer.
///
/// Number 7, which programs show white or black, comes from the reader as black and is black for the writer.
/// Since the writer's layers have number 7, such an element is written by layer. Memory grows with the number
/// of layers.
class CDxfReplayColours
{
public:
    /// Where an element stands.
    struct SPlace
    {
        QString layer; ///< As in the source.
        QString targetLayer; ///< As in the target.
        QString block; ///< As in the source.
        bool isInBlock = false;
    };

    /// `colourUse` outlives this object. `version` is that of the drawing to write.
    CDxfReplayColours(const CDxfColourUse& colourUse, int version) : use(colourUse), target(version)
    {
    }

    /// A layer of the source; the first of a name, in any case, counts.
    void AddLayer(const QString& name, quint32 colour);

    /// The colour for the writer of an element that the reader delivers in `colour`.
    quint32 Of(quint32 colour, const SPlace& place) const;

    /// The colour of an attribute definition as the reader delivers those of other elements of blocks.
    quint32 Of(const SDxfAttDef& definition) const;

    /// Whether the target has the colour only nearly.
    bool IsNearest(quint32 colour) const;

    /// Counts the elements that lost the colour of a layer.
    void AddLosses(CDxfTally& tally) const;

private:
    quint32 LayerColour(const QString& layer) const;

    const CDxfColourUse& use;
    int target;
    QHash<QString, quint32> layers; ///< By name without case.
};

} // namespace velorx

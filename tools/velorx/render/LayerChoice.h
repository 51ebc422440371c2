// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/Feature.h"

#include <QSet>
#include <QString>
#include <QStringList>

namespace velorx {

/// Which layers are drawn: those that were asked for, or if none were, all that are shown. The case of
/// names plays no part. Memory grows with the layers.
class CLayerChoice
{
public:
    /// Why a layer is drawn or not.
    enum class EVerdict {
        Drawn,
        Hidden, ///< Off or frozen, and nobody asked for it.
        NotAsked, ///< Others were asked for.
    };

    explicit CLayerChoice(QStringList askedNames);

    /// What the source says of a layer.
    void Note(const SFeatureLayer& layer);

    /// For an object on `layer`.
    EVerdict Judge(const QString& layer);

    /// The layers that were asked for and neither noted nor judged, as they were asked for.
    QStringList Missing() const;

private:
    QStringList asked;
    QSet<QString> wanted; ///< Of folded names, as all sets here.
    QSet<QString> hidden;
    QSet<QString> met;
};

} // namespace velorx

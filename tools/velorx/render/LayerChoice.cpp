// SPDX-License-Identifier: MIT
#include "tools/velorx/render/LayerChoice.h"

#include <utility>

namespace velorx {

CLayerChoice::CLayerChoice(QStringList askedNames) : asked(std::move(askedNames))
{
    for (const QString& name : asked) {
        wanted.insert(name.toCaseFolded());
    }
}

void CLayerChoice::Note(const SFeatureLayer& layer)
{
    const QString name = layer.name.toCaseFolded();
    met.insert(name);
    if (!layer.isVisible) {
        hidden.insert(name);
    }
}

CLayerChoice::EVerdict CLayerChoice::Judge(const QString& layer)
{
    const QString name = layer.toCaseFolded();
    if (!wanted.isEmpty()) {
        met.insert(name);
        return wanted.contains(name) ? EVerdict::Drawn : EVerdict::NotAsked;
    }
    return hidden.contains(name) ? EVerdict::Hidden : EVerdict::Drawn;
}

QStringList CLayerChoice::Missing() const
{
    QStringList missing;
    for (const QString& name : asked) {
        if (!met.contains(name.toCaseFolded())) {
            missing.append(name);
        }
    }
    return missing;
}

} // namespace velorx

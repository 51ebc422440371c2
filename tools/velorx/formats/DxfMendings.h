// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/formats/DxfSurveyEntity.h"

#include <QHash>
#include <QString>
#include <QtGlobal>

namespace velorx {

/// Which entities of a drawing the library takes for others than they are, so that `CDxfMender` has to mend
/// them. Memory grows with the names of layers.
class CDxfMendings
{
public:
    /// An entity that the library reads.
    void Take(const SDxfSurveyEntity& entity);

    /// Whether there is anything to mend.
    bool AreNeeded() const { return count > 0; }

    /// How many entities on `layer` are mended that are drawn on a plane seen from behind.
    qint64 Mirrored(const QString& layer) const { return mirrored.value(layer); }

private:
    qint64 count = 0;
    QHash<QString, qint64> mirrored; ///< By layer.
};

} // namespace velorx

// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QSet>
#include <QString>

namespace velorx {

/// Names of the files of layers: none leaves its folder, means a device, or is another's, also where
/// files do not tell capitals from small letters. Letters that the local code page lacks become "_",
/// since the library names files through it. Memory grows with the layers.
class CMifTableNames
{
public:
    /// The name without an ending. One layer has one name.
    QString Of(const QString& layer);

private:
    QHash<QString, QString> names;
    QSet<QString> used; ///< Without regard to case.
};

/// `name` as it can stand in the name of a file on any system; never empty.
QString SafeFileName(const QString& name);

} // namespace velorx

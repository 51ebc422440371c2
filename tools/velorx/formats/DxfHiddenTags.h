// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/formats/DxfSurveyEntity.h"

#include <QHash>
#include <QString>
#include <QtGlobal>

#include <functional>
#include <string>
#include <utility>

namespace velorx {

/// Which attributes of inserts are hidden, which the reader does not tell: those of one tag and one block
/// are, where all of them are. Memory grows with the names of blocks and tags.
class CDxfHiddenTags
{
public:
    using CDecode = std::function<QString(const std::string&)>;

    /// An INSERT, or an ATTRIB of the INSERT before it; other kinds are passed over.
    void Take(const SDxfSurveyEntity& entity, const CDecode& decode);

    /// Whether attributes with `tag` are hidden at inserts of `block`, whose case does not count.
    bool IsHidden(const QString& block, const QString& tag) const;

    /// The number of hidden attributes that stand among others that show.
    qint64 Mixed() const;

private:
    struct SUse
    {
        qint64 hidden = 0;
        qint64 shown = 0;
    };

    QString block; ///< Of the INSERT in hand, without case.
    QHash<std::pair<QString, QString>, SUse> uses; ///< By block and tag.
};

} // namespace velorx

// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/check/DxfPair.h"
#include "tools/velorx/check/DxfStructure.h"

#include <QHash>
#include <QSet>
#include <QString>

#include <array>
#include <cstddef>

namespace velorx {

/// Follows which layers, line types, text styles and blocks a drawing names, and which it defines. Memory
/// grows with the number of names, up to a bound behind which nothing is said of further ones.
class CDxfReferences
{
public:
    CDxfReferences();

    /// `structure` has taken the pair already.
    void Take(const SDxfPair& pair, const CDxfStructure& structure);

    /// Adds what is used and not defined.
    void Finish(CFindings& findings) const;

private:
    enum EWhat : std::size_t { Layer, LineType, Style, Block, kCount };

    struct SUse
    {
        SPlace place; ///< The first.
        QString name; ///< As it stands there.
        qint64 count = 0;
    };

    struct SNames
    {
        QSet<QString> defined; ///< Without regard to case, as in the next.
        QHash<QString, SUse> used;
    };

    struct SRule;
    static const std::array<SRule, 7> kRules;
    void Use(EWhat what, const SDxfPair& pair);

    std::array<SNames, kCount> names;
};

} // namespace velorx

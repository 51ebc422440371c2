// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/Feature.h"
#include "VelorExchange/Pnr.h"

#include <QHash>
#include <QString>

#include <vector>

namespace velorx {

class CFeatureTally;

/// Makes the attributes of a map out of those of features, which have names where a map has codes.
///
/// "S_9" is the code 9, and so are "SC_9", "9" and "S_9_2". "CODE" and "CLCODE" hold the classifier code of
/// the object. Any other name gets a code from `kFirstOwnCode` on, in the order in which names are met.
/// Memory grows with the number of names.
class CSxfSemantics
{
public:
    /// The codes of names that tell none.
    static constexpr int kFirstOwnCode = 60001;
    static constexpr int kLastOwnCode = 65000;

    /// `counts` outlives this object.
    explicit CSxfSemantics(CFeatureTally& counts) : tally(counts) { }

    /// Fills code and attributes of `object` by what `feature` has.
    void Fill(const SFeature& feature, VelorExchange::pnr::CBaseObject& object);

    /// Tells the tally which name became which code.
    void Remark() const;

private:
    int CodeOf(const QString& name);
    int NewCode(const QString& name);

    CFeatureTally& tally;
    QHash<QString, int> codes; ///< By name; 0 for names without a code.
    std::vector<QString> ownNames; ///< From `kFirstOwnCode` on.
};

} // namespace velorx

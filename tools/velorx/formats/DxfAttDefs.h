// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/formats/DxfSurveyEntity.h"
#include "tools/velorx/formats/DxfTally.h"
#include "VelorExchange/dxf/records/Attrib.h"

#include <QHash>
#include <QString>

#include <functional>
#include <string>
#include <vector>

namespace velorx {

/// An attribute definition with all that the writer wants. Its colour stands as in the drawing.
struct SDxfAttDef
{
    VelorExchange::dxf::CAttribDXF text; ///< With the layer and style as the drawing names them.
    bool hasNumber = false; ///< Whether it tells a colour number.
    int number = 0; ///< Group 62.
    bool hasTrueColour = false; ///< Whether it tells one.
    int trueColour = 0; ///< 0xRRGGBB.
};

/// The attribute definitions of the blocks of a drawing, of which the reader delivers tag and value alone.
/// Memory grows with their number.
class CDxfAttDefs
{
public:
    using CDecode = std::function<QString(const std::string&)>;

    /// Begins a block. Of blocks of one name, in any case, the first counts.
    void BeginBlock(const QString& name);

    /// A definition of the block in hand is complete.
    void Add(const SDxfSurveyEntity& entity, const CDecode& decode, CDxfTally& tally);

    /// The definition at `position` among those of the block `name`; null if there is none.
    const SDxfAttDef* Find(const QString& name, std::size_t position) const;

private:
    QHash<QString, std::vector<SDxfAttDef>> blocks; ///< By name without case.
    QString block; ///< The key in hand, empty for none that counts.
};

} // namespace velorx

// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/records/Block.h"
#include "VelorExchange/dxf/records/EntityVariant.h"

#include <QHash>
#include <QString>

#include <memory>
#include <vector>

namespace velorx {

/// A part of a block in the order of its entities.
struct SDxfBlockPart
{
    VelorExchange::dxf::CBlockDXF run; ///< What `ParseBlock` draws.
    /// Then an ellipse, or a hatch with elliptic edges, which `ParseBlock` leaves out; null at the end.
    std::unique_ptr<const VelorExchange::dxf::CEntityVariantDXF> other;
};

/// A block as it is kept to be drawn at its inserts.
struct SDxfBlock
{
    QString name; ///< As the drawing spells it.
    std::vector<SDxfBlockPart> parts;
    bool isUsed = false; ///< Whether it was drawn.
};

/// The blocks of a drawing, in memory. Names count without regard to case.
class CDxfBlocks
{
public:
    /// Keeps a copy; false, and nothing is kept, if there is one of its name.
    bool Add(const VelorExchange::dxf::CBlockDXF& block);

    /// The block `name`, null if there is none. It stays where it is.
    SDxfBlock* Find(const QString& name);

    /// How many blocks hold something and were not drawn.
    int Unused() const;

private:
    QHash<QString, std::shared_ptr<SDxfBlock>> blocks; ///< By name without case.
};

} // namespace velorx

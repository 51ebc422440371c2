// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/records/LineStyle.h"

#include <QHash>
#include <QString>

#include <utility>
#include <vector>

namespace velorx {

/// Groups of a record in their order, decoded.
using CDxfGroupList = std::vector<std::pair<int, QString>>;

/// The line types of a drawing with their dashes, letters and shapes, of which the reader delivers names
/// alone. Memory grows with their number.
class CDxfLineTypes
{
public:
    /// A line type is complete. Its letters and shapes name their style by its handle.
    void Add(const QString& name, const CDxfGroupList& groups);

    /// Gives letters and shapes the name of their style, by its handle: text styles and shape files. Elements
    /// of other styles are dropped. Returns the number of line types that lost some.
    int NameStyles(const QHash<QString, QString>& textStyles,
                   const QHash<QString, QString>& shapeFiles);

    /// How many line types have letters or shapes.
    int WithSymbols() const;

    /// The line type `name`, in any case; null if the drawing has none.
    const VelorExchange::dxf::CLineStyleDXF* Find(const QString& name) const;

private:
    QHash<QString, VelorExchange::dxf::CLineStyleDXF> lineTypes; ///< By name without case.
};

} // namespace velorx

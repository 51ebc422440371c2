// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/formats/DxfSurveyEntity.h"
#include "VelorExchange/foundation/Point.h"

#include <QHash>
#include <QString>

#include <functional>
#include <string>
#include <vector>

namespace velorx {

/// An entity that a block of its own draws, such as a dimension.
struct SDxfPicture
{
    const char* kind = ""; ///< "DIMENSION"; a literal.
    QString block; ///< Name of the block.
    QString layer; ///< As the drawing spells it, "0" where it tells none.
    VelorExchange::CPoint3D point; ///< Where the block's origin stands.
    double rotation = 0.0; ///< Degrees, counter-clockwise.
    int colour =
        256; ///< Index of the colour table, 256 for that of the layer, 0 for that of the insert.
};

/// The entities of a drawing that the reader does not deliver but that blocks draw for programs that do not
/// know them. Memory grows with their number, as that of their blocks does.
class CDxfPictures
{
public:
    using CDecode = std::function<QString(const std::string&)>;

    /// An entity that the reader does not know; others than such pictures are passed over, and so is what stands
    /// in a block without a name, which nothing draws.
    void Take(const SDxfSurveyEntity& entity, const CDecode& decode);

    /// Those in the block `block`, in any case; those in none for an empty name. Good for as long as no further
    /// entity is taken.
    const std::vector<SDxfPicture>& In(const QString& block) const;

    /// The kinds of entities that blocks draw.
    static std::vector<const char*> Kinds();

private:
    QHash<QString, std::vector<SDxfPicture>>
        pictures; ///< By name of the block around them without case.
};

} // namespace velorx

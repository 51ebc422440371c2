// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/Feature.h"
#include "VelorExchange/dxf/records/Layer.h"

#include <QHash>
#include <QString>

#include <memory>

namespace velorx {

class CDxfSurvey;

/// A typeface, and how it is cut.
struct SDxfTypeface
{
    QString name; ///< Empty where none is known.
    bool isBold = false;
    bool isItalic = false;
};

/// The typeface in a font file, "arialbd.ttf"; none for files of shapes.
SDxfTypeface TypefaceFromFile(const QString& fontFile);

/// The font file of `typeface`, so that `TypefaceFromFile` tells it again, and for common ones its cut as well.
QString FontFileOf(const SDxfTypeface& typeface);

/// What the tables of a drawing tell. Memory grows with the number of names.
class CDxfStyles
{
public:
    /// `firstLook` outlives this object.
    explicit CDxfStyles(const CDxfSurvey& firstLook) : survey(firstLook) { }

    void Add(const VelorExchange::dxf::CLayerDXF& layer);

    /// `name` as the table of layers spells it, without codes for letters; "0" for an empty one.
    QString LayerName(const QString& name) const;

    /// The layer `name`, in any case; the constructor's values for one that is not in the table.
    VelorExchange::dxf::CLayerDXF Layer(const QString& name) const;

    /// The line type `name`, in any case, with its dashes as long as they are in the drawing; null for a
    /// solid line.
    std::shared_ptr<const SFeatureLineType> LineType(const QString& name);

    /// The typeface of the text style `name`, in any case: that of the system which it names, else that in its
    /// font file.
    SDxfTypeface Typeface(const QString& name) const;

private:
    const CDxfSurvey& survey;
    QHash<QString, VelorExchange::dxf::CLayerDXF> layers; ///< By name without case.
    QHash<QString, std::shared_ptr<const SFeatureLineType>> lineTypes; ///< By name without case.
};

} // namespace velorx

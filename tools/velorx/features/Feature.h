// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/records/HatchStyle.h"
#include "VelorExchange/foundation/Point.h"

#include <QString>
#include <QtGlobal>
#include <QVariant>

#include <memory>
#include <vector>

namespace velorx {

/// What stands by an object beside its shape.
struct SFeatureAttribute
{
    QString name; ///< As the source calls it; "S_9" for the semantic code 9 of an SXF map.
    QVariant value; ///< `QString`, int, short, double, float, `QDate` or bool.
};

/// Attributes in the source's order. Features that have the same share them.
using CFeatureAttributes = std::shared_ptr<const std::vector<SFeatureAttribute>>;

/// Dashes of a line: a positive number draws, a negative one leaves a gap, 0 is a dot.
struct SFeatureLineType
{
    QString name; ///< As the source calls it.
    std::vector<double> dashes; ///< File units; empty for a solid line.
};

/// How a line or an outline is drawn.
struct SFeatureStroke
{
    bool isVisible = true; ///< False for the edge of an area that has none.
    quint32 color = 0; ///< 0x00BBGGRR.
    double width = 0.0; ///< Millimetres on paper; 0 for the thinnest line.
    double planWidth = 0.0; ///< Width in file units, of wide polylines; 0 for none.
    std::shared_ptr<const SFeatureLineType> lineType; ///< Null for a solid line.
};

/// How an area is filled.
enum class EFeatureFill {
    None, ///< The outline alone.
    Solid, ///< With `color`.
    Pattern, ///< With lines of `color`.
};

/// The fill of an area.
struct SFeatureFill
{
    EFeatureFill kind = EFeatureFill::None;
    quint32 color = 0; ///< Of the fill or its lines, 0x00BBGGRR.
    bool hasBackground = false; ///< Whether `background` stands behind the lines of a pattern.
    quint32 background = 0xFFFFFF; ///< 0x00BBGGRR.
    QString pattern; ///< Name in the source, "ANSI31"; "MIF 15" for a brush pattern; can be empty.
    double angle = 0.0; ///< Of the pattern, radians, counter-clockwise.
    bool isDouble = false; ///< Lines across come too.
    /// The lines of the pattern in file units, where the source tells them.
    std::vector<VelorExchange::dxf::CHatchLineDXF> lines;
};

/// The mark of a point.
struct SFeatureSymbol
{
    quint32 color = 0; ///< 0x00BBGGRR.
    int shape = 0; ///< Number of the symbol in `font` or in the standard set; 0 for a plain point.
    QString font; ///< Empty for the standard set.
    double size = 0.0; ///< Points (1/72 inch); 0 where the source tells none.
    double angle = 0.0; ///< Radians, counter-clockwise.
};

/// What all features have in common.
struct SFeature
{
    const char* kind = ""; ///< What the source calls the object, "LWPOLYLINE"; a literal.
    QString layer; ///< Name of the layer; never empty.
    int code = 0; ///< Classifier code of an SXF object; 0 for none.
    bool isInBlock = false; ///< Came out of a block.
    bool is3D = false; ///< Heights mean something.
    CFeatureAttributes attributes; ///< Null for none.
};

/// A vertex, file units. Heights are 0 where the source has none.
using CFeatureLine = std::vector<VelorExchange::CPoint3D>;

struct SPointFeature : SFeature
{
    VelorExchange::CPoint3D position;
    SFeatureSymbol symbol;
};

/// A chain of straight segments of two vertices or more; curves have become chords.
struct SLineFeature : SFeature
{
    CFeatureLine points; ///< A closed line ends with its first vertex.
    SFeatureStroke stroke;
};

/// An area: what an odd number of its rings encloses.
struct SAreaFeature : SFeature
{
    /// Of three vertices or more each; the first vertex does not come again. The outermost come first.
    std::vector<CFeatureLine> rings;
    SFeatureStroke stroke;
    SFeatureFill fill;
};

/// Where a text's position lies in it, along the line.
enum class EFeatureAlign { Left, Centre, Right };

/// Where a text's position lies in it, across the line.
enum class EFeatureVertical { Baseline, Bottom, Middle, Top };

struct STextFeature : SFeature
{
    QString text; ///< Plain, without any format's codes; lines are separated by "\n".
    VelorExchange::CPoint3D position;
    double height = 0.0; ///< Of capital letters, file units.
    double rotation = 0.0; ///< Radians, counter-clockwise.
    EFeatureAlign align = EFeatureAlign::Left;
    EFeatureVertical vertical = EFeatureVertical::Baseline;
    quint32 color = 0; ///< 0x00BBGGRR.
    QString font; ///< A typeface; empty where the source tells none.
    bool isBold = false;
    bool isItalic = false;
    bool isUnderlined = false;
    double widthFactor = 1.0; ///< Of the letters, relative to the font.
    double slant = 0.0; ///< Of the letters, radians.
    double columnWidth = 0.0; ///< At which lines are broken, file units; 0 for nowhere.
};

/// A picture that lies in a file of its own.
struct SImageFeature : SFeature
{
    QString path; ///< As the source tells it.
    QString name;
    VelorExchange::CPoint2D origin; ///< Lower left corner.
    VelorExchange::CPoint2D along; ///< From there to the lower right corner.
    VelorExchange::CPoint2D across; ///< From there to the upper left corner.
    double widthPixels = 0.0;
    double heightPixels = 0.0;
    double rotation = 0.0; ///< Radians, counter-clockwise.
    std::vector<VelorExchange::CPoint2D>
        clip; ///< Ring of what is shown, file units; empty for all.
};

/// A layer, as far as the source tells of it.
struct SFeatureLayer
{
    QString name;
    bool isVisible = true;
    bool isLocked = false;
};

/// What a source tells ahead of its features.
struct SFeatureHead
{
    QString name; ///< Of the map, from the file's name.
    int scale = 0; ///< Denominator of the map's scale; 0 where the source has none.
};

} // namespace velorx

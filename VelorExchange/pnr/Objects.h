// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/foundation/Export.h"
#include "VelorExchange/pnr/Images.h"
#include "VelorExchange/pnr/Semantic.h"
#include "VelorExchange/pnr/VertexHolder.h"

#include <QRectF>
#include <QString>

#include <memory>
#include <vector>

namespace VelorExchange::pnr {

/// What all objects of a map have in common. Objects own their contours and drawings, can't be
/// copied, and are filled through their public fields.
struct VELOREXCHANGE_EXPORT CBaseObject
{
    CBaseObject();
    CBaseObject(const CBaseObject&) = delete;
    CBaseObject& operator=(const CBaseObject&) = delete;
    virtual ~CBaseObject();

    /// True if the object has what it takes to be drawn. The writers don't ask for it.
    virtual bool IsValid() const = 0;

    /// Grows `bounds` over all vertices of all contours; heights play no part. Each vertex counts
    /// as a rectangle with a corner at (x - 1, y - 1), 1 wide and high in the plan and 2 in space.
    /// Bounds that are empty in width or height are replaced by the first of these.
    virtual void UniteBounds(QRectF& bounds) const;

    qint32 code = 0; ///< Classifier code; 0 for an object that brings its own drawing.
    QString layer = QStringLiteral("SYSTEM"); ///< Name of the layer.
    QString codeText; ///< `code` in decimal, set by the readers only.
    bool hasImage = false; ///< A reader has read a drawing.
    std::vector<PnrSemantic> semantics; ///< In file order.
    /// Main contour first, then the sub-contours; no pointer is null.
    std::vector<std::unique_ptr<CAbstractVertexHolder>> holders;
};

/// A line.
struct VELOREXCHANGE_EXPORT CLineObject : CBaseObject
{
    CLineObject();
    ~CLineObject() override;
    bool IsValid() const override; ///< With a drawing or a code.

    std::unique_ptr<PnrLineImage> image; ///< The line's own drawing, or null.
};

/// An area, whose sub-contours are holes.
struct VELOREXCHANGE_EXPORT CSquareObject : CBaseObject
{
    CSquareObject();
    ~CSquareObject() override;
    bool IsValid() const override; ///< With a drawing or a code.

    std::unique_ptr<PnrSquareImage> image; ///< The area's own drawing, or null.
};

/// A point, or a vector if its contour has several vertices.
struct VELOREXCHANGE_EXPORT CPointObject : CBaseObject
{
    CPointObject();
    ~CPointObject() override;
    bool IsValid() const override; ///< With one contour and a drawing, or with a code.

    std::unique_ptr<PnrPointImage> image; ///< The point's own drawing, or null.
};

/// A text along its contour, or a mixed text of several parts.
struct VELOREXCHANGE_EXPORT CTextObject : CBaseObject
{
    CTextObject();
    ~CTextObject() override;
    bool IsValid() const override; ///< With exactly one contour, in the plan.

    /// The text. The readers put a ">" in front of each part.
    QString text;
    PnrTextImage image; ///< How it is drawn.
    bool hasOwnImage = true; ///< `image` counts, and goes to the file.
    std::vector<QString> extraTexts; ///< Further parts of a mixed text.
    std::vector<quint16> extraAligns; ///< One for each of `extraTexts`; a missing one counts as 24.
};

} // namespace VelorExchange::pnr

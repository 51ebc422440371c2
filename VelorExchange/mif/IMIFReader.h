// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/mif/Arc.h"
#include "VelorExchange/mif/Point.h"
#include "VelorExchange/mif/Polyline.h"
#include "VelorExchange/mif/Rect.h"
#include "VelorExchange/mif/Region.h"
#include "VelorExchange/mif/RoundRect.h"
#include "VelorExchange/mif/Text.h"

namespace VelorExchange::mif {

/// What a host implements to receive the objects of a file.
///
/// A record is valid only during the call. All calls come on the thread of `Read`, and an exception
/// that an operation throws passes through `Read`. The library never deletes the object.
class IMIFReader
{
public:
    virtual void AddArc(const CArcMIF& arc) = 0; ///< Part of the ellipse in a rectangle.
    virtual void AddRoundRect(const CRoundRectMIF& rect) = 0; ///< With round corners.
    virtual void AddEllipse(const CRectMIF& rect) = 0; ///< The rectangle that the ellipse fills.
    virtual void AddRect(const CRectMIF& rect) = 0; ///< With sides along the axes.
    virtual void AddText(const CTextMIF& text) = 0; ///< A text in its rectangle.

    /// A line, or one section of a polyline; the sections of one object have equal attributes.
    virtual void AddPolyline(const CPolylineMIF& line) = 0;

    /// One ring of more than two vertices; the rings of one object have equal attributes.
    virtual void AddRegion(const CRegionMIF& region) = 0;

    /// A point, or one point of a multipoint; those of one object have equal attributes.
    virtual void AddPoint(const CPointMIF& point) = 0;

    /// The first call: the size of the ".mif" in bytes, cut to its low 32 bits.
    virtual void SetProgressRange(int total) = 0;

    /// The position of reading in the ".mif" in bytes, cut to its low 32 bits.
    virtual void SetProgress(int position) = 0;

    /// The last call. It doesn't come if `Read` returns false.
    virtual void Finish() = 0;

protected:
    ~IMIFReader() = default;
};

} // namespace VelorExchange::mif

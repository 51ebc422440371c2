// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/pnr/ByteCursor_p.h"
#include "VelorExchange/pnr/Objects.h"
#include "VelorExchange/pnr/SxfText_p.h"

#include <cstddef>
#include <vector>

namespace VelorExchange::pnr {

/// How stored coordinates become real ones.
struct CSxfFrame
{
    bool real = true; ///< They are real as they stand.
    double originX = 0.0;
    double originY = 0.0;
    double divisor = 0.0;
    double scale = 0.0;
};

/// The fixed head of a record.
struct CSxfRecordHead
{
    explicit CSxfRecordHead(CByteCursor& cursor);

    bool Has(quint32 flag) const { return (flags & flag) != 0; }

    qint32 length;
    qint32 metricLength;
    qint32 code;
    quint32 flags;
    qint16 subContours;
    qint16 vertices; // of the main contour
};

/// Takes one record apart, part by part; keeps nothing of it. Each operation returns false on a
/// fault of the format.
class CSxfRecordParser
{
public:
    explicit CSxfRecordParser(const CSxfFrame& fileFrame) : frame(fileFrame) { }

    /// The contours of a line, an area or a point.
    bool ReadContours(CBaseObject& object, const CSxfRecordHead& head, CByteCursor& cursor) const;

    /// The contours of a text, each followed by a part of the text.
    bool ReadContours(CTextObject& text, const CSxfRecordHead& head, CByteCursor& cursor);

    static bool ReadDrawing(CLineObject& line, CByteCursor& cursor);
    static bool ReadDrawing(CSquareObject& square, CByteCursor& cursor);
    static bool ReadDrawing(CPointObject& point, CByteCursor& cursor);
    static bool ReadDrawing(CTextObject& text, CByteCursor& cursor);

    /// Passes over the block that some records have behind their drawing.
    static bool SkipExtraBlock(CByteCursor& cursor);

    /// `size` bytes of attributes.
    bool ReadSemantics(CBaseObject& object, qint64 size, CByteCursor& cursor);

private:
    bool ReadContour(CBaseObject& object, const CSxfRecordHead& head, qint16 vertices,
                     CByteCursor& cursor) const;
    bool ReadTextPart(CTextObject& text, CByteCursor& cursor);
    bool ReadValue(PnrSemantic& semantic, CByteCursor& cursor);

    CSxfFrame frame;
    CSxfText text;
};

} // namespace VelorExchange::pnr

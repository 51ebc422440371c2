// SPDX-License-Identifier: MIT
#include "VelorExchange/pnr/SxfLayout_p.h"
#include "VelorExchange/pnr/SxfRecord_p.h"

namespace VelorExchange::pnr {

namespace {

constexpr qint32 kThicknessUnit = 1000;

// Each of these reads the data of one element; false for a type that the object doesn't know.

bool ReadElement(CLineObject& line, qint16 type, CByteCursor& cursor)
{
    if (type != sxf::DrawingLine && type != sxf::DrawingDashedLine) {
        return false;
    }
    constexpr int kDashesSize = 8;
    auto image = std::make_unique<PnrLineImage>();
    image->color = cursor.Read<qint32>();
    // Down to a whole thousand (PnrBinReader.CutsTheThicknessOfALineToAWholeThousand).
    image->thickness = cursor.Read<qint32>() / kThicknessUnit * kThicknessUnit;
    cursor.Skip(type == sxf::DrawingDashedLine ? kDashesSize : 0);
    line.image = std::move(image);
    line.hasImage = true;
    return true;
}

bool ReadElement(CSquareObject& square, qint16 type, CByteCursor& cursor)
{
    if (type != sxf::DrawingSquare) {
        return false;
    }
    square.image = std::make_unique<PnrSquareImage>();
    square.image->color = cursor.Read<qint32>();
    square.hasImage = true;
    return true;
}

// A text from a binary file keeps the default drawing: what the file has is passed over on purpose
// (PnrBinReader.DropsTheDrawingOfAText).
bool ReadElement(CTextObject&, qint16 type, CByteCursor& cursor)
{
    switch (type) {
    case sxf::DrawingText:
        cursor.Skip(sxf::kTextAttributesSize);
        return true;
    case sxf::DrawingTextWithFont:
        cursor.Skip(sxf::kTextAttributesSize + sxf::kFontNameSize);
        return true;
    default:
        return false;
    }
}

template <class Object>
void ReadElements(Object& object, CByteCursor& cursor)
{
    const auto count = cursor.Read<qint32>();
    for (qint32 i = 0; i < count && !cursor.Failed(); ++i) {
        const auto length = cursor.Read<qint16>();
        const auto type = cursor.Read<qint16>();
        const int dataLength = length - sxf::kDrawingElementHeadSize;
        if (dataLength < 0 || !ReadElement(object, type, cursor)) {
            cursor.Skip(dataLength);
        }
    }
}

void ReadElements(CPointObject&, qint32 blockLength, CByteCursor& cursor)
{
    constexpr int kRead = 8; // marker and length
    cursor.Skip(qint64{blockLength} - kRead);
}

template <class Object>
void ReadElements(Object& object, qint32, CByteCursor& cursor)
{
    ReadElements(object, cursor);
}

template <class Object>
bool ReadDrawingBlock(Object& object, CByteCursor& cursor)
{
    const qint64 start = cursor.Position();
    if (cursor.Read<qint32>() != sxf::kDrawingMarker) {
        return false;
    }
    const auto length = cursor.Read<qint32>();
    ReadElements(object, length, cursor);
    return !cursor.Failed() && cursor.Position() == start + length;
}

} // namespace

bool CSxfRecordParser::ReadDrawing(CLineObject& line, CByteCursor& cursor)
{
    return ReadDrawingBlock(line, cursor);
}

bool CSxfRecordParser::ReadDrawing(CSquareObject& square, CByteCursor& cursor)
{
    return ReadDrawingBlock(square, cursor);
}

bool CSxfRecordParser::ReadDrawing(CPointObject& point, CByteCursor& cursor)
{
    return ReadDrawingBlock(point, cursor);
}

bool CSxfRecordParser::ReadDrawing(CTextObject& object, CByteCursor& cursor)
{
    return ReadDrawingBlock(object, cursor);
}

bool CSxfRecordParser::SkipExtraBlock(CByteCursor& cursor)
{
    if (cursor.Read<qint32>() != sxf::kExtraBlockMarker) {
        return false;
    }
    constexpr int kCountedAhead = 4; // the length counts itself
    cursor.Skip(qint64{cursor.Read<qint32>()} - kCountedAhead);
    return !cursor.Failed();
}

} // namespace VelorExchange::pnr

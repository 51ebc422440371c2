// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <array>

/// The layout of a binary SXF file of version 4, for the reader and the writer. All numbers are
/// little-endian.
namespace VelorExchange::pnr::sxf {

constexpr qint32 kMagic = 0x465853; ///< "SXF" and a zero.
constexpr qint32 kVersion = 0x40000;
constexpr qint32 kDescriptorMagic = 0x544144; ///< "DAT" and a zero.
constexpr qint32 kFrameCode = 91000000; ///< Classifier code of the frame line.

constexpr int kHeaderSize = 400;
constexpr int kDescriptorSize = 52;
constexpr int kRecordsOffset = kHeaderSize + kDescriptorSize;

// Offsets in the file.
constexpr int kMagicOffset = 0;
constexpr int kVersionOffset = 8;
constexpr int kChecksumOffset = 12;
constexpr int kChecksumSize = 4;
constexpr int kScaleOffset = 60;
constexpr int kFlagsOffset = 96;
constexpr int kCornersOffset = 104;
constexpr int kDivisorOffset = 312;
constexpr int kOriginXOffset = 316;
constexpr int kOriginYOffset = 320;
constexpr int kRecordCountOffset = 440;

/// Bits of the flags that tell that the stored coordinates are real ones.
constexpr quint8 kRealCoordinates = 0x18;
/// The flags as written; they hold kRealCoordinates.
constexpr qint32 kWrittenFlags = 0x19F;

struct CHeaderConstant
{
    int offset;
    qint32 value;
};

/// What the writer puts in header and descriptor whatever the map; all else is zero until filled.
constexpr std::array<CHeaderConstant, 11> kHeaderConstants = {{
    {kMagicOffset, kMagic},
    {4, kHeaderSize},
    {kVersionOffset, kVersion},
    {kFlagsOffset, kWrittenFlags},
    {232, -1},
    {236, 0x5030000},
    {252, 0x101},
    {348, kFrameCode},
    {400, kDescriptorMagic},
    {404, kDescriptorSize},
    {444, kWrittenFlags},
}};
constexpr std::array<int, 3> kDateOffsets = {16, 240, 280};
constexpr std::array<int, 3> kNameOffsets = {28, 64, 408};
constexpr std::array<int, 2> kScaleOffsets = {kScaleOffset, kDivisorOffset};
constexpr int kDateSize = 8;
constexpr int kNameSize = 32;

constexpr qint32 kRecordMarker = 0x7FFF7FFF;
constexpr qint32 kDrawingMarker = 0x7FFF7FFE;
constexpr qint32 kExtraBlockMarker = 0x7FFF7FFD;
constexpr int kMarkerSize = 4;
constexpr int kRecordHeadSize = 28; ///< Behind the marker.
constexpr int kSubContourHeadSize = 4;

/// Kinds of a record, in its low flag bits.
enum EKind : quint32 {
    KindLine = 0,
    KindSquare = 1,
    KindPoint = 2,
    KindText = 3,
    KindVector = 4,
    KindMixedText = 5
};
constexpr quint32 kKindMask = 0xF;
constexpr quint32 kFlagSemantics = 1U << 9U;
constexpr quint32 kFlagWideElements = 1U << 10U;
constexpr quint32 kFlagExtraBlock = 1U << 11U;
constexpr quint32 kFlag3D = 1U << 17U;
constexpr quint32 kFlagFloating = 1U << 18U;
constexpr quint32 kFlagDrawing = 1U << 20U;
/// Set in whatever the writer writes: real coordinates in doubles.
constexpr quint32 kWrittenRecordFlags = 0xFF240400;
/// Set in every text the writer writes.
constexpr quint32 kWrittenTextFlags = 0x00080000;

/// Types of a drawing's elements.
enum EDrawing : qint16 {
    DrawingLine = 0x80,
    DrawingDashedLine = 0x81,
    DrawingSquare = 0x87,
    DrawingText = 0x8E,
    DrawingPoint = 0x8F,
    DrawingTextWithFont = 0x98
};
constexpr int kDrawingHeadSize = 12; ///< Marker, length and count of elements.
constexpr int kDrawingElementHeadSize = 4; ///< Length and type.
constexpr int kTextAttributesSize = 32;
constexpr int kFontNameSize = 32;

/// Lengths of the drawing blocks that the writer writes, and of their one element.
struct CDrawingLayout
{
    qint32 blockLength;
    qint16 elementLength;
    qint16 type;
};
constexpr CDrawingLayout kLineDrawing = {24, 12, DrawingLine};
constexpr CDrawingLayout kSquareDrawing = {20, 8, DrawingSquare};
constexpr CDrawingLayout kPointDrawing = {168, 156, DrawingPoint};
/// The element's length leaves out its own 4 bytes, unlike the others
/// (PnrBinWriter.WritesTheDrawingOfAText).
constexpr CDrawingLayout kTextDrawing = {80, 64, DrawingTextWithFont};

/// Storage types of an attribute.
enum EDataType : qint32 {
    DataAscii = 0,
    DataInt8 = 1,
    DataInt16 = 2,
    DataInt32 = 4,
    DataDouble = 8,
    DataLocalText = 126,
    DataUtf16Text = 127
};
constexpr int kSemanticHeadSize = 4;

/// Codes of attributes with a meaning of their own.
constexpr qint32 kSemanticLayer = 0x802A;
constexpr qint32 kSemanticLinkToText = 0x8024;
constexpr qint32 kSemanticLinkToObject = 0x8025;
constexpr qint32 kSemanticKindReference = 12;
constexpr qint32 kSemanticKindDate = 17;

} // namespace VelorExchange::pnr::sxf

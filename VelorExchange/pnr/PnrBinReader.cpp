// SPDX-License-Identifier: MIT
#include "VelorExchange/pnr/PnrBinReader_p.h"

#include "VelorExchange/foundation/NumberFormatter_p.h"
#include "VelorExchange/pnr/Checksum_p.h"
#include "VelorExchange/pnr/Deliver_p.h"
#include "VelorExchange/pnr/Texts_p.h"

#include <algorithm>
#include <type_traits>

namespace VelorExchange::pnr {

namespace {

QString Decimal(qint32 value)
{
    std::array<char, kIntRoom> digits{};
    const char* end = PutInt(digits.data(), value);
    return QString::fromLatin1(digits.data(), static_cast<int>(end - digits.data()));
}

} // namespace

CSxfRecordHead::CSxfRecordHead(CByteCursor& cursor)
{
    constexpr int kNumberSize = 4;
    constexpr int kVertexCountSize = 4;
    length = cursor.Read<qint32>();
    metricLength = cursor.Read<qint32>();
    code = cursor.Read<qint32>();
    cursor.Skip(kNumberSize);
    flags = cursor.Read<quint32>();
    cursor.Skip(kVertexCountSize);
    subContours = cursor.Read<qint16>();
    vertices = cursor.Read<qint16>();
}

bool CPnrBinReader::Fail(const wchar_t* message)
{
    lastError = message;
    return false;
}

bool CPnrBinReader::Open(const QString& fileName)
{
    return file.Open(fileName) || Fail(texts::kCannotOpen);
}

bool CPnrBinReader::Read(const QString& fileName)
{
    if (!Open(fileName)) {
        return false;
    }
    ReadHeader();
    if (HeaderField<qint32>(sxf::kMagicOffset) != sxf::kMagic
        || HeaderField<qint32>(sxf::kVersionOffset) != sxf::kVersion)
    {
        return Fail(texts::kVersionNotSupported);
    }
    if (SumFile() != HeaderField<quint32>(sxf::kChecksumOffset)) {
        return Fail(texts::kWrongChecksum);
    }
    if (!ReadRecords()) {
        return false;
    }
    file.Close();
    return true;
}

void CPnrBinReader::ReadHeader()
{
    std::size_t size = header.size();
    const char* bytes = file.Peek(size);
    if (!bytes) {
        bytes = file.PeekBlock(size);
    }
    header.fill(0);
    std::copy_n(bytes, std::min(size, header.size()), header.begin());
}

template <class T>
T CPnrBinReader::HeaderField(int offset) const
{
    return CByteCursor::LoadLittleEndian<T>(header.data() + offset);
}

CSxfFrame CPnrBinReader::Frame() const
{
    CSxfFrame frame;
    frame.real = (HeaderField<quint8>(sxf::kFlagsOffset) & sxf::kRealCoordinates) != 0;
    frame.scale = HeaderField<qint32>(sxf::kScaleOffset);
    frame.divisor = HeaderField<qint32>(sxf::kDivisorOffset);
    frame.originX = HeaderField<qint32>(sxf::kOriginXOffset);
    frame.originY = HeaderField<qint32>(sxf::kOriginYOffset);
    return frame;
}

// All bytes of the file but those of the checksum itself.
quint32 CPnrBinReader::SumFile()
{
    quint32 sum = 0;
    std::size_t size = 0;
    file.Seek(0);
    for (const char* bytes = file.PeekBlock(size); size > 0; bytes = file.PeekBlock(size)) {
        sum += SumSignedBytes(bytes, size);
        file.Advance(size);
    }
    return sum - SumSignedBytes(header.data() + sxf::kChecksumOffset, sxf::kChecksumSize);
}

bool CPnrBinReader::ReadRecords()
{
    CSxfRecordParser parser(Frame());
    file.Seek(sxf::kRecordsOffset);
    const auto count = HeaderField<qint32>(sxf::kRecordCountOffset);
    for (qint32 i = 0; i < count; ++i) {
        if (!ReadRecord(parser)) {
            return false;
        }
    }
    return true;
}

bool CPnrBinReader::ReadRecord(CSxfRecordParser& parser)
{
    constexpr std::size_t kFixedSize = sxf::kMarkerSize + sxf::kRecordHeadSize;
    const char* bytes = file.Peek(sxf::kMarkerSize);
    if (!bytes || CByteCursor::LoadLittleEndian<qint32>(bytes) != sxf::kRecordMarker) {
        return Fail(texts::kWrongFormat);
    }
    bytes = file.Peek(kFixedSize);
    if (!bytes) {
        return false; // no message for a head cut short
    }
    CByteCursor headCursor(bytes + sxf::kMarkerSize, sxf::kRecordHeadSize);
    const CSxfRecordHead head(headCursor);
    // A record that says it is shorter than its head or longer than the file can't end where it says.
    const auto length = static_cast<std::size_t>(std::max(head.length, 0));
    bytes = length < kFixedSize ? nullptr : file.Peek(length);
    if (!bytes) {
        return Fail(texts::kWrongFormat);
    }
    CByteCursor cursor(bytes + kFixedSize, length - kFixedSize);
    file.Advance(length);
    switch (head.flags & sxf::kKindMask) {
    case sxf::KindLine:
        return ReadObject<CLineObject>(parser, head, cursor);
    case sxf::KindSquare:
        return ReadObject<CSquareObject>(parser, head, cursor);
    case sxf::KindPoint:
    case sxf::KindVector:
        return ReadObject<CPointObject>(parser, head, cursor);
    case sxf::KindText:
    case sxf::KindMixedText:
        return ReadObject<CTextObject>(parser, head, cursor);
    default:
        return Fail(texts::kWrongFormat);
    }
}

// The cursor spans the record behind its head, so that positions count from there.
template <class Object>
bool CPnrBinReader::ReadObject(CSxfRecordParser& parser, const CSxfRecordHead& head,
                               CByteCursor& cursor)
{
    const qint64 end = qint64{head.length} - sxf::kMarkerSize - sxf::kRecordHeadSize;
    const auto object = std::make_unique<Object>();
    if constexpr (!std::is_same_v<Object, CTextObject>) {
        object->code = head.code;
        object->codeText = Decimal(head.code);
    }
    if (!parser.ReadContours(*object, head, cursor)
        || (head.Has(sxf::kFlagDrawing) && !CSxfRecordParser::ReadDrawing(*object, cursor))
        || (head.Has(sxf::kFlagExtraBlock) && !CSxfRecordParser::SkipExtraBlock(cursor))
        || cursor.Position() != head.metricLength
        || (head.Has(sxf::kFlagSemantics)
            && !parser.ReadSemantics(*object, end - head.metricLength, cursor))
        || cursor.Failed() || cursor.Position() != end)
    {
        return Fail(texts::kWrongFormat);
    }
    Deliver(context, *object);
    return true;
}

} // namespace VelorExchange::pnr

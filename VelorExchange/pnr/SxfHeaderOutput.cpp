// SPDX-License-Identifier: MIT
#include "VelorExchange/pnr/PnrBinWriterImpl_p.h"

#include "VelorExchange/pnr/Checksum_p.h"

#include <QDate>

namespace VelorExchange::pnr {

namespace {

constexpr qint16 kFrameVertices = 5;
constexpr qint32 kFrameMetric = 80; // five vertices of two doubles
constexpr qint32 kFrameLength = 112;

template <class T>
void Store(QByteArray& header, int offset, T value)
{
    qToLittleEndian(value, header.data() + offset);
}

} // namespace

bool CPnrBinWriterImpl::Close()
{
    bool result = true;
    if (objectCount > 0) {
        PutFrame();
        body->Append(output.Data(), output.Size());
        body->Flush();
        result = HasFiniteBounds() && WriteTarget(HeaderBytes(), QByteArray());
    }
    CloseTemporaries();
    return result;
}

// A closed line around the final bounds.
void CPnrBinWriterImpl::PutFrame()
{
    ++objectCount;
    output.Clear();
    for (const qint32 value :
         {sxf::kRecordMarker, kFrameLength, kFrameMetric, sxf::kFrameCode, objectCount,
          static_cast<qint32>(sxf::kWrittenRecordFlags), qint32{kFrameVertices}})
    {
        output.Put<qint32>(value);
    }
    output.Put<qint16>(0);
    output.Put<qint16>(kFrameVertices);
    const std::array<CPoint2D, 4> corners = Corners();
    for (std::size_t i = 0; i <= corners.size(); ++i) {
        output.Put<double>(corners[i % corners.size()].x);
        output.Put<double>(corners[i % corners.size()].y);
    }
}

// Header and descriptor; the body must have all its records for the checksum.
QByteArray CPnrBinWriterImpl::HeaderBytes()
{
    QByteArray header(sxf::kRecordsOffset, '\0');
    for (const sxf::CHeaderConstant& constant : sxf::kHeaderConstants) {
        Store<qint32>(header, constant.offset, constant.value);
    }
    const QByteArray date =
        QDate::currentDate().toString(QStringLiteral("yyyyMMdd")).toLatin1().left(sxf::kDateSize);
    for (const int offset : sxf::kDateOffsets) {
        header.replace(offset, date.size(), date);
    }
    const QByteArray name = text.Encode(params.name.left(sxf::kNameSize));
    for (const int offset : sxf::kNameOffsets) {
        header.replace(offset, name.size(), name);
    }
    for (const int offset : sxf::kScaleOffsets) {
        Store<qint32>(header, offset, params.scale);
    }
    int offset = sxf::kCornersOffset;
    for (const CPoint2D& corner : Corners()) {
        Store<double>(header, offset, corner.x);
        Store<double>(header, offset + static_cast<int>(sizeof(double)), corner.y);
        offset += static_cast<int>(sizeof corner);
    }
    Store<qint32>(header, sxf::kRecordCountOffset, objectCount);
    const auto size = static_cast<std::size_t>(header.size());
    Store<quint32>(header, sxf::kChecksumOffset,
                   SumSignedBytes(header.constData(), size) + body->Sum());
    return header;
}

} // namespace VelorExchange::pnr

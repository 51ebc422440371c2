// SPDX-License-Identifier: MIT
#include "VelorExchange/pnr/PnrBinWriterImpl_p.h"

#include "VelorExchange/pnr/Texts_p.h"

namespace VelorExchange::pnr {

namespace {

// Offsets in a record, its marker included.
constexpr std::size_t kLengthOffset = 4;
constexpr std::size_t kMetricLengthOffset = 8;
constexpr qint64 kFixedSize = sxf::kMarkerSize + sxf::kRecordHeadSize;

// What the metric of a text counts for its contours, whatever they are
// (PnrBinWriter.CountsAMixedTextByItsFirstPartOnly).
constexpr qint64 kCountedTextContour = 32;
constexpr quint16 kDefaultAlign = 24;

} // namespace

void CPnrBinWriterImpl::BeginRecord(const CBaseObject& object, quint32 kind, bool drawn)
{
    quint32 flags = sxf::kWrittenRecordFlags | kind;
    flags |= drawn ? sxf::kFlagDrawing : 0;
    flags |= object.semantics.empty() ? 0 : sxf::kFlagSemantics;
    flags |= object.holders.empty() || object.holders.front()->Is2D() ? 0 : sxf::kFlag3D;
    finite = true;
    output.Clear();
    output.Put<qint32>(sxf::kRecordMarker);
    output.Put<qint32>(0); // lengths follow in EndRecord
    output.Put<qint32>(0);
    output.Put<qint32>(object.code);
    output.Put<qint32>(objectCount + 1);
    output.Put<quint32>(flags);
}

qint64 CPnrBinWriterImpl::MetricSize() const
{
    return static_cast<qint64>(output.Size()) - kFixedSize;
}

bool CPnrBinWriterImpl::EndRecord(const CBaseObject& object, qint64 metric)
{
    const qint64 before = static_cast<qint64>(output.Size());
    PutSemantics(object);
    if (!finite) {
        return false;
    }
    const qint64 semantics = static_cast<qint64>(output.Size()) - before;
    output.Patch(kLengthOffset, static_cast<qint32>(kFixedSize + metric + semantics));
    output.Patch(kMetricLengthOffset, static_cast<qint32>(metric));
    Register(object);
    body->Append(output.Data(), output.Size()); // what fails here is told by Close
    return true;
}

// Lines, areas and points, whose lengths are those of what is written.
template <class Object>
bool CPnrBinWriterImpl::WriteFigure(const Object& object, const QString& kindName)
{
    if (object.image) {
        PutDrawing(*object.image);
    }
    if (!EndRecord(object, MetricSize())) {
        return false;
    }
    CountInLog(userMap, kindName);
    return true;
}

bool CPnrBinWriterImpl::WriteLine(CLineObject* object)
{
    if (!IsWhole(object)) {
        return false;
    }
    BeginRecord(*object, sxf::KindLine, object->image != nullptr);
    PutContours(object->holders);
    return WriteFigure(*object, texts::LineObjects());
}

bool CPnrBinWriterImpl::WriteSquare(CSquareObject* object)
{
    if (!IsWhole(object)) {
        return false;
    }
    BeginRecord(*object, sxf::KindSquare, object->image != nullptr);
    PutContours(object->holders);
    return WriteFigure(*object, texts::SquareObjects());
}

bool CPnrBinWriterImpl::WritePoint(CPointObject* object)
{
    if (!IsWhole(object)) {
        return false;
    }
    const bool isVector = !object->holders.empty() && object->holders.front()->Count() > 1;
    BeginRecord(*object, isVector ? sxf::KindVector : sxf::KindPoint, object->image != nullptr);
    PutFirstContour(object->holders, 0);
    return WriteFigure(*object, texts::PointObjects());
}

bool CPnrBinWriterImpl::WriteText(CTextObject* object)
{
    if (!IsWhole(object)) {
        return false;
    }
    const bool mixed = !object->extraTexts.empty();
    BeginRecord(*object, (mixed ? sxf::KindMixedText : sxf::KindText) | sxf::kWrittenTextFlags,
                object->hasOwnImage);
    PutFirstContour(object->holders, static_cast<qint64>(object->extraTexts.size()));
    qint64 metric = 0;
    if (!object->holders.empty()) {
        const qint64 contour = MetricSize();
        PutTextBlock(object->text, static_cast<quint16>(object->image.align));
        metric = kCountedTextContour + MetricSize() - contour;
        for (std::size_t i = 0; i < object->extraTexts.size(); ++i) {
            PutFurtherContour(*object->holders.front());
            PutTextBlock(object->extraTexts[i],
                         i < object->extraAligns.size() ? object->extraAligns[i] : kDefaultAlign);
        }
    }
    if (object->hasOwnImage) {
        PutDrawing(object->image);
        metric += sxf::kTextDrawing.blockLength;
    }
    if (!EndRecord(*object, metric)) {
        return false;
    }
    CountInLog(object->hasOwnImage, texts::TextObjects());
    return true;
}

} // namespace VelorExchange::pnr

// SPDX-License-Identifier: MIT
#include "tools/velorx/check/SxfRecordCheck.h"

#include "tools/velorx/check/SxfKindsOfFinding.h"

#include <QtEndian>

#include <cmath>
#include <cstring>

namespace velorx {

using namespace sxffindings;

namespace {

constexpr qint32 kDrawingMarker = 0x7FFF7FFE;
constexpr qint32 kExtraMarker = 0x7FFF7FFD;

constexpr quint32 kKindMask = 0xF;
constexpr quint32 kLastKind = 5;
constexpr quint32 kTextKind = 3;
constexpr quint32 kMixedTextKind = 5;
constexpr quint32 kHasAttributes = 1U << 9U;
constexpr quint32 kWideElements = 1U << 10U;
constexpr quint32 kHasExtraBlock = 1U << 11U;
constexpr quint32 kIs3D = 1U << 17U;
constexpr quint32 kIsFloating = 1U << 18U;
constexpr quint32 kHasDrawing = 1U << 20U;

// Offsets in a record, from its marker on.
constexpr int kMetricLengthOffset = 8;
constexpr int kFlagsOffset = 20;
constexpr int kSubContoursOffset = 28;
constexpr int kVerticesOffset = 30;

/// A type of attribute: its value has `fixed` bytes, and one more for each of its scale if `perScale`.
struct SAttributeType
{
    int type;
    int fixed;
    bool perScale;
};

constexpr SAttributeType kAttributeTypes[] = {
    {0, 1, true},  {1, 1, false},  {2, 2, false},  {4, 4, false},
    {8, 8, false}, {126, 1, true}, {127, 2, true},
};

template <class T>
T Number(const QByteArray& bytes, qint64 at)
{
    return qFromLittleEndian<T>(bytes.constData() + at);
}

} // namespace

CSxfRecordCheck::CSxfRecordCheck(const QByteArray& record, qint64 position, CFindings& results)
    : bytes(record), start(position), findings(results)
{
    flags = Number<quint32>(bytes, kFlagsOffset);
    metricEnd = kSxfRecordStart + Number<qint32>(bytes, kMetricLengthOffset);
    const quint32 kind = flags & kKindMask;
    isText = kind == kTextKind || kind == kMixedTextKind;
    hasHeights = (flags & kIs3D) != 0;
    const bool isWide = (flags & kWideElements) != 0;
    if ((flags & kIsFloating) != 0) {
        element = isWide ? EElement::Double : EElement::Float;
    } else {
        element = isWide ? EElement::Int32 : EElement::Int16;
    }
}

bool CSxfRecordCheck::Fail(const SFindingKind& kind, const QString& detail)
{
    findings.Add(kind, {0, start}, detail);
    return false;
}

void CSxfRecordCheck::Run()
{
    const quint32 kind = flags & kKindMask;
    if (kind > kLastKind) {
        Fail(kBadKind, QString::number(kind));
        return;
    }
    if (metricEnd < kSxfRecordStart || metricEnd > bytes.size()) {
        Fail(kBadMetric, QStringLiteral("length %1").arg(metricEnd - kSxfRecordStart));
        return;
    }
    at = kSxfRecordStart;
    if (!TakeContours() || ((flags & kHasDrawing) != 0 && !TakeDrawing())
        || ((flags & kHasExtraBlock) != 0 && !TakeExtraBlock()))
    {
        return;
    }
    if (at != metricEnd) {
        Fail(kBadMetric,
             QStringLiteral("length %1, used %2")
                 .arg(metricEnd - kSxfRecordStart)
                 .arg(at - kSxfRecordStart));
        return;
    }
    if ((flags & kHasAttributes) != 0 && !TakeAttributes()) {
        return;
    }
    if (at != bytes.size()) {
        Fail(kBadLength, QStringLiteral("length %1, used %2").arg(bytes.size()).arg(at));
    }
}

bool CSxfRecordCheck::TakeContours()
{
    const int subContours = Number<qint16>(bytes, kSubContoursOffset);
    const int vertices = Number<qint16>(bytes, kVerticesOffset);
    if (subContours < 0) {
        return true; // an object without a shape
    }
    if (!TakeContour(vertices)) {
        return false;
    }
    for (int i = 0; i < subContours; ++i) {
        qint16 unused = 0;
        qint16 count = 0;
        if (!Take(unused) || !Take(count)) {
            return Fail(kBadMetric, QStringLiteral("sub-contour %1 is missing").arg(i + 1));
        }
        if (!TakeContour(count)) {
            return false;
        }
    }
    return true;
}

bool CSxfRecordCheck::TakeContour(int vertices)
{
    if (vertices < 0) {
        const int told = vertices + 0x10000;
        return Fail(kManyVertices, QString::number(told));
    }
    constexpr qint64 kSizes[] = {2, 4, 4, 8};
    const qint64 plan = kSizes[static_cast<std::size_t>(element)];
    const qint64 height = element == EElement::Int32 ? 2 : plan; // heights of int32 have 16 bits
    const qint64 size = vertices * (2 * plan + (hasHeights ? height : 0));
    if (size > metricEnd - at) {
        return Fail(kBadMetric, QStringLiteral("%1 vertices are not there").arg(vertices));
    }
    if (element == EElement::Float || element == EElement::Double) {
        CheckCoordinates(size / plan);
    }
    at += size;
    quint8 length = 0;
    if (isText && (!Take(length) || !Skip(length + 1))) {
        return Fail(kBadMetric, QStringLiteral("a text is not there"));
    }
    return true;
}

void CSxfRecordCheck::CheckCoordinates(qint64 count)
{
    for (qint64 i = 0; i < count; ++i) {
        const bool isDouble = element == EElement::Double;
        const double value = isDouble ? Number<double>(bytes, at + 8 * i)
                                      : static_cast<double>(Number<float>(bytes, at + 4 * i));
        if (!std::isfinite(value)) {
            findings.Add(kNotFinite, {0, start + at + (isDouble ? 8 : 4) * i});
        }
    }
}

bool CSxfRecordCheck::TakeDrawing()
{
    const qint64 begin = at;
    qint32 marker = 0;
    qint32 length = 0;
    qint32 count = 0;
    if (!Take(marker) || !Take(length) || !Take(count) || marker != kDrawingMarker) {
        return Fail(kBadDrawing, QStringLiteral("it does not start"));
    }
    const bool isInside = length >= at - begin && length <= metricEnd - begin;
    if (!isInside) {
        return Fail(kBadDrawing, QStringLiteral("length %1").arg(length));
    }
    at = begin + length;
    return true;
}

bool CSxfRecordCheck::TakeExtraBlock()
{
    const qint64 begin = at;
    qint32 marker = 0;
    qint32 length = 0;
    const bool isThere = Take(marker) && Take(length) && marker == kExtraMarker && length >= 8
        && length <= metricEnd - begin;
    if (!isThere) {
        return Fail(kBadDrawing, QStringLiteral("the block behind it does not start"));
    }
    at = begin + length;
    return true;
}

bool CSxfRecordCheck::TakeAttributes()
{
    while (at < bytes.size()) {
        if (!TakeAttribute()) {
            return false;
        }
    }
    return true;
}

bool CSxfRecordCheck::TakeAttribute()
{
    quint16 code = 0;
    quint8 type = 0;
    quint8 scale = 0;
    if (!Take(code) || !Take(type) || !Take(scale)) {
        return Fail(kBadAttribute, QStringLiteral("cut off"));
    }
    for (const SAttributeType& known : kAttributeTypes) {
        if (type == known.type) {
            return Skip(known.fixed + (known.perScale ? scale : 0))
                || Fail(kBadAttribute, QStringLiteral("code %1 is cut off").arg(code));
        }
    }
    return Fail(kBadAttribute, QStringLiteral("code %1 has type %2").arg(code).arg(type));
}

bool CSxfRecordCheck::Skip(qint64 size)
{
    if (size > bytes.size() - at) {
        return false;
    }
    at += size;
    return true;
}

template <class T>
bool CSxfRecordCheck::Take(T& value)
{
    const qint64 begin = at;
    if (!Skip(sizeof(T))) {
        return false;
    }
    value = Number<T>(bytes, begin);
    return true;
}

} // namespace velorx

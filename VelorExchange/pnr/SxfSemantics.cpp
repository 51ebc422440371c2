// SPDX-License-Identifier: MIT
#include "VelorExchange/pnr/SxfLayout_p.h"
#include "VelorExchange/pnr/SxfRecord_p.h"

#include <algorithm>
#include <cmath>

namespace VelorExchange::pnr {

namespace {

// The scale is a signed power of ten; only without one does the number keep its own type.
template <class Number, class Kept>
QVariant Scaled(Number number, quint8 scale)
{
    if (scale == 0) {
        return QVariant(static_cast<Kept>(number));
    }
    return QVariant(static_cast<double>(number) * std::pow(10.0, static_cast<qint8>(scale)));
}

QVariant Utf16Value(const char* bytes, std::size_t size)
{
    std::vector<ushort> units;
    units.reserve(size / sizeof(ushort));
    for (std::size_t i = 0; i + sizeof(ushort) <= size; i += sizeof(ushort)) {
        const auto unit = CByteCursor::LoadLittleEndian<ushort>(bytes + i);
        if (unit == 0) {
            break;
        }
        units.push_back(unit);
    }
    return QString::fromUtf16(units.data(), static_cast<int>(units.size()));
}

} // namespace

bool CSxfRecordParser::ReadSemantics(CBaseObject& object, qint64 size, CByteCursor& cursor)
{
    constexpr qint64 kShortest = 5; // bytes of an entry
    constexpr qint64 kMostReserved = 4;
    const qint64 end = cursor.Position() + size;
    object.semantics.reserve(
        static_cast<std::size_t>(std::clamp(size / kShortest, qint64{0}, kMostReserved)));
    while (cursor.Position() < end) {
        PnrSemantic& semantic = object.semantics.emplace_back();
        semantic.code = cursor.Read<quint16>();
        semantic.dataType = cursor.Read<quint8>();
        semantic.scale = cursor.Read<quint8>();
        if (!ReadValue(semantic, cursor) || cursor.Failed()) {
            return false;
        }
        if (semantic.code == sxf::kSemanticLayer) {
            object.layer = semantic.value.toString();
        }
    }
    return true;
}

// False for a type that the format doesn't have. A read past the end leaves its mark in the cursor.
bool CSxfRecordParser::ReadValue(PnrSemantic& semantic, CByteCursor& cursor)
{
    const std::size_t length = semantic.scale;
    const char* bytes = nullptr;
    switch (semantic.dataType) {
    case sxf::DataAscii:
        bytes = cursor.Take(length + 1);
        semantic.value = QString::fromLatin1(bytes, bytes ? static_cast<int>(length) : 0);
        return true;
    case sxf::DataLocalText:
        bytes = cursor.Take(length + 1);
        semantic.value = bytes ? text.Decode(bytes, length) : QString();
        return true;
    case sxf::DataUtf16Text:
        bytes = cursor.Take(length + sizeof(ushort));
        semantic.value = Utf16Value(bytes, bytes ? length + sizeof(ushort) : 0);
        return true;
    case sxf::DataInt8:
        semantic.value = Scaled<qint8, int>(cursor.Read<qint8>(), semantic.scale);
        return true;
    case sxf::DataInt16:
        semantic.value = Scaled<qint16, int>(cursor.Read<qint16>(), semantic.scale);
        return true;
    case sxf::DataInt32:
        semantic.value = Scaled<qint32, int>(cursor.Read<qint32>(), semantic.scale);
        return true;
    case sxf::DataDouble:
        semantic.value = Scaled<double, double>(cursor.Read<double>(), semantic.scale);
        return true;
    default:
        return false;
    }
}

} // namespace VelorExchange::pnr

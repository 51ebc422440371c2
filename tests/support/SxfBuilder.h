// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QtEndian>

#include <initializer_list>

/// Bytes of a binary SXF file, put together field by field so that a test shows what it reads.
namespace SxfBuilder {

template <class T>
QByteArray Le(T value)
{
    QByteArray bytes(static_cast<int>(sizeof value), Qt::Uninitialized);
    qToLittleEndian(value, bytes.data());
    return bytes;
}

inline QByteArray I8(int value)
{
    return Le(static_cast<qint8>(value));
}
inline QByteArray I16(int value)
{
    return Le(static_cast<qint16>(value));
}
inline QByteArray I32(qint64 value)
{
    return Le(static_cast<quint32>(value));
}
inline QByteArray F32(float value)
{
    return Le(value);
}
inline QByteArray F64(double value)
{
    return Le(value);
}

/// Doubles one after the other.
inline QByteArray F64s(std::initializer_list<double> values)
{
    QByteArray bytes;
    for (const double value : values) {
        bytes += F64(value);
    }
    return bytes;
}

/// Puts `value` over what stands at `offset`.
inline void Put(QByteArray& bytes, int offset, const QByteArray& value)
{
    bytes.replace(offset, value.size(), value);
}

/// The sum as the format has it, computed the plain way.
inline qint32 Checksum(const QByteArray& file)
{
    quint32 sum = 0;
    for (int i = 0; i < file.size(); ++i) {
        if (i < 12 || i >= 16) {
            sum += static_cast<quint32>(static_cast<signed char>(file.at(i)));
        }
    }
    return static_cast<qint32>(sum);
}

inline void MendChecksum(QByteArray& file)
{
    if (file.size() >= 16) {
        Put(file, 12, I32(Checksum(file)));
    }
}

// Flags of a record.
constexpr quint32 kLine = 0;
constexpr quint32 kSquare = 1;
constexpr quint32 kPoint = 2;
constexpr quint32 kText = 3;
constexpr quint32 kVector = 4;
constexpr quint32 kMixed = 5;
constexpr quint32 kInt16 = 0;
constexpr quint32 kInt32 = 0x400;
constexpr quint32 kFloat = 0x40000;
constexpr quint32 kDouble = 0x40400;
constexpr quint32 kSemantics = 0x200;
constexpr quint32 kExtra = 0x800;
constexpr quint32 k3D = 0x20000;
constexpr quint32 kDrawing = 0x100000;

/// One record; lengths follow from the parts unless a test sets them.
struct CRecord
{
    quint32 flags = kLine | kDouble;
    int code = 0;
    int vertices = 0; ///< Of the main contour.
    int subContours = 0;
    QByteArray metric; ///< Contours, drawing and extra block.
    QByteArray semantics;
    qint64 lengthError = 0; ///< Added to the record length.
    qint64 metricError = 0; ///< Added to the metric length.

    QByteArray Bytes() const
    {
        return I32(0x7FFF7FFF) + I32(32 + metric.size() + semantics.size() + lengthError)
            + I32(metric.size() + metricError) + I32(code) + I32(1) + I32(flags) + I32(vertices)
            + I16(subContours) + I16(vertices) + metric + semantics;
    }
};

/// A whole file of version 4 with real coordinates and a right checksum.
inline QByteArray File(const QByteArray& records, int count)
{
    QByteArray file(452, '\0');
    Put(file, 0, I32(0x465853));
    Put(file, 4, I32(400));
    Put(file, 8, I32(0x40000));
    Put(file, 60, I32(1000));
    Put(file, 96, I32(0x18));
    Put(file, 312, I32(1000));
    Put(file, 440, I32(count));
    file += records;
    MendChecksum(file);
    return file;
}

inline QByteArray File(const CRecord& record)
{
    return File(record.Bytes(), 1);
}

/// Drawing block of one element whose lengths are right.
inline QByteArray Drawing(int type, const QByteArray& data)
{
    return I32(0x7FFF7FFE) + I32(16 + data.size()) + I32(1) + I16(4 + data.size()) + I16(type)
        + data;
}

/// An attribute.
inline QByteArray Semantic(int code, int type, int scale, const QByteArray& value)
{
    return I16(code) + I8(type) + I8(scale) + value;
}

} // namespace SxfBuilder

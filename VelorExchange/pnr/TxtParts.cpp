// SPDX-License-Identifier: MIT
#include "VelorExchange/pnr/TxtOutput_p.h"

#include <cmath>
#include <iterator>
#include <string>
#include <type_traits>

namespace VelorExchange::pnr {

namespace {

// What stands in front of the index, from align 20 on.
constexpr int kFirstAlign = 20;
constexpr const char* kAlignments[] = {"LEFT ",        "RIGHT ",        "CENTER ",
                                       "LEFT MIDDLE ", "RIGHT MIDDLE ", "CENTER MIDDLE ",
                                       "LEFT BOTTOM ", "RIGHT BOTTOM ", "CENTER BOTTOM ",
                                       "LEFT TOP ",    "RIGHT TOP ",    "CENTER TOP "};
constexpr int kAlignmentCount = static_cast<int>(std::size(kAlignments));

constexpr std::size_t kMarkRowBytes = 4;
constexpr unsigned kHighBit = 0x80;

} // namespace

void CPnrTxtWriterImpl::Put(const QString& value)
{
    const auto size = static_cast<std::size_t>(value.size());
    char* out = output.Room(size);
    text.Encode(value, size, out);
    output.Commit(out + size);
}

void CPnrTxtWriterImpl::PutReal(double value)
{
    finite = finite && std::isfinite(value);
    if (precision >= 0 && precision <= kMostFixedDigits) {
        output.Commit(PutFixed(output.Room(kFixedRoom), value, precision));
        return;
    }
    QByteArray digits;
    AppendFixed(digits, value, precision);
    output.Put(digits.constData(), static_cast<std::size_t>(digits.size()));
}

// The host's vertices must be finite as well as the converted ones: they make the bounds. A text in
// space loses its heights.
template <class Point>
void CPnrTxtWriterImpl::PutPoint(const Point& vertex, bool inThePlan)
{
    const Point point = context ? Converted(vertex) : vertex;
    finite = finite && std::isfinite(vertex.x) && std::isfinite(vertex.y);
    PutReal(point.x);
    Put(" ");
    PutReal(point.y);
    if constexpr (std::is_same_v<Point, CPoint3D>) {
        if (!inThePlan) {
            finite = finite && std::isfinite(vertex.z);
            Put(" ");
            PutReal(point.z);
        }
    }
    Put("\n");
}

void CPnrTxtWriterImpl::PutContour(const CAbstractVertexHolder& holder, bool inThePlan)
{
    PutInt(holder.Count());
    Put("\n");
    if (holder.Is2D()) {
        for (const CPoint2D& vertex : static_cast<const CVertexHolder2D&>(holder).vertices) {
            PutPoint(vertex, inThePlan);
        }
    } else {
        for (const CPoint3D& vertex : static_cast<const CVertexHolder3D&>(holder).vertices) {
            PutPoint(vertex, inThePlan);
        }
    }
}

void CPnrTxtWriterImpl::PutContours(const CBaseObject& object)
{
    if (object.holders.size() > 1) {
        PutField(".MET", static_cast<qint64>(object.holders.size()) - 1);
    }
    for (const auto& holder : object.holders) {
        PutContour(*holder, false);
    }
}

void CPnrTxtWriterImpl::PutTextContour(const CTextObject& object, const QString& part)
{
    if (!object.holders.empty()) {
        PutContour(*object.holders.front(), true);
    }
    Put(">");
    Put(part);
    Put("\n");
}

void CPnrTxtWriterImpl::PutSemantics(const CBaseObject& object)
{
    if (object.semantics.empty()) {
        return;
    }
    PutField(".SEM", static_cast<qint64>(object.semantics.size()));
    for (const PnrSemantic& semantic : object.semantics) {
        finite = finite && IsFinite(semantic.value);
        PutInt(static_cast<quint16>(semantic.code));
        Put(" ");
        Put(ValueText(semantic));
        Put("\n");
    }
}

void CPnrTxtWriterImpl::PutAlignment(qint32 align, qint64 index)
{
    const qint32 row = align - kFirstAlign;
    Put(".ALG ");
    if (row >= 0 && row < kAlignmentCount) {
        output.Put(kAlignments[row], std::char_traits<char>::length(kAlignments[row]));
    }
    PutInt(index);
    Put("\n");
}

void CPnrTxtWriterImpl::PutMark(const PnrPointImage& image)
{
    PutField(".IMG 1\n_MARK 5\nSIZE", image.size);
    PutField("POSV", image.posV);
    PutField("POSH", image.posH);
    PutField("COLOR", image.color);
    Put("BITS 32\n");
    for (std::size_t i = 0; i < image.bits.size(); ++i) {
        for (unsigned bit = kHighBit; bit != 0; bit >>= 1U) {
            output.Put((image.bits[i] & bit) != 0 ? " 1" : " 0", 2);
        }
        if (i % kMarkRowBytes == kMarkRowBytes - 1) {
            Put("\n");
        }
    }
}

// The line with ALIGN is fixed: the real alignment travels in ".ALG".
void CPnrTxtWriterImpl::PutTextImage(const PnrTextImage& image)
{
    PutField(".IMG 1\n_TEXT 13\nCOLOR", image.color);
    PutField("BCOLOR", image.bColor);
    PutField("SCOLOR", image.sColor);
    PutField("HEIGHT", image.height);
    PutField("WEIGHT", image.weight);
    Put("ALIGN   24\n");
    PutField("WIDE", image.wide);
    PutField("HORIZONTAL", image.horizontal);
    PutField("ITALIC", image.italic);
    PutField("ULINE", image.uline);
    PutField("XLINE", image.xline);
    PutField("NAME", image.fontName);
    PutField("CHARSET", image.charset);
}

} // namespace VelorExchange::pnr

// SPDX-License-Identifier: MIT
#include "VelorExchange/pnr/PnrBinWriterImpl_p.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace VelorExchange::pnr {

namespace {

constexpr quint32 kLargestCount = 0xFFFF;
constexpr std::size_t kTextBlockUnit = 8;
constexpr std::size_t kLongestText = 252; // so that the length fits its byte

// A finite number less itself is zero; anything else makes a NaN that stays.
double NotFinite(const CPoint2D& point)
{
    return (point.x - point.x) + (point.y - point.y);
}

double NotFinite(const CPoint3D& point)
{
    return (point.x - point.x) + (point.y - point.y) + (point.z - point.z);
}

char* StoreNumber(char* out, double value)
{
    qToLittleEndian(value, out);
    return out + sizeof value;
}

char* StorePoint(char* out, const CPoint2D& point)
{
    return StoreNumber(StoreNumber(out, point.x), point.y);
}

char* StorePoint(char* out, const CPoint3D& point)
{
    return StoreNumber(StoreNumber(StoreNumber(out, point.x), point.y), point.z);
}

} // namespace

void CPnrBinWriterImpl::PutFirstContour(const CHolders& holders, qint64 subContours)
{
    if (holders.empty()) {
        output.Put<qint32>(0);
        output.Put<qint16>(-1);
        output.Put<quint16>(0);
        return;
    }
    const quint32 count = holders.front()->Count();
    output.Put<quint32>(count);
    output.Put<quint16>(static_cast<quint16>(subContours));
    output.Put<quint16>(static_cast<quint16>(std::min(count, kLargestCount)));
    PutVertices(*holders.front());
}

void CPnrBinWriterImpl::PutContours(const CHolders& holders)
{
    PutFirstContour(holders, static_cast<qint64>(holders.size()) - 1);
    for (std::size_t i = 1; i < holders.size(); ++i) {
        PutFurtherContour(*holders[i]);
    }
}

void CPnrBinWriterImpl::PutFurtherContour(const CAbstractVertexHolder& holder)
{
    const auto count = static_cast<quint16>(std::min(holder.Count(), kLargestCount));
    output.Put<quint16>(holder.Is2D() ? count : quint16{0});
    output.Put<quint16>(count);
    PutVertices(holder);
}

void CPnrBinWriterImpl::PutVertices(const CAbstractVertexHolder& holder)
{
    if (holder.Is2D()) {
        PutVertices(static_cast<const CVertexHolder2D&>(holder).vertices);
    } else {
        PutVertices(static_cast<const CVertexHolder3D&>(holder).vertices);
    }
}

// The host's vertices must be finite as well as the converted ones: they make the bounds.
template <class Point>
void CPnrBinWriterImpl::PutVertices(const std::vector<Point>& vertices)
{
    double notFinite = 0.0;
    char* out = output.Room(vertices.size() * sizeof(Point));
    if (context) {
        for (const Point& vertex : vertices) {
            const Point point = Converted(vertex);
            notFinite += NotFinite(vertex) + NotFinite(point);
            out = StorePoint(out, point);
        }
    } else {
        for (const Point& vertex : vertices) {
            notFinite += NotFinite(vertex);
            out = StorePoint(out, vertex);
        }
    }
    output.Commit(out);
    finite = finite && notFinite == 0.0;
}

// The block is a multiple of 8 bytes long with its length in front and a zero behind.
void CPnrBinWriterImpl::PutTextBlock(const QString& part, quint16 align)
{
    QString cleaned = part;
    cleaned.remove(QLatin1Char('>'));
    cleaned.replace(QLatin1String("\n"), QLatin1String("\r\n"));
    const int lastBreak = cleaned.lastIndexOf(QLatin1Char('\r'));
    if (lastBreak >= 0) {
        cleaned.remove(lastBreak, 2);
    }
    const std::size_t size = std::min(static_cast<std::size_t>(cleaned.size()), kLongestText);
    const std::size_t marked = size + 2; // a zero and the alignment behind the text
    const std::size_t length =
        (marked + 2 + kTextBlockUnit - 1) / kTextBlockUnit * kTextBlockUnit - 2;
    output.Put<quint8>(static_cast<quint8>(length));
    char* out = output.Room(size);
    text.Encode(cleaned, size, out);
    output.Commit(out + size);
    output.Fill(1);
    output.Put<quint8>(static_cast<quint8>(align));
    output.Fill(length - marked + 1);
}

void CPnrBinWriterImpl::PutDrawingHead(const sxf::CDrawingLayout& layout)
{
    output.Put<qint32>(sxf::kDrawingMarker);
    output.Put<qint32>(layout.blockLength);
    output.Put<qint32>(1);
    output.Put<qint16>(layout.elementLength);
    output.Put<qint16>(layout.type);
}

void CPnrBinWriterImpl::PutDrawing(const PnrLineImage& image)
{
    PutDrawingHead(sxf::kLineDrawing);
    output.Put<qint32>(image.color);
    output.Put<qint32>(image.thickness);
}

void CPnrBinWriterImpl::PutDrawing(const PnrSquareImage& image)
{
    PutDrawingHead(sxf::kSquareDrawing);
    output.Put<qint32>(image.color);
}

void CPnrBinWriterImpl::PutDrawing(const PnrPointImage& image)
{
    PutDrawingHead(sxf::kPointDrawing);
    for (const qint32 field :
         {image.recordSize, image.count, image.size, image.posH, image.posV, image.color})
    {
        output.Put<qint32>(field);
    }
    for (const quint8 row : image.bits) {
        output.Put<quint8>(row);
    }
}

void CPnrBinWriterImpl::PutDrawing(const PnrTextImage& image)
{
    PutDrawingHead(sxf::kTextDrawing);
    for (const quint32 field : {image.color, image.bColor, image.sColor, image.height}) {
        output.Put<quint32>(field);
    }
    output.Put<quint16>(image.weight);
    output.Put<quint8>(image.reserved1);
    output.Put<quint8>(image.reserved2);
    output.Put<qint16>(image.align);
    output.Put<qint16>(image.reserved3);
    for (const quint8 field : {image.wide, image.horizontal, image.italic, image.uline, image.xline,
                               image.reserved4, image.charset, image.reserved5})
    {
        output.Put<quint8>(field);
    }
    PutPadded(image.fontName, sxf::kFontNameSize);
}

void CPnrBinWriterImpl::PutPadded(const QString& name, std::size_t size)
{
    const std::size_t used = std::min(static_cast<std::size_t>(name.size()), size);
    char* out = output.Room(size);
    text.Encode(name, used, out);
    std::fill(out + used, out + size, '\0');
    output.Commit(out + size);
}

void CPnrBinWriterImpl::PutSemantics(const CBaseObject& object)
{
    for (const PnrSemantic& semantic : object.semantics) {
        PutSemantic(semantic);
    }
}

// Numbers keep the scale they come with; a text's scale counts one of the two zeros behind it
// (PnrBinWriter.WritesEveryTypeOfAttribute). Types without a rule leave nothing.
void CPnrBinWriterImpl::PutSemantic(const PnrSemantic& semantic)
{
    const bool isText = semantic.dataType == sxf::DataLocalText;
    if (!isText && semantic.dataType != sxf::DataInt8 && semantic.dataType != sxf::DataInt16
        && semantic.dataType != sxf::DataInt32 && semantic.dataType != sxf::DataDouble)
    {
        return;
    }
    finite = finite && IsFinite(semantic.value);
    output.Put<quint16>(static_cast<quint16>(semantic.code));
    output.Put<quint8>(static_cast<quint8>(semantic.dataType));
    output.Put<quint8>(static_cast<quint8>(semantic.scale + (isText ? 1 : 0)));
    if (isText) {
        const QString value = ValueText(semantic);
        PutPadded(value, static_cast<std::size_t>(value.size()) + 2);
    } else if (semantic.dataType == sxf::DataDouble) {
        const double value = semantic.value.toDouble();
        finite = finite && std::isfinite(value);
        output.Put<double>(value);
    } else {
        const int value = finite ? semantic.value.toInt() : 0;
        output.Put<qint32>(value); // of which only the low bytes stay
        output.Commit(output.Data() + output.Size() - sizeof(qint32) + semantic.dataType);
    }
}

} // namespace VelorExchange::pnr

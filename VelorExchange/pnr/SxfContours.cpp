// SPDX-License-Identifier: MIT
#include "VelorExchange/pnr/SxfLayout_p.h"
#include "VelorExchange/pnr/SxfRecord_p.h"

#include <array>
#include <type_traits>

namespace VelorExchange::pnr {

namespace {

// Heights of 32-bit elements take 16 bits in the file (PnrBinReader.ReadsHeightsOfInt32AsInt16).
template <class Element>
using HeightOf = std::conditional_t<std::is_same_v<Element, qint32>, qint16, Element>;

template <class Element>
constexpr std::size_t SizeOf(const CPoint2D*)
{
    return 2 * sizeof(Element);
}

template <class Element>
constexpr std::size_t SizeOf(const CPoint3D*)
{
    return 2 * sizeof(Element) + sizeof(HeightOf<Element>);
}

template <class Element>
void Decode(const char* bytes, CPoint2D& point)
{
    point.x = static_cast<double>(CByteCursor::LoadLittleEndian<Element>(bytes));
    point.y = static_cast<double>(CByteCursor::LoadLittleEndian<Element>(bytes + sizeof(Element)));
}

template <class Element>
void Decode(const char* bytes, CPoint3D& point)
{
    point.x = static_cast<double>(CByteCursor::LoadLittleEndian<Element>(bytes));
    point.y = static_cast<double>(CByteCursor::LoadLittleEndian<Element>(bytes + sizeof(Element)));
    point.z = static_cast<double>(
        CByteCursor::LoadLittleEndian<HeightOf<Element>>(bytes + 2 * sizeof(Element)));
}

template <class Element, class Point>
bool ReadVertices(std::vector<Point>& vertices, std::size_t count, CByteCursor& cursor)
{
    constexpr std::size_t kSize = SizeOf<Element>(static_cast<const Point*>(nullptr));
    const char* bytes = cursor.Take(count * kSize);
    if (!bytes) {
        return false;
    }
    vertices.resize(count);
    for (Point& point : vertices) {
        Decode<Element>(bytes, point);
        bytes += kSize;
    }
    return true;
}

template <class Point>
using VertexReader = bool (*)(std::vector<Point>&, std::size_t, CByteCursor&);

// By the bits for floating and for wide elements.
template <class Point>
constexpr std::array<VertexReader<Point>, 4> kVertexReaders = {
    ReadVertices<qint16, Point>, ReadVertices<qint32, Point>, ReadVertices<float, Point>,
    ReadVertices<double, Point>};

template <class Point>
void ToReal(std::vector<Point>& vertices, const CSxfFrame& frame)
{
    for (Point& point : vertices) {
        point.x = (point.x - frame.originX) / frame.divisor * frame.scale;
        point.y = (point.y - frame.originY) / frame.divisor * frame.scale;
    }
}

template <class Holder>
bool ReadHolder(CBaseObject& object, const CSxfRecordHead& head, std::size_t count,
                const CSxfFrame& frame, CByteCursor& cursor)
{
    using Point = typename decltype(Holder::vertices)::value_type;
    const std::size_t type =
        (head.Has(sxf::kFlagFloating) ? 2U : 0U) + (head.Has(sxf::kFlagWideElements) ? 1U : 0U);
    auto holder = std::make_unique<Holder>();
    if (!kVertexReaders<Point>[type](holder->vertices, count, cursor)) {
        return false;
    }
    if (!frame.real) {
        ToReal(holder->vertices, frame);
    }
    object.holders.push_back(std::move(holder));
    return true;
}

qint16 ReadSubContourHead(CByteCursor& cursor)
{
    cursor.Skip(sxf::kSubContourHeadSize - static_cast<int>(sizeof(qint16)));
    return cursor.Read<qint16>();
}

} // namespace

bool CSxfRecordParser::ReadContour(CBaseObject& object, const CSxfRecordHead& head, qint16 vertices,
                                   CByteCursor& cursor) const
{
    // A count beyond 32767 is a negative one: no vertices (PnrBinReader.ReadsNoVerticesOfANegativeCount).
    const std::size_t count = vertices > 0 ? static_cast<std::size_t>(vertices) : 0;
    return head.Has(sxf::kFlag3D) ? ReadHolder<CVertexHolder3D>(object, head, count, frame, cursor)
                                  : ReadHolder<CVertexHolder2D>(object, head, count, frame, cursor);
}

bool CSxfRecordParser::ReadContours(CBaseObject& object, const CSxfRecordHead& head,
                                    CByteCursor& cursor) const
{
    object.holders.reserve(head.subContours == 0 ? 1 : 0); // most have no more
    for (int i = 0; i <= head.subContours; ++i) {
        const qint16 vertices = i == 0 ? head.vertices : ReadSubContourHead(cursor);
        if (!ReadContour(object, head, vertices, cursor)) {
            return false;
        }
    }
    return true;
}

bool CSxfRecordParser::ReadContours(CTextObject& object, const CSxfRecordHead& head,
                                    CByteCursor& cursor)
{
    for (int i = 0; i <= head.subContours; ++i) {
        const qint16 vertices = i == 0 ? head.vertices : ReadSubContourHead(cursor);
        if (!ReadContour(object, head, vertices, cursor) || !ReadTextPart(object, cursor)) {
            return false;
        }
    }
    return true;
}

// The alignment behind the first zero is not kept: without the zeros it ends the part
// (PnrBinReader.KeepsTheAlignmentAsLastCharacterOfATextPart).
bool CSxfRecordParser::ReadTextPart(CTextObject& object, CByteCursor& cursor)
{
    const std::size_t size = std::size_t{cursor.Read<quint8>()} + 1;
    const char* bytes = cursor.Take(size);
    if (!bytes) {
        return false;
    }
    object.text += QLatin1Char('>');
    object.text += text.Decode(bytes, size).remove(QChar(QChar::Null));
    return true;
}

} // namespace VelorExchange::pnr

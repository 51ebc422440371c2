// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/SxfCodec.h"
#include "tools/velorx/formats/SxfDetails.h"

#include <QByteArray>
#include <QFile>
#include <QtEndian>

#include <algorithm>

namespace velorx {

using namespace VelorExchange::pnr;

namespace {

constexpr qint64 kFirstRecord = 452;
constexpr int kHeadSize = 32;
constexpr qint32 kRecordMarker = 0x7FFF7FFF;
constexpr qint32 kDrawingMarker = 0x7FFF7FFE;
constexpr int kSubContourHeadSize = 4;
constexpr int kTextAttributesSize = 32;
constexpr int kFontNameSize = 32;
constexpr int kFontBytes = kTextAttributesSize + kFontNameSize;

enum EFlag : quint32 {
    kKindMask = 0xF,
    kWideElements = 1U << 10U,
    kInSpace = 1U << 17U,
    kFloating = 1U << 18U,
    kDrawn = 1U << 20U
};

enum EKind : quint32 { kLine = 0, kPoint = 2, kText = 3, kVector = 4, kMixedText = 5 };

/// Goes through bytes; what lies behind their end reads as zeros.
class CBytes
{
public:
    explicit CBytes(QByteArray content) : bytes(std::move(content)) { }

    template <class T>
    T Read()
    {
        char value[sizeof(T)] = {};
        const QByteArray rest = Take(sizeof(T));
        std::copy_n(rest.constData(), rest.size(), value);
        return qFromLittleEndian<T>(value);
    }

    /// As many of the next `size` bytes as there are.
    QByteArray Take(qint64 size)
    {
        const qint64 used = std::clamp(size, qint64{0}, qint64{bytes.size()} - at);
        const QByteArray taken = bytes.mid(static_cast<int>(at), static_cast<int>(used));
        at += used;
        return taken;
    }

    bool AtEnd() const { return at >= bytes.size(); }

private:
    QByteArray bytes;
    qint64 at = 0;
};

/// The head of a record, as far as it is of use here.
struct SHead
{
    explicit SHead(CBytes bytes)
    {
        isRecord = bytes.Read<qint32>() == kRecordMarker;
        length = bytes.Read<qint32>();
        metric = bytes.Read<qint32>();
        code = bytes.Read<qint32>();
        bytes.Take(sizeof(qint32));
        flags = bytes.Read<quint32>();
        bytes.Take(sizeof(qint32));
        subContours = bytes.Read<qint16>();
        vertices = bytes.Read<qint16>();
    }

    bool Has(quint32 flag) const { return (flags & flag) != 0; }
    quint32 Kind() const { return flags & kKindMask; }
    bool IsText() const { return Kind() == kText || Kind() == kMixedText; }
    bool IsOfUse() const
    {
        return IsText()
            || (Has(kDrawn) && (Kind() == kLine || Kind() == kPoint || Kind() == kVector));
    }

    qint64 VertexSize() const
    {
        const qint64 element =
            Has(kFloating) ? (Has(kWideElements) ? 8 : 4) : (Has(kWideElements) ? 4 : 2);
        const qint64 height = !Has(kFloating) ? 2 : element; // of whole numbers always 16 bits
        return 2 * element + (Has(kInSpace) ? height : 0);
    }

    bool isRecord;
    qint32 length;
    qint32 metric;
    qint32 code;
    quint32 flags;
    qint16 subContours;
    qint16 vertices;
};

// The byte behind the first zero, if there is one ahead of the closing ones.
qint16 AlignOf(const QByteArray& part)
{
    const int zero = part.indexOf('\0');
    return zero >= 0 && zero < part.size() - 2
        ? static_cast<qint16>(static_cast<quint8>(part.at(zero + 1)))
        : qint16{0};
}

void ReadContours(const SHead& head, CBytes& bytes, SSxfDetails& details)
{
    for (int i = 0; i <= head.subContours && !bytes.AtEnd(); ++i) {
        qint16 vertices = head.vertices;
        if (i > 0) {
            bytes.Take(kSubContourHeadSize - static_cast<qint64>(sizeof vertices));
            vertices = bytes.Read<qint16>();
        }
        bytes.Take(vertices * head.VertexSize());
        if (head.IsText()) {
            const qint64 size = qint64{bytes.Read<quint8>()} + 1;
            const QByteArray part = bytes.Take(size);
            details.parts.append(SxfCodec().toUnicode(part.left(part.indexOf('\0'))));
            details.aligns.push_back(AlignOf(part));
        }
    }
}

PnrPointImage ReadMark(CBytes bytes)
{
    PnrPointImage mark;
    for (qint32* field :
         {&mark.recordSize, &mark.count, &mark.size, &mark.posH, &mark.posV, &mark.color})
    {
        *field = bytes.Read<qint32>();
    }
    for (quint8& row : mark.bits) {
        row = bytes.Read<quint8>();
    }
    return mark;
}

PnrTextImage ReadLetters(CBytes bytes)
{
    PnrTextImage letters;
    for (quint32* field : {&letters.color, &letters.bColor, &letters.sColor, &letters.height}) {
        *field = bytes.Read<quint32>();
    }
    letters.weight = bytes.Read<quint16>();
    letters.reserved1 = bytes.Read<quint8>();
    letters.reserved2 = bytes.Read<quint8>();
    letters.align = bytes.Read<qint16>();
    letters.reserved3 = bytes.Read<qint16>();
    for (quint8* field : {&letters.wide, &letters.horizontal, &letters.italic, &letters.uline,
                          &letters.xline, &letters.reserved4, &letters.charset, &letters.reserved5})
    {
        *field = bytes.Read<quint8>();
    }
    const QString font = SxfFieldText(bytes.Take(kFontNameSize));
    letters.fontName = font.isEmpty() ? letters.fontName : font;
    return letters;
}

struct SDrawing
{
    qint16 type;
    qint64 dataSize; ///< 0 for what the element tells itself.
    void (*read)(CBytes data, SSxfDetails& details);
};

constexpr SDrawing kDrawings[] = {
    {0x80, 0,
     [](CBytes data, SSxfDetails& details) {
         data.Take(sizeof(qint32));
         details.thickness = data.Read<qint32>();
     }},
    {0x81, 0,
     [](CBytes data, SSxfDetails& details) {
         data.Take(sizeof(qint32));
         details.thickness = data.Read<qint32>();
     }},
    {0x8E, kTextAttributesSize,
     [](CBytes data, SSxfDetails& details) { details.letters = ReadLetters(std::move(data)); }},
    {0x8F, 0, [](CBytes data, SSxfDetails& details) { details.mark = ReadMark(std::move(data)); }},
    {0x98, kFontBytes,
     [](CBytes data, SSxfDetails& details) { details.letters = ReadLetters(std::move(data)); }},
};

// Elements of texts may tell a length that leaves out their head, so that they count by their type.
void ReadDrawing(CBytes& bytes, SSxfDetails& details)
{
    if (bytes.Read<qint32>() != kDrawingMarker) {
        return;
    }
    bytes.Take(sizeof(qint32));
    const auto count = bytes.Read<qint32>();
    for (qint32 i = 0; i < count && !bytes.AtEnd(); ++i) {
        constexpr qint64 kElementHeadSize = 4;
        const qint64 told = bytes.Read<qint16>() - kElementHeadSize;
        const auto type = bytes.Read<qint16>();
        const auto* drawing =
            std::find_if(std::begin(kDrawings), std::end(kDrawings),
                         [type](const SDrawing& known) { return known.type == type; });
        const bool isKnown = drawing != std::end(kDrawings);
        const QByteArray data =
            bytes.Take(isKnown && drawing->dataSize > 0 ? drawing->dataSize : told);
        if (isKnown) {
            drawing->read(CBytes(data), details);
        }
    }
}

class CSxfBinaryDetails final : public ISxfDetails
{
public:
    explicit CSxfBinaryDetails(const QString& path) : file(path)
    {
        isSound = file.open(QIODevice::ReadOnly) && file.seek(kFirstRecord);
    }

    SSxfDetails Next() override
    {
        SSxfDetails details;
        if (!isSound) {
            return details;
        }
        const qint64 start = file.pos();
        const SHead head{CBytes(file.read(kHeadSize))};
        isSound = head.isRecord && head.length >= kHeadSize && head.metric >= 0
            && head.metric <= head.length - kHeadSize && head.length <= file.size() - start;
        if (!isSound) {
            return details;
        }
        details.code = head.code;
        if (head.IsOfUse()) {
            CBytes bytes(file.read(head.metric));
            ReadContours(head, bytes, details);
            if (head.Has(kDrawn)) {
                ReadDrawing(bytes, details);
            }
        }
        isSound = file.seek(start + head.length);
        return details;
    }

private:
    QFile file;
    bool isSound = false; ///< The file stands at a record.
};

} // namespace

std::unique_ptr<ISxfDetails> MakeSxfBinaryDetails(const QString& path)
{
    return std::make_unique<CSxfBinaryDetails>(path);
}

} // namespace velorx

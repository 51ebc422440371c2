// SPDX-License-Identifier: MIT
#include "VelorExchange/foundation/LocalText_p.h"

#include <QTextCodec>

#include <algorithm>
#include <cstring>
#include <iterator>
#include <numeric>

namespace VelorExchange {

namespace {

// MIB numbers of the codecs in which one byte is one character.
constexpr int kSingleByteMibs[] = {3,    4,    5,    6,    7,    8,    9,    10,   11,   12,
                                   13,   109,  110,  111,  112,  2009, 2011, 2027, 2043, 2045,
                                   2046, 2049, 2054, 2084, 2086, 2088, 2089, 2250, 2251, 2252,
                                   2253, 2254, 2255, 2256, 2257, 2258, 2259};
constexpr int kUtf8Mib = 106;
constexpr char kByteOrderMark[] = "\xEF\xBB\xBF";
constexpr std::ptrdiff_t kByteOrderMarkSize = 3;

bool IsAsciiSpace(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

bool IsAscii(char c)
{
    return static_cast<unsigned char>(c) < 0x80;
}

void TrimAsciiSpace(const char*& begin, const char*& end)
{
    while (begin != end && IsAsciiSpace(*begin)) {
        ++begin;
    }
    while (begin != end && IsAsciiSpace(end[-1])) {
        --end;
    }
}

// Lead bytes of white space beyond ASCII (U+0085, U+00A0, U+1680, U+2000 and on, U+3000) and of the
// byte order mark. A hit only means that the exact way has to be taken.
bool MayStartSpace(unsigned char lead, unsigned char second)
{
    switch (lead) {
    case 0xC2:
        return second == 0x85 || second == 0xA0;
    case 0xE1:
        return second == 0x9A;
    case 0xE2:
        return second == 0x80 || second == 0x81;
    case 0xE3:
        return second == 0x80;
    case 0xEF:
        return second == 0xBB;
    default:
        return false;
    }
}

bool MayStartSpace(const char* p, const char* end)
{
    return end - p >= 2
        && MayStartSpace(static_cast<unsigned char>(p[0]), static_cast<unsigned char>(p[1]));
}

bool MayEndInSpace(const char* begin, const char* end)
{
    return MayStartSpace(end - std::min<std::ptrdiff_t>(2, end - begin), end)
        || MayStartSpace(end - std::min<std::ptrdiff_t>(3, end - begin), end);
}

} // namespace

CTextDecoder::CTextDecoder(QTextCodec* textCodec) : codec(textCodec)
{
    const int mib = codec->mibEnum();
    if (mib == kUtf8Mib) {
        kind = EKind::Utf8;
    } else if (std::find(std::begin(kSingleByteMibs), std::end(kSingleByteMibs), mib)
                   != std::end(kSingleByteMibs)
               && FillTable())
    {
        kind = EKind::Table;
    } else {
        asciiTransparent = IsAsciiTransparent();
    }
    FillPlainBytes();
}

CTextDecoder CTextDecoder::Local()
{
    return CTextDecoder(QTextCodec::codecForLocale());
}

// False if a byte is not one character of the basic plane, or ASCII is not itself.
bool CTextDecoder::FillTable()
{
    std::array<char, 256> bytes{};
    std::iota(bytes.begin(), bytes.end(), '\0');
    const QString text = codec->toUnicode(bytes.data(), static_cast<int>(bytes.size()));
    if (text.size() != static_cast<int>(bytes.size())) {
        return false;
    }
    singleByte = true;
    for (std::size_t byte = 0; byte < table.size(); ++byte) {
        const QChar c = text.at(static_cast<int>(byte));
        if (byte < 0x80 && c.unicode() != byte) {
            return false;
        }
        table[byte] = c.unicode();
        space[byte] = c.isSpace();
    }
    return true;
}

// In UTF-8 a continuation byte may end a white space, and some lead bytes may start one or the byte
// order mark. In codecs of which nothing is known no byte is plain.
void CTextDecoder::FillPlainBytes()
{
    for (std::size_t byte = 0; byte < plainStart.size(); ++byte) {
        const bool graphic = byte > ' ' && byte < 0x7F;
        const bool notSpace = kind == EKind::Table && !space[byte];
        const bool cyrillicLead = byte >= 0xC3 && byte <= 0xE0;
        const bool harmlessTail = byte >= 0x8B && byte <= 0xBF && byte != 0x9F && byte != 0xA0
            && byte != 0xA8 && byte != 0xA9 && byte != 0xAF;
        plainStart[byte] = notSpace || (kind == EKind::Utf8 && (graphic || cyrillicLead));
        plainEnd[byte] = notSpace || (kind == EKind::Utf8 && (graphic || harmlessTail));
    }
}

bool CTextDecoder::IsAsciiTransparent() const
{
    QByteArray ascii;
    for (char c = 0x7F; c >= 0; --c) {
        ascii.append(c);
    }
    return codec->toUnicode(ascii.constData(), ascii.size())
        == QString::fromLatin1(ascii.constData(), ascii.size());
}

QString CTextDecoder::Decode(const char* data, std::size_t size) const
{
    if (kind == EKind::Utf8) {
        return QString::fromUtf8(data, static_cast<int>(size));
    }
    if (kind == EKind::Other) {
        return codec->toUnicode(data, static_cast<int>(size));
    }
    QString text(static_cast<int>(size), Qt::Uninitialized);
    std::transform(data, data + size, text.data(), [this](char c) {
        return QChar(static_cast<ushort>(table[static_cast<unsigned char>(c)]));
    });
    return text;
}

bool CTextDecoder::Trim(const char*& begin, const char*& end) const
{
    switch (kind) {
    case EKind::Table:
        return TrimByTable(begin, end);
    case EKind::Utf8:
        return TrimUtf8(begin, end);
    default:
        return TrimOther(begin, end);
    }
}

bool CTextDecoder::TrimByTable(const char*& begin, const char*& end) const
{
    while (begin != end && space[static_cast<unsigned char>(*begin)]) {
        ++begin;
    }
    while (begin != end && space[static_cast<unsigned char>(end[-1])]) {
        --end;
    }
    return true;
}

bool CTextDecoder::TrimUtf8(const char*& begin, const char*& end)
{
    const char* first = begin;
    const char* last = end;
    TrimAsciiSpace(first, last);
    if (first != last
        && ((!IsAscii(*first) && MayStartSpace(first, last))
            || (!IsAscii(last[-1]) && MayEndInSpace(first, last))))
    {
        return false;
    }
    begin = first;
    end = last;
    return true;
}

// Where bytes may lean on each other, only plain ASCII is certain.
bool CTextDecoder::TrimOther(const char*& begin, const char*& end) const
{
    if (!asciiTransparent || !std::all_of(begin, end, IsAscii)) {
        return false;
    }
    TrimAsciiSpace(begin, end);
    return true;
}

// Qt's decoder drops one byte order mark at the start: a text that begins with one is given another.
QByteArray CTextDecoder::Recode(const char* data, std::size_t size) const
{
    const QString text = Decode(data, size).trimmed();
    QByteArray bytes = text.toUtf8();
    if (bytes.startsWith(kByteOrderMark)) {
        bytes.prepend(kByteOrderMark, kByteOrderMarkSize);
    }
    return bytes;
}

QString CTextDecoder::DecodeRecoded(const char* data, std::size_t size)
{
    return QString::fromUtf8(data, static_cast<int>(size));
}

} // namespace VelorExchange

// SPDX-License-Identifier: MIT
#include "VelorExchange/mif/LineText_p.h"

#include "VelorExchange/foundation/NumberParser_p.h"
#include "VelorExchange/mif/Tokens_p.h"

#include <QTextCodec>

#include <algorithm>

namespace VelorExchange::mif {

namespace {

constexpr int kUtf8Mib = 106;
constexpr char kByteOrderMark[] = "\xEF\xBB\xBF";
constexpr int kByteOrderMarkSize = 3;

bool IsAsciiByte(char c)
{
    return static_cast<unsigned char>(c) < 0x80;
}

bool StartsWithByteOrderMark(CSpan span)
{
    return span.Size() >= kByteOrderMarkSize
        && std::equal(kByteOrderMark, kByteOrderMark + kByteOrderMarkSize, span.begin);
}

// Qt's decoder takes a byte order mark away from the start of what it gets. Inside a line it stays.
QString DecodeUtf8(CSpan span)
{
    if (StartsWithByteOrderMark(span)) {
        return QChar(QChar::ByteOrderMark)
            + QString::fromUtf8(span.begin + kByteOrderMarkSize,
                                static_cast<int>(span.Size()) - kByteOrderMarkSize);
    }
    return QString::fromUtf8(span.begin, static_cast<int>(span.Size()));
}

bool AsciiStays(QTextCodec* codec)
{
    QString ascii;
    for (ushort c = 1; c < 0x80; ++c) {
        ascii += QChar(c);
    }
    const QByteArray bytes = codec->fromUnicode(ascii);
    return bytes == ascii.toLatin1() && codec->toUnicode(bytes) == ascii;
}

// One byte is one character, and no byte but the ASCII ones is an ASCII character.
bool IsSingleByte(const CTextDecoder& decoder)
{
    for (int byte = 0x80; byte < 0x100; ++byte) {
        const char c = static_cast<char>(byte);
        const char* begin = &c;
        const char* end = begin + 1;
        const QString text = decoder.Decode(&c, 1);
        if (!decoder.Trim(begin, end) || text.size() != 1 || text.at(0).unicode() < 0x80) {
            return false;
        }
    }
    return true;
}

} // namespace

CLineText::CLineText()
    : decoder(CTextDecoder::Local()), localIsUtf8(decoder.Codec()->mibEnum() == kUtf8Mib),
      asciiStays(AsciiStays(decoder.Codec())),
      singleUnits(asciiStays && (localIsUtf8 || IsSingleByte(decoder)))
{
}

void CLineText::Assign(const QByteArray& bytes)
{
    own = bytes;
    span = {own.constData(), own.constData() + own.size()};
    lettersKnown = false;
}

void CLineText::Assign(const QString& text)
{
    Assign(text.toUtf8());
    isUtf8 = true;
}

QString CLineText::RoundTrip(const QString& text) const
{
    return decoder.Codec()->toUnicode(decoder.Codec()->fromUnicode(text));
}

// Qt decodes a line with its line feed, which a broken character at the end of the line may swallow.
QString CLineText::Decoded(CSpan raw, bool hasLineFeed) const
{
    return decoder.Decode(raw.begin, raw.Size() + (hasLineFeed && !singleUnits ? 1U : 0U));
}

void CLineText::SetOtherLine(CSpan raw, bool hasLineFeed)
{
    changesOnTheWay = !localIsUtf8;
    const bool asTheyStand =
        singleUnits || (asciiStays && std::all_of(raw.begin, raw.end, IsAsciiByte));
    if (asTheyStand && decoder.Trim(raw.begin, raw.end)) {
        Assign(raw);
        return;
    }
    changesOnTheWay = false;
    Assign(RoundTrip(Decoded(raw, hasLineFeed).trimmed()));
}

void CLineText::SetRow(CSpan raw, bool hasLineFeed)
{
    changesOnTheWay = false;
    if (singleUnits || (asciiStays && std::all_of(raw.begin, raw.end, IsAsciiByte))) {
        if (localIsUtf8 && StartsWithByteOrderMark(raw)) {
            raw.begin += kByteOrderMarkSize;
        }
        Assign(raw);
    } else {
        Assign(Decoded(raw, hasLineFeed).remove(QLatin1Char('\n')));
    }
    if (!span.IsEmpty() && span.end[-1] == '\r') {
        --span.end;
    }
    Remove('\r');
}

void CLineText::LearnLetters() const
{
    unsigned all = 0;
    quint32 seen = 0;
    for (const char* p = span.begin; p != span.end; ++p) {
        const unsigned c = static_cast<unsigned char>(*p);
        all |= c;
        seen |= static_cast<quint32>(c >= 0x40) << (c & 31U);
    }
    letters = seen;
    isAscii = all < 0x80;
    lettersKnown = true;
}

// Beyond ASCII there are letters that count as ASCII ones without regard to case, so Qt is asked.
bool CLineText::Contains(const CWord& word) const
{
    if (!lettersKnown) {
        LearnLetters();
    }
    if (!isAscii) {
        const QLatin1String text(word.text.data(), static_cast<int>(word.text.size()));
        return Text().contains(text, Qt::CaseInsensitive);
    }
    if ((word.letters & ~letters) != 0) {
        return false;
    }
    const auto sameLetter = [](char a, char b) { return (a | 0x20) == (b | 0x20); };
    return std::search(span.begin, span.end, word.text.begin(), word.text.end(), sameLetter)
        != span.end;
}

bool CLineText::HasDigit() const
{
    if (std::all_of(span.begin, span.end, IsAsciiByte)) {
        return std::any_of(span.begin, span.end, [](char c) { return c >= '0' && c <= '9'; });
    }
    const QString text = Text();
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c.isDigit(); });
}

void CLineText::Remove(char c)
{
    if (std::find(span.begin, span.end, c) == span.end) {
        return;
    }
    if (std::all_of(span.begin, span.end, IsAsciiByte)) {
        QByteArray kept(span.begin, static_cast<int>(span.Size()));
        auto* const last = std::remove(kept.begin(), kept.end(), c);
        kept.resize(static_cast<int>(last - kept.begin()));
        Assign(kept);
    } else {
        // As bytes, the halves of a broken character could meet.
        Assign(Text().remove(QLatin1Char(c)));
    }
}

QString CLineText::Text(CSpan part) const
{
    if (isUtf8) {
        return DecodeUtf8(part);
    }
    const QString text = decoder.Decode(part.begin, part.Size());
    return changesOnTheWay && !std::all_of(part.begin, part.end, IsAsciiByte) ? RoundTrip(text)
                                                                              : text;
}

double CLineText::ToDouble(CSpan part) const
{
    double value = 0.0;
    return ParsePlainDouble(part.begin, part.Size(), value) ? value : Text(part).toDouble();
}

int CLineText::ToInt(CSpan part) const
{
    int value = 0;
    return ParsePlainInt(part.begin, part.Size(), value) ? value : Text(part).toInt();
}

short CLineText::ToShort(CSpan part) const
{
    return Text(part).toShort();
}

quint32 CLineText::ToColor(CSpan part) const
{
    return SwapRedAndBlue(static_cast<quint32>(ToInt(part)));
}

} // namespace VelorExchange::mif

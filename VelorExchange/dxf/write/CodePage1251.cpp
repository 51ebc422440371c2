// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/write/CodePage1251_p.h"

#include <algorithm>
#include <iterator>

namespace VelorExchange::dxf {

namespace {

// Bytes 80 to BF; 98 is no letter. The bytes from C0 on are the Russian alphabet in its order.
constexpr ushort kUpperHalf[] = {
    0x0402, 0x0403, 0x201A, 0x0453, 0x201E, 0x2026, 0x2020, 0x2021, 0x20AC, 0x2030, 0x0409,
    0x2039, 0x040A, 0x040C, 0x040B, 0x040F, 0x0452, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x0000, 0x2122, 0x0459, 0x203A, 0x045A, 0x045C, 0x045B, 0x045F, 0x00A0,
    0x040E, 0x045E, 0x0408, 0x00A4, 0x0490, 0x00A6, 0x00A7, 0x0401, 0x00A9, 0x0404, 0x00AB,
    0x00AC, 0x00AD, 0x00AE, 0x0407, 0x00B0, 0x00B1, 0x0406, 0x0456, 0x0491, 0x00B5, 0x00B6,
    0x00B7, 0x0451, 0x2116, 0x0454, 0x00BB, 0x0458, 0x0405, 0x0455, 0x0457};
constexpr ushort kFirstRussian = 0x0410;
constexpr ushort kLastRussian = 0x044F;
constexpr int kRussianByte = 0xC0;
constexpr ushort kAsciiEnd = 0x80;

// Calls `visit` with each letter's byte, 0 for one that is lacking. A pair of surrogates is one letter.
template <class Visit>
void ForEachLetter(const QChar* text, int size, Visit visit)
{
    for (int i = 0; i < size; ++i) {
        const bool isPair =
            text[i].isHighSurrogate() && i + 1 < size && text[i + 1].isLowSurrogate();
        i += static_cast<int>(isPair);
        visit(text[i], isPair ? '\0' : ToCodePage1251(text[i]));
    }
}

bool IsLacking(QChar c, char byte)
{
    return byte == '\0' && c.unicode() != 0;
}

} // namespace

char ToCodePage1251(QChar c)
{
    const ushort code = c.unicode();
    if (code < kAsciiEnd) {
        return static_cast<char>(code);
    }
    if (code >= kFirstRussian && code <= kLastRussian) {
        return static_cast<char>(kRussianByte + code - kFirstRussian);
    }
    const auto* const found = std::find(std::begin(kUpperHalf), std::end(kUpperHalf), code);
    return found == std::end(kUpperHalf)
        ? '\0'
        : static_cast<char>(kAsciiEnd + (found - std::begin(kUpperHalf)));
}

void AppendCodePage1251(QByteArray& out, const QChar* text, int size)
{
    const int start = out.size();
    out.resize(start + size);
    char* p = out.data() + start;
    ForEachLetter(text, size, [&p](QChar c, char byte) { *p++ = IsLacking(c, byte) ? '?' : byte; });
    out.truncate(static_cast<int>(p - out.constData()));
}

QString WithinCodePage1251(const QString& text)
{
    QString within;
    within.reserve(text.size());
    ForEachLetter(text.constData(), text.size(), [&within](QChar c, char byte) {
        within += IsLacking(c, byte) ? QChar(u'_') : c;
    });
    return within;
}

} // namespace VelorExchange::dxf

// SPDX-License-Identifier: MIT
#include "VelorExchange/pnr/SxfText_p.h"

#include <QTextCodec>

#include <algorithm>

namespace VelorExchange::pnr {

namespace {

constexpr char kDefaultCodec[] = "windows-1251";
constexpr char kUnknown = '?';
constexpr char16_t kReplacement = 0xFFFD;

CTextDecoder DecoderFor(QTextCodec* local)
{
    CTextDecoder decoder(local);
    return decoder.IsSingleByte() ? decoder : CTextDecoder(QTextCodec::codecForName(kDefaultCodec));
}

} // namespace

CSxfText::CSxfText() : local(QTextCodec::codecForLocale()), decoder(DecoderFor(local))
{
    FillEncodings();
}

void CSxfText::Refresh()
{
    QTextCodec* now = QTextCodec::codecForLocale();
    if (now != local) {
        local = now;
        decoder = DecoderFor(local);
        FillEncodings();
    }
}

// ASCII is not itself in every code page: those of DOS move a few control characters.
void CSxfText::FillEncodings()
{
    for (std::size_t code = 0; code < asciiEncodings.size(); ++code) {
        asciiEncodings[code] = AskCodec(QChar(static_cast<ushort>(code)));
    }
    encodings.clear();
    for (int byte = 0; byte <= 0xFF; ++byte) {
        const char c = static_cast<char>(byte);
        const QChar meaning = decoder.Decode(&c, 1).at(0);
        if (meaning.unicode() >= asciiEncodings.size() && meaning.unicode() != kReplacement) {
            encodings.emplace_back(meaning.unicode(), c);
        }
    }
    std::stable_sort(encodings.begin(), encodings.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
}

char CSxfText::AskCodec(QChar c) const
{
    const QByteArray bytes = c.isSurrogate() ? QByteArray() : decoder.Codec()->fromUnicode(c);
    return bytes.size() == 1 ? bytes.at(0) : kUnknown;
}

QString CSxfText::Decode(const char* data, std::size_t size)
{
    Refresh();
    return decoder.Decode(data, size);
}

char CSxfText::EncodeCharacter(QChar c) const
{
    const auto code = static_cast<char16_t>(c.unicode());
    if (code < asciiEncodings.size()) {
        return asciiEncodings[code];
    }
    const auto found =
        std::lower_bound(encodings.begin(), encodings.end(), code,
                         [](const auto& entry, char16_t wanted) { return entry.first < wanted; });
    if (found != encodings.end() && found->first == code) {
        return found->second;
    }
    return AskCodec(c); // it may know a likeness of a character that none of its bytes stands for
}

void CSxfText::Encode(const QString& text, std::size_t size, char* out)
{
    Refresh();
    std::transform(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(size), out,
                   [this](QChar c) { return EncodeCharacter(c); });
}

QByteArray CSxfText::Encode(const QString& text)
{
    QByteArray bytes(text.size(), Qt::Uninitialized);
    Encode(text, static_cast<std::size_t>(text.size()), bytes.data());
    return bytes;
}

} // namespace VelorExchange::pnr

// SPDX-License-Identifier: MIT
#include "VelorExchange/pnr/SxfText_p.h"

#include <QTextCodec>

#include <algorithm>
#include <numeric>

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
    QString ascii;
    for (std::size_t code = 0; code < asciiEncodings.size(); ++code) {
        ascii += QChar(static_cast<ushort>(code));
    }
    const QByteArray encoded = decoder.Codec()->fromUnicode(ascii);
    for (std::size_t code = 0; code < asciiEncodings.size(); ++code) {
        const int index = static_cast<int>(code);
        asciiEncodings[code] =
            encoded.size() == ascii.size() ? encoded.at(index) : AskCodec(ascii.at(index));
    }
    std::array<char, 256> bytes{};
    std::iota(bytes.begin(), bytes.end(), '\0');
    const QString meanings = decoder.Decode(bytes.data(), bytes.size());
    encodings.clear();
    for (std::size_t byte = 0; byte < bytes.size(); ++byte) {
        const char16_t meaning = meanings.at(static_cast<int>(byte)).unicode();
        if (meaning >= asciiEncodings.size() && meaning != kReplacement) {
            encodings.emplace_back(meaning, bytes[byte]);
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

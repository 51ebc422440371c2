// SPDX-License-Identifier: MIT
#include "VelorExchange/mif/LocalEncoder_p.h"

#include "VelorExchange/foundation/LocalText_p.h"

#include <QTextCodec>

#include <algorithm>

namespace VelorExchange::mif {

namespace {

constexpr std::size_t kCharacters = 65536;
constexpr int kFirstBeyondAscii = 0x80;

// ASCII goes into the table if the codec leaves all of it as it is, in one text.
bool LeavesAscii(QTextCodec* codec)
{
    QString ascii;
    for (ushort c = 1; c < kFirstBeyondAscii; ++c) {
        ascii += QChar(c);
    }
    return codec->fromUnicode(ascii) == ascii.toLatin1();
}

} // namespace

void CLocalEncoder::Follow(QTextCodec* current)
{
    codec = current;
    bytes.assign(kCharacters, '\0');
    if (!LeavesAscii(codec)) {
        return;
    }
    for (int c = 1; c < kFirstBeyondAscii; ++c) {
        bytes[static_cast<std::size_t>(c)] = static_cast<char>(c);
    }
    const CTextDecoder decoder(codec);
    if (!decoder.IsSingleByte()) {
        return;
    }
    for (int byte = kFirstBeyondAscii; byte < 0x100; ++byte) {
        const char c = static_cast<char>(byte);
        const QString text = decoder.Decode(&c, 1);
        const QByteArray encoded = text.size() == 1 ? codec->fromUnicode(text) : QByteArray();
        if (encoded.size() == 1 && !text.at(0).isSurrogate()) {
            bytes[text.at(0).unicode()] = encoded.at(0);
        }
    }
}

void CLocalEncoder::Put(COutputBlock& block, const QString& text)
{
    QTextCodec* const current = QTextCodec::codecForLocale();
    if (current != codec) {
        Follow(current);
    }
    char* const begin = block.Room(static_cast<std::size_t>(text.size()));
    char* p = begin;
    char all = '\x7F';
    for (const QChar c : text) {
        const char byte = bytes[c.unicode()];
        all = byte == '\0' ? '\0' : all;
        *p++ = byte;
    }
    if (all == '\0') {
        const QByteArray encoded = text.toLocal8Bit();
        p = std::copy(encoded.begin(), encoded.end(),
                      block.Room(static_cast<std::size_t>(encoded.size())));
    }
    block.SetEnd(p);
}

} // namespace VelorExchange::mif

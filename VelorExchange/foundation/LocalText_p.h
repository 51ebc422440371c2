// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <array>
#include <cstddef>

class QTextCodec;

namespace VelorExchange {

/// Turns the bytes of a file into text exactly as one `QTextCodec` does, line by line and without
/// state between lines. Single-byte codecs are turned into a table once, UTF-8 goes to Qt's own
/// decoder, and any other codec is asked each time.
class CTextDecoder
{
public:
    /// `codec` is not owned and never null.
    explicit CTextDecoder(QTextCodec* codec);

    /// What `QString::fromLocal8Bit` does at this moment.
    static CTextDecoder Local();

    /// The codec this decoder stands for.
    QTextCodec* Codec() const { return codec; }

    /// True if one byte is one character.
    bool IsSingleByte() const { return singleByte; }

    /// All the bytes, NUL included.
    QString Decode(const char* data, std::size_t size) const;

    /// True if no text that starts with this byte has anything to trim there.
    bool StartsPlainly(char c) const { return plainStart[static_cast<unsigned char>(c)]; }

    /// True if no text that ends with this byte has anything to trim there.
    bool EndsPlainly(char c) const { return plainEnd[static_cast<unsigned char>(c)]; }

    /// Narrows the span to what decodes to `Decode(span).trimmed()`. False if no part of the bytes
    /// does so for certain; the span is untouched then and the caller takes `Recode`.
    bool Trim(const char*& begin, const char*& end) const;

    /// The decoded and trimmed text as UTF-8, for `DecodeRecoded`.
    QByteArray Recode(const char* data, std::size_t size) const;

    /// The text that `Recode` took.
    static QString DecodeRecoded(const char* data, std::size_t size);

private:
    enum class EKind { Table, Utf8, Other };

    bool FillTable();
    void FillPlainBytes();
    bool IsAsciiTransparent() const;
    bool TrimByTable(const char*& begin, const char*& end) const;
    static bool TrimUtf8(const char*& begin, const char*& end);
    bool TrimOther(const char*& begin, const char*& end) const;

    QTextCodec* codec;
    EKind kind = EKind::Other;
    bool singleByte = false;
    bool asciiTransparent = false;
    std::array<char16_t, 256> table{}; // what each byte means, for EKind::Table
    std::array<bool, 256> space{}; // whether that is white space
    std::array<bool, 256> plainStart{}; // bytes that need no closer look at the ends of a text
    std::array<bool, 256> plainEnd{};
};

} // namespace VelorExchange

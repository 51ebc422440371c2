// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/foundation/LocalText_p.h"

#include <QByteArray>
#include <QString>

#include <array>
#include <cstddef>
#include <utility>
#include <vector>

namespace VelorExchange::pnr {

/// Text of SXF files, one byte a character on every system: through the process's local codec where
/// that is of a single byte, else through Windows-1251. The host may set another local codec at any
/// time, which counts from then on.
class CSxfText
{
public:
    CSxfText();

    /// All the bytes, zeros included.
    QString Decode(const char* data, std::size_t size);

    /// Writes exactly one byte for each of the first `size` characters at `out`; "?" for what the
    /// codec lacks.
    void Encode(const QString& text, std::size_t size, char* out);

    /// The whole text as a byte array.
    QByteArray Encode(const QString& text);

private:
    void Refresh();
    void FillEncodings();
    char EncodeCharacter(QChar c) const;
    char AskCodec(QChar c) const;

    QTextCodec* local;
    CTextDecoder decoder;
    std::array<char, 128> asciiEncodings{};
    std::vector<std::pair<char16_t, char>> encodings; // beyond ASCII, by character
};

} // namespace VelorExchange::pnr

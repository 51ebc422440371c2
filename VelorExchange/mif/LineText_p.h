// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/foundation/LocalText_p.h"
#include "VelorExchange/mif/LineScanner_p.h"

#include <QByteArray>
#include <QString>

#include <string_view>

namespace VelorExchange::mif {

/// A keyword in ASCII letters, looked for without regard to case.
struct CWord
{
    std::string_view text;
    quint32 letters = 0; ///< A bit for each letter of the word.

    constexpr explicit CWord(std::string_view word) : text(word)
    {
        for (const char c : word) {
            letters |= 1U << (static_cast<unsigned char>(c) & 31U);
        }
    }
};

/// A line or row between file and text: bytes that are cut and scanned as they stand, and decoded
/// only where text is asked for.
///
/// Codecs that hold one character in one byte, and UTF-8, are scanned in the bytes of the file; lines
/// of others that aren't plain ASCII are turned into UTF-8 first. The codec is the local one at the
/// time of construction. The bytes behind a line have to outlive what is asked of it.
class CLineText
{
public:
    CLineText();

    /// A line of a ".mif": decoded, trimmed, encoded and decoded again by the local codec.
    /// `hasLineFeed` tells that a line feed stands behind `raw`: a codec that holds one character in
    /// several bytes may take it into a broken one.
    void SetLine(CSpan raw, bool hasLineFeed = false)
    {
        if (singleUnits && !raw.IsEmpty()) {
            raw.end -= raw.end[-1] == '\r' ? 1 : 0;
            // Most lines begin and end in ASCII.
            if (!raw.IsEmpty() && IsGraphic(*raw.begin) && IsGraphic(raw.end[-1])) {
                changesOnTheWay = !localIsUtf8;
                Assign(raw);
                return;
            }
        }
        SetOtherLine(raw, hasLineFeed);
    }

    /// A row of a ".mid": decoded once, without its carriage returns.
    void SetRow(CSpan raw, bool hasLineFeed = false);

    CSpan Span() const { return span; }

    /// The line holds `word` anywhere.
    bool Contains(const CWord& word) const;

    /// The line holds a digit of any script.
    bool HasDigit() const;

    /// Takes each `c` out of the line.
    void Remove(char c);

    /// The text of the line.
    QString Text() const { return Text(span); }

    /// The text of a part of the line that was cut at ASCII characters.
    QString Text(CSpan part) const;

    /// A part as `QString::toDouble` and its like read it, 0 if it isn't a number.
    double ToDouble(CSpan part) const;
    int ToInt(CSpan part) const;
    short ToShort(CSpan part) const;

    /// A colour as the records hold it.
    quint32 ToColor(CSpan part) const;

private:
    static bool IsGraphic(char c) { return c > ' ' && c < '\x7F'; }

    void Assign(CSpan bytes)
    {
        span = bytes;
        isUtf8 = localIsUtf8;
        lettersKnown = false;
    }
    void Assign(const QByteArray& bytes);
    void Assign(const QString& text);
    void SetOtherLine(CSpan raw, bool hasLineFeed);
    QString Decoded(CSpan raw, bool hasLineFeed) const;
    QString RoundTrip(const QString& text) const;
    void LearnLetters() const;

    CTextDecoder decoder;
    bool localIsUtf8;
    bool asciiStays; // ASCII decodes and encodes to itself
    bool singleUnits; // the bytes of a line can be cut at ASCII characters as they stand
    bool changesOnTheWay = false; // the line is one that makes the round trip
    bool isUtf8 = false; // what `span` holds
    mutable bool lettersKnown = false;
    mutable bool isAscii = false;
    mutable quint32 letters = 0;
    CSpan span;
    QByteArray own; // behind `span` where the line isn't as in the file
};

} // namespace VelorExchange::mif

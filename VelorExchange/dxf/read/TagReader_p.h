// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/read/LineReader_p.h"
#include "VelorExchange/dxf/read/Tag_p.h"
#include "VelorExchange/foundation/LocalText_p.h"
#include "VelorExchange/foundation/NumberParser_p.h"

#include <QByteArray>
#include <QString>

#include <memory>
#include <string_view>

namespace VelorExchange::dxf {

/// Pairs lines to groups, and turns their bytes into text and numbers when asked.
///
/// Memory: the groups since the last `StartObject`.
class CTagReader final
{
public:
    explicit CTagReader(QIODevice& device);

    /// Decides how text is decoded from the next line on: IBM866 for 1006, UTF-8 from 1019 on, and the
    /// local codec otherwise.
    void SetVersion(int drawingVersion);

    bool AtEnd() { return lines.AtEnd(); }
    qint64 Position() const { return lines.Position(); }

    /// Lets go of all texts read so far; those of the tags that follow stay until the next call.
    void StartObject();

    /// The next group. Behind the end, one with an empty code and an empty value.
    CDXFTag ReadTag()
    {
        lines.Prepare();
        return ReadTagAhead();
    }

    /// `ReadTag` right behind an `AtEnd` that has been false.
    CDXFTag ReadTagAhead()
    {
        CDXFTag tag;
        if (!TakePlainCode(tag.code)) {
            tag.code = TakeOtherCode();
        }
        tag.value = TakeText();
        return tag;
    }

    /// `StartObject` and `ReadTag`, for the loops that look at one group at a time.
    CDXFTag ReadLoneTag()
    {
        StartObject();
        return ReadTag();
    }

    /// Another number whenever texts start to be decoded in another way.
    unsigned DecoderRound() const { return decoderRound; }

    /// The bytes of a text; valid until the next tag is read.
    std::string_view Bytes(const CTextSpan& span) const
    {
        switch (span.source) {
        case CTextSpan::Buffer:
            return {lines.Base() + span.offset, span.size};
        case CTextSpan::Recoded:
            return {recoded.constData() + span.offset, span.size};
        default:
            return "0";
        }
    }

    /// The text itself.
    QString Text(const CTextSpan& span) const;

    /// What `QString::toDouble` gives for the text, 0.0 if it does not convert.
    double ToDouble(const CTextSpan& span) const
    {
        double value = 0.0;
        return ToPlainDouble(span, value) ? value : ToUncommonDouble(span);
    }

    /// The same, where the text is a plain number; false for any other.
    bool ToPlainDouble(const CTextSpan& span, double& value) const
    {
        return span.source == CTextSpan::Buffer
            && ParsePaddedDouble(lines.Base() + span.offset, span.size, value);
    }

    /// What `QString::toInt` gives for the text, 0 if it does not convert.
    int ToInt(const CTextSpan& span) const;

    /// True if the tag is (`code`, `name`), the name compared without regard to case.
    bool Is(const CDXFTag& tag, int code, std::string_view name) const;

    /// True if the text of the tag's code contains that of `code`, which has two digits. The tag is the
    /// last one read.
    bool CodeContains(const CDXFTag& tag, int code) const
    {
        // Codes of two digits contain but themselves, and an empty one nothing.
        return static_cast<unsigned>(tag.code + 1) <= 100U ? tag.code == code
                                                           : LongCodeContains(tag.code, code);
    }

private:
    bool TakePlainCode(int& code);
    bool TakeAlignedCode(const char* p, int& code);
    int TakeOtherCode();
    CTextSpan TakeText();
    CTextSpan TakeUncommonText(const CRawLine& line);
    CTextSpan TakeAnyText();
    double ToUncommonDouble(const CTextSpan& span) const;
    bool LongCodeContains(int longCode, int code) const;
    CTextSpan Recode(const CRawLine& line);
    bool SameText(const CTextSpan& span, std::string_view name) const;

    CLineReader lines;
    int version = 0;
    CTextDecoder local;
    std::unique_ptr<CTextDecoder> fixed; // for the versions that do not use the local codec
    const CTextDecoder* decoder = nullptr;
    unsigned decoderRound = 0;
    QByteArray recoded;
    QByteArray otherCode; // the text of the last code that was `kOtherCode`
};

namespace detail {

/// True if no byte is above 127.
bool IsAscii(std::string_view bytes);

} // namespace detail

/// The same for the form that most programs write: right-aligned in three columns.
inline bool CTagReader::TakeAlignedCode(const char* p, int& code)
{
    const auto digit = [](char c) {
        return static_cast<unsigned>(static_cast<unsigned char>(c - '0'));
    };
    const unsigned ones = digit(p[2]);
    unsigned value = ones;
    if (p[1] != ' ') {
        const unsigned tens = digit(p[1]);
        const unsigned hundreds = p[0] == ' ' ? 0 : digit(p[0]);
        // A zero in front is another code; digits below 10 rule out any other character.
        if (tens > 9 || hundreds > 9 || p[0] == '0' || (p[0] == ' ' && tens == 0)) {
            return false;
        }
        value += tens * 10 + hundreds * 100;
    } else if (p[0] != ' ') {
        return false;
    }
    const int ending = p[3] == '\r' ? 4 : 3;
    if (ones > 9 || p[ending] != '\n') {
        return false;
    }
    code = static_cast<int>(value);
    lines.TakeTo(p + ending + 1);
    return true;
}

/// Takes a line that is blanks, a number of up to four digits in its shortest spelling, and its end:
/// what codes look like in all but a few files. False, and nothing taken, for any other line.
inline bool CTagReader::TakePlainCode(int& code)
{
    constexpr std::ptrdiff_t kMostBytes = 16; // far from where a line is cut
    const char* const begin = lines.Cursor();
    const char* p = begin;
    if (TakeAlignedCode(p, code)) {
        return true;
    }
    const char* const limit = begin + kMostBytes;
    while (*p == ' ' && p != limit) {
        ++p;
    }
    const char* const first = p;
    unsigned value = 0;
    for (unsigned digit = 0; p != limit && (digit = static_cast<unsigned char>(*p - '0')) < 10; ++p)
    {
        value = value * 10 + digit;
    }
    const std::ptrdiff_t digits = p - first;
    if (*p == '\r') {
        ++p;
    }
    if (*p != '\n' || digits < 1 || digits > 4 || (digits > 1 && *first == '0')) {
        return false;
    }
    code = static_cast<int>(value);
    lines.TakeTo(p + 1);
    return true;
}

inline CTextSpan CTagReader::TakeText()
{
    CRawLine line;
    if (lines.NextShortLine(line)) {
        const char* begin = line.begin;
        while (*begin == ' ') { // ends at the line's end at the latest
            ++begin;
        }
        if (begin < line.end && decoder->StartsPlainly(*begin)
            && decoder->EndsPlainly(line.end[-1])) {
            return MakeSpan(begin - lines.Base(), CTextSpan::Buffer, line.end - begin);
        }
    }
    // With its end, which half a character before it may take along.
    return line.begin != nullptr ? TakeUncommonText({line.begin, lines.Cursor()}) : TakeAnyText();
}

} // namespace VelorExchange::dxf
